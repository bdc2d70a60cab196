#include "platform/linux/HeifLibrary.h"
#include "platform/linux/ThumbnailDecoder.h"

#include <QFile>

#include <memory>

namespace tembra {

namespace {

using Context = std::unique_ptr<heif_context, decltype(&heif_context_free)>;
using Handle = std::unique_ptr<heif_image_handle, decltype(&heif_image_handle_release)>;
using Picture = std::unique_ptr<heif_image, decltype(&heif_image_release)>;

// The first bytes of a file of the ISO base media format (ISO/IEC 14496-12), which the library then knows
// more of; empty for any other.
QByteArray startOfMedia(const QString &path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    QByteArray start = file.read(32);
    return start.sliced(std::min<qsizetype>(4, start.size())).startsWith("ftyp") ? start : QByteArray();
}

const HeifLibrary *libraryFor(const QString &path) {
    const QByteArray start = startOfMedia(path);
    const HeifLibrary *library = start.isEmpty() ? nullptr : HeifLibrary::instance();
    if (!library)
        return nullptr;
    const auto *bytes = reinterpret_cast<const uint8_t *>(start.constData());
    return library->checkFileType(bytes, static_cast<int>(start.size())) == heif_filetype_yes_supported
               ? library
               : nullptr;
}

bool succeeded(const heif_error &error) {
    return error.code == heif_error_Ok;
}

// Cameras put a small picture beside the large one.
Handle embeddedThumbnail(const HeifLibrary &library, const heif_image_handle *primary, int side) {
    heif_item_id id = 0;
    heif_image_handle *thumbnail = nullptr;
    if (library.thumbnailIds(primary, &id, 1) != 1 || !succeeded(library.thumbnail(primary, id, &thumbnail)))
        return {nullptr, library.releaseHandle};
    Handle handle(thumbnail, library.releaseHandle);
    if (std::max(library.handleWidth(thumbnail), library.handleHeight(thumbnail)) < side)
        handle.reset();
    return handle;
}

Picture decode(const HeifLibrary &library, const heif_image_handle *handle) {
    heif_image *image = nullptr;
    if (!succeeded(
            library.decode(handle, &image, heif_colorspace_RGB, heif_chroma_interleaved_RGBA, nullptr)))
        image = nullptr;
    return {image, library.releaseImage};
}

QImage toImage(const HeifLibrary &library, const heif_image *picture) {
    int stride = 0;
    const uint8_t *bytes = library.plane(picture, heif_channel_interleaved, &stride);
    if (!bytes)
        return {};
    return QImage(bytes, library.imageWidth(picture, heif_channel_interleaved),
                  library.imageHeight(picture, heif_channel_interleaved), stride, QImage::Format_RGBA8888)
        .copy();
}

} // namespace

Result<std::optional<DecodedPicture>> decodeReducedHeif(const QString &path, int side) {
    const HeifLibrary *const library = libraryFor(path);
    if (!library)
        return std::nullopt;
    const Context context(library->allocateContext(), library->freeContext);
    heif_image_handle *primaryHandle = nullptr;
    if (!succeeded(library->readFile(context.get(), QFile::encodeName(path).constData(), nullptr)) ||
        !succeeded(library->primaryImage(context.get(), &primaryHandle)))
        return failure(unreadablePicture());
    const Handle primary(primaryHandle, library->releaseHandle);
    const Handle small = embeddedThumbnail(*library, primary.get(), side);
    const Picture picture = decode(*library, small ? small.get() : primary.get());
    const QImage image = picture ? toImage(*library, picture.get()) : QImage();
    if (image.isNull())
        return failure(unreadablePicture());
    return reduced(image, side);
}

} // namespace tembra

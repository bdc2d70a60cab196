#include "platform/linux/ThumbnailDecoder.h"

#include <QFile>

#include <libheif/heif.h>
#include <memory>

namespace tembra {

namespace {

template <auto release>
struct Releaser {
    template <class T>
    void operator()(T *object) const {
        release(object);
    }
};

using Context = std::unique_ptr<heif_context, Releaser<heif_context_free>>;
using Handle = std::unique_ptr<heif_image_handle, Releaser<heif_image_handle_release>>;
using Picture = std::unique_ptr<heif_image, Releaser<heif_image_release>>;

bool isHeif(const QString &path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return false;
    const QByteArray start = file.read(32);
    return heif_check_filetype(reinterpret_cast<const uint8_t *>(start.constData()),
                               static_cast<int>(start.size())) == heif_filetype_yes_supported;
}

bool succeeded(const heif_error &error) {
    return error.code == heif_error_Ok;
}

// Cameras put a small picture beside the large one.
Handle embeddedThumbnail(const heif_image_handle *primary, int side) {
    heif_item_id id = 0;
    heif_image_handle *thumbnail = nullptr;
    if (heif_image_handle_get_list_of_thumbnail_IDs(primary, &id, 1) != 1 ||
        !succeeded(heif_image_handle_get_thumbnail(primary, id, &thumbnail)))
        return nullptr;
    Handle handle(thumbnail);
    const int longerSide =
        std::max(heif_image_handle_get_width(thumbnail), heif_image_handle_get_height(thumbnail));
    return longerSide >= side ? std::move(handle) : nullptr;
}

Picture decode(const heif_image_handle *handle) {
    heif_image *image = nullptr;
    if (!succeeded(
            heif_decode_image(handle, &image, heif_colorspace_RGB, heif_chroma_interleaved_RGBA, nullptr)))
        return nullptr;
    return Picture(image);
}

QImage toImage(const heif_image *picture) {
    int stride = 0;
    const uint8_t *bytes = heif_image_get_plane_readonly(picture, heif_channel_interleaved, &stride);
    if (!bytes)
        return {};
    return QImage(bytes, heif_image_get_width(picture, heif_channel_interleaved),
                  heif_image_get_height(picture, heif_channel_interleaved), stride, QImage::Format_RGBA8888)
        .copy();
}

} // namespace

Result<std::optional<DecodedPicture>> decodeReducedHeif(const QString &path, int side) {
    if (!isHeif(path))
        return std::nullopt;
    const Context context(heif_context_alloc());
    heif_image_handle *primaryHandle = nullptr;
    if (!succeeded(
            heif_context_read_from_file(context.get(), QFile::encodeName(path).constData(), nullptr)) ||
        !succeeded(heif_context_get_primary_image_handle(context.get(), &primaryHandle)))
        return failure(unreadablePicture());
    const Handle primary(primaryHandle);
    const Handle small = embeddedThumbnail(primary.get(), side);
    const Picture picture = decode(small ? small.get() : primary.get());
    const QImage image = picture ? toImage(picture.get()) : QImage();
    if (image.isNull())
        return failure(unreadablePicture());
    return reduced(image, side);
}

} // namespace tembra

#include "app/RenderCommand.h"

#include "base/QtScheduler.h"
#include "editor/model/ScreenshotEditError.h"
#include "editor/model/ScreenshotEdits.h"
#include "editor/model/ScreenshotRenderer.h"
#include "imaging/PictureHeader.h"
#include "platform/Platform.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QSaveFile>

namespace tembra {

namespace {

tl::unexpected<Error> renderFailure(int code, const QString &message) {
    return failure({QStringLiteral("Tembra.RenderCommand"), code, message, {}});
}

QString translated(const char *text) {
    return QCoreApplication::translate("RenderCommand", text);
}

Result<QByteArray> contentOf(const QString &path, const FileCoordinator &files) {
    // A link is followed here: nothing is written to what it leads to.
    const QFileInfo file(path);
    return files.read(file.exists() ? file.canonicalFilePath() : file.absoluteFilePath())
        .or_else([&path](const Error &error) -> Result<QByteArray> {
            return renderFailure(1, translated(QT_TRANSLATE_NOOP("RenderCommand", "“%1” cannot be read: %2"))
                                        .arg(path, error.message));
        });
}

std::optional<PictureType> typeOfName(const QString &path) {
    const QString suffix = QFileInfo(path).suffix().toLower();
    if (suffix == u"png")
        return PictureType::png;
    const bool isJpeg = suffix == u"jpg" || suffix == u"jpeg" || suffix == u"jpe";
    return isJpeg ? std::optional(PictureType::jpeg) : std::nullopt;
}

Result<void> write(const QString &path, const QByteArray &bytes) {
    QSaveFile file(path);
    if (file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.commit())
        return {};
    return renderFailure(2, translated(QT_TRANSLATE_NOOP("RenderCommand", "“%1” cannot be written: %2"))
                                .arg(path, file.errorString()));
}

} // namespace

Result<QString> renderImage(const QString &image, const QString &edits, const QString &output) {
    const QFileInfo written(output);
    if (written.exists() && (written == QFileInfo(image) || written == QFileInfo(edits)))
        return renderFailure(
            3, translated(QT_TRANSLATE_NOOP(
                   "RenderCommand", "What is read is not written over: name another file for the output.")));
    QtScheduler scheduler;
    const Platform platform = makeHeadlessPlatform(scheduler);
    const auto original = contentOf(image, *platform.fileCoordinator);
    const auto json = contentOf(edits, *platform.fileCoordinator);
    if (!original || !json)
        return failure(original ? json.error() : original.error());
    const auto header = readPictureHeader(*original);
    if (!header || !header->isSingleImage)
        return editFailure(ScreenshotEditError::unsupportedType);
    const auto type = QFileInfo(output).suffix().isEmpty() ? std::optional(header->type) : typeOfName(output);
    if (!type)
        return editFailure(ScreenshotEditError::unsupportedFormat);
    return ScreenshotEdits::read(*json)
        .and_then([&](const ScreenshotEdits &read) {
            return ScreenshotRenderer::render(*original, read.annotations, read.cropRect);
        })
        .and_then([&](const QImage &rendered) {
            return ScreenshotRenderer::encode(rendered, pictureTypeIdentifier(*type), header->metadata);
        })
        .and_then([&](const QByteArray &bytes) { return write(output, bytes); })
        .map([] { return QString(); });
}

} // namespace tembra

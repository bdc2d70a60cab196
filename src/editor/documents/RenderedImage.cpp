#include "editor/documents/RenderedImage.h"

#include "editor/model/ScreenshotRenderer.h"
#include "imaging/PictureHeader.h"

#include <QFileInfo>

namespace tembra {

QString RenderedImage::typeOf(const QString &path) {
    const QString suffix = QFileInfo(path).suffix().toLower();
    if (suffix == u"png")
        return png;
    return suffix == u"jpg" || suffix == u"jpeg" ? jpeg : QString();
}

Result<QByteArray> RenderedImage::encoded(const QByteArray &original, const ScreenshotEdits &edits,
                                          const QString &type) {
    const auto header = readPictureHeader(original);
    return ScreenshotRenderer::render(original, edits.annotations, edits.cropRect)
        .and_then([&](const QImage &image) {
            return ScreenshotRenderer::encode(image, type, header ? header->metadata : PictureMetadata());
        });
}

} // namespace tembra

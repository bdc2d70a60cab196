#include "editor/model/ScreenshotRenderer.h"

#include "editor/model/AnnotationPainter.h"
#include "editor/model/BlurredAreas.h"
#include "editor/model/EditorCropSession.h"
#include "editor/model/ScreenshotEditError.h"
#include "imaging/JpegEncoder.h"
#include "imaging/PictureDecoding.h"
#include "imaging/PictureType.h"
#include "imaging/PngEncoder.h"

#include <QPainter>

#include <algorithm>

namespace tembra {

namespace {

constexpr double jpegQuality = 0.95;

// Multiplying colours by their alpha and back loses bits, so where nothing was drawn the pixels stay as they
// were.
void takeChanges(QImage &image, const QImage &painted, std::span<const QRect> hidden) {
    for (int y = 0; y < image.height(); ++y) {
        auto *pixels = reinterpret_cast<QRgb *>(image.scanLine(y));
        const auto *drawn = reinterpret_cast<const QRgb *>(painted.constScanLine(y));
        for (int x = 0; x < image.width(); ++x) {
            if (drawn[x] != qPremultiply(pixels[x]))
                pixels[x] = qUnpremultiply(drawn[x]);
        }
    }
    // What cannot be seen may still be told by its colour.
    for (const QRect area : hidden) {
        for (int y = area.top(); y <= area.bottom(); ++y) {
            auto *pixels = reinterpret_cast<QRgb *>(image.scanLine(y));
            const auto *drawn = reinterpret_cast<const QRgb *>(painted.constScanLine(y));
            std::transform(drawn + area.left(), drawn + area.right() + 1, pixels + area.left(),
                           [](QRgb pixel) { return qUnpremultiply(pixel); });
        }
    }
}

bool paint(QImage &image, QPoint origin, const BlurredAreas &blurred,
           const std::vector<ScreenshotAnnotation> &annotations) {
    QPainter painter(&image);
    if (!painter.isActive())
        return false;
    painter.translate(-origin);
    blurred.draw(painter);
    ScreenshotRenderer::draw(annotations, painter);
    return painter.end();
}

} // namespace

Result<QImage> ScreenshotRenderer::image(QByteArrayView data, const std::optional<int> &maxPixelSize) {
    auto image = maxPixelSize ? decodePicture(data, *maxPixelSize) : decodePicture(data);
    if (!image)
        return editFailure(ScreenshotEditError::unreadableImage);
    return *std::move(image);
}

Result<QImage> ScreenshotRenderer::render(QByteArrayView original,
                                          const std::vector<ScreenshotAnnotation> &annotations,
                                          const std::optional<QRectF> &cropRect) {
    auto decoded = image(original);
    if (!decoded)
        return decoded;
    if (cropRect && !EditorCropSession::valid(*cropRect, decoded->rect()))
        return editFailure(ScreenshotEditError::unreadableCrop);
    const QRect visible = cropRect ? cropRect->toRect() : decoded->rect();
    const auto blurred = BlurredAreas::of(*decoded, annotations, visible);
    if (!blurred)
        return editFailure(ScreenshotEditError::noBlur);
    QImage output = visible == decoded->rect() ? *std::move(decoded) : decoded->copy(visible);
    if (output.isNull())
        return editFailure(ScreenshotEditError::notEnoughMemory);
    if (annotations.empty())
        return output;
    if (!output.hasAlphaChannel())
        return paint(output, visible.topLeft(), *blurred, annotations)
                   ? Result<QImage>(std::move(output))
                   : editFailure(ScreenshotEditError::notPrepared);
    QImage painted = output.convertToFormat(QImage::Format_ARGB32_Premultiplied);
    if (painted.isNull())
        return editFailure(ScreenshotEditError::notEnoughMemory);
    if (!paint(painted, visible.topLeft(), *blurred, annotations))
        return editFailure(ScreenshotEditError::notPrepared);
    takeChanges(output, painted, blurred->areas(visible.topLeft()));
    return output;
}

Result<QByteArray> ScreenshotRenderer::encode(const QImage &image, const QString &type,
                                              const PictureMetadata &metadata) {
    const auto known = pictureTypeOf(type);
    if (!known)
        return editFailure(ScreenshotEditError::unsupportedFormat);
    auto bytes =
        *known == PictureType::png ? encodePng(image, metadata) : encodeJpeg(image, jpegQuality, metadata);
    if (!bytes)
        return editFailure(ScreenshotEditError::notEncoded);
    return *std::move(bytes);
}

void ScreenshotRenderer::draw(std::span<const ScreenshotAnnotation> annotations, QPainter &painter,
                              const std::optional<QUuid> &editingTextID) {
    drawAnnotations(annotations, painter, editingTextID);
}

} // namespace tembra

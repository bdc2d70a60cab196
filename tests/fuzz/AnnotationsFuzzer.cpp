#include "editor/model/AnnotationPainter.h"
#include "editor/model/BlurredAreas.h"
#include "editor/model/RectHandles.h"
#include "editor/model/ScreenshotEdits.h"
#include "fuzz/JsonMutation.h"
#include "fuzz/Require.h"

#include <QGuiApplication>
#include <QImage>

#include <algorithm>
#include <array>
#include <cmath>

using namespace tembra;

namespace {

constexpr QSize imageSize(96, 64);

bool isFinite(const QRectF &rect) {
    const std::array sides{rect.left(), rect.top(), rect.right(), rect.bottom()};
    return std::ranges::all_of(sides, [](double side) { return std::isfinite(side); });
}

bool areFinite(const std::vector<QPointF> &points) {
    return std::ranges::all_of(points, [](QPointF point) { return EditorPoint::from(point).isFinite(); });
}

void resize(const ScreenshotAnnotation &shape) {
    const QRectF limits(QPointF(), imageSize);
    for (int handle = 0; handle < rectHandles::count; ++handle) {
        for (const QPointF point : {QPointF(13, 7), QPointF(-1e6, 1e6)}) {
            for (const bool preservingAspect : {false, true}) {
                const auto resized = shape.resizedShape(handle, point, preservingAspect, limits);
                require(resized.isDrawable() && isFinite(resized.bounds()), "a shape can be resized");
            }
        }
    }
}

void examine(const ScreenshotAnnotation &annotation) {
    require(isFinite(annotation.bounds()), "what is drawn has an extent");
    require(isFinite(annotation.path().boundingRect()), "what is drawn has an outline");
    require(!annotation.isFinite() || areFinite(annotation.editingPoints()), "a handle lies somewhere");
    for (const QPointF point : {QPointF(20, 20), QPointF(0, 0), QPointF(1e6, -1e6)})
        static_cast<void>(annotation.contains(point, 4));
    if (annotation.number)
        require(isFinite(annotation.replacingNumber(9'999, QRectF(QPointF(), imageSize)).bounds()),
                "a number can be replaced");
    if (annotation.hasRectHandles() && annotation.isDrawable())
        resize(annotation);
}

void draw(const std::vector<ScreenshotAnnotation> &annotations) {
    QImage image(imageSize, QImage::Format_RGB32);
    image.fill(Qt::white);
    const auto blurred = BlurredAreas::of(image, annotations, image.rect());
    require(blurred.has_value(), "a small image is blurred");
    QPainter painter(&image);
    blurred->draw(painter);
    drawAnnotations(annotations, painter);
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int *argc, char ***argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    // As long as the program runs.
    static const QGuiApplication application(*argc, *argv);
    return 0;
}

// Whatever is read can be drawn, clicked and resized.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    const auto edits = ScreenshotEdits::read({data, static_cast<qsizetype>(size)});
    if (!edits)
        return 0;
    std::ranges::for_each(edits->annotations, examine);
    draw(edits->annotations);
    return 0;
}

extern "C" std::size_t LLVMFuzzerCustomMutator(std::uint8_t *data, std::size_t size, std::size_t room,
                                               unsigned seed) {
    return mutateJson(data, size, room, seed);
}

#include "editor/canvas/CanvasLayers.h"

#include "editor/DrawnAnnotations.h"
#include "editor/canvas/AnnotationEditing.h"
#include "editor/model/ScreenshotRenderer.h"
#include "support/Pictures.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

namespace tembra {
namespace {

using namespace annotations;
using Annotations = std::vector<ScreenshotAnnotation>;
using Strength = EditorBlur::Strength;

constexpr QSize imageSize(240, 180);

ScreenshotAnnotation blur(const QRectF &rect, Strength strength) {
    ScreenshotAnnotation result =
        make(Kind::blur, {EditorPoint::from(rect.topLeft()), EditorPoint::from(rect.bottomRight())}, {}, 0);
    result.blur = EditorBlur{strength};
    return result;
}

Annotations everything() {
    return {blur({20.5, 15.2, 81, 63.3}, Strength::strong),
            shape(Kind::rectangle, {30, 20, 80, 50}, translucent(blue, 0.5), 6, true),
            arrow({10, 170}, {150, 60}, red, 7, EditorPoint{100, 150}),
            blur({71, 43, 90, 71}, Strength::light),
            text({100, 20}, QStringLiteral("Wörter שלום"), 18, white, translucent(black, 0.6)),
            number({200, 50}, 12, 40, green),
            pencil(wave({20, 100, 200, 60}, 40), orange, 5),
            shape(Kind::ellipse, {120, 90, 100, 80}, yellow, 5),
            make(Kind::line, {{5, 5}, {235, 175}}, translucent(red, 0.4), 9)};
}

class CanvasLayersTest : public testing::TestWithParam<double> {
protected:
    const QByteArray original = pictureBytes("png", imageSize);
    std::shared_ptr<const ImagePyramid> image =
        std::make_shared<ImagePyramid>(QImage::fromData(original), imageSize);
    CanvasViewport viewport = [] {
        CanvasViewport result;
        // At 100 % of the display's pixels.
        result.setView({400, 400}, GetParam());
        result.setContent({{}, QSizeF(imageSize)});
        result.fit();
        return result;
    }();

    void paint(CanvasLayers &layers, QImage &view, const QRectF &exposed, const Annotations &annotations,
               const CanvasDraft &draft) const {
        QPainter painter(&view);
        layers.paint(painter, exposed,
                     {.viewport = viewport,
                      .image = image,
                      .annotations = annotations,
                      .draft = draft,
                      .background = QColor(40, 44, 52),
                      .dots = QColor(90, 90, 90)});
    }
    [[nodiscard]] QRectF whole() const { return {QPointF(), viewport.viewSize()}; }
    [[nodiscard]] QImage blank() const {
        QImage view((viewport.viewSize() * GetParam()).toSize(), QImage::Format_RGB32);
        view.setDevicePixelRatio(GetParam());
        view.fill(Qt::magenta);
        return view;
    }
    [[nodiscard]] QImage painted(CanvasLayers &layers, const Annotations &annotations,
                                 const CanvasDraft &draft = {}) const {
        QImage view = blank();
        paint(layers, view, whole(), annotations, draft);
        return view;
    }
    [[nodiscard]] QImage afresh(const Annotations &annotations, const CanvasDraft &draft = {}) const {
        CanvasLayers layers;
        return painted(layers, annotations, draft);
    }
    // What is shown of the image.
    [[nodiscard]] QImage contentOf(const QImage &view) const {
        const QRectF shown = viewport.toView(viewport.content());
        QImage result = view.copy(QRectF(shown.topLeft() * GetParam(), shown.size() * GetParam()).toRect());
        result.setDevicePixelRatio(1);
        return pixelsOf(result);
    }
};

int largestDifference(const QImage &one, const QImage &other) {
    if (one.size() != other.size())
        return 256;
    int largest = 0;
    for (int y = 0; y < one.height(); ++y) {
        for (int x = 0; x < one.width(); ++x) {
            const QRgb a = one.pixel(x, y);
            const QRgb b = other.pixel(x, y);
            largest = std::max({largest, std::abs(qRed(a) - qRed(b)), std::abs(qGreen(a) - qGreen(b)),
                                std::abs(qBlue(a) - qBlue(b))});
        }
    }
    return largest;
}

// With what the draft has in place of the annotations of the same ids, and the rest of it on top.
Annotations merged(Annotations annotations, const CanvasDraft &draft) {
    for (const ScreenshotAnnotation &one : draft.annotations) {
        const auto known = std::ranges::find(annotations, one.id, &ScreenshotAnnotation::id);
        if (known == annotations.end())
            annotations.push_back(one);
        else
            *known = one;
    }
    return annotations;
}

TEST_P(CanvasLayersTest, showsWhatWillBeSaved) {
    const auto saved = ScreenshotRenderer::render(original, everything(), {});
    ASSERT_TRUE(saved);
    EXPECT_LE(largestDifference(contentOf(afresh(everything())), pixelsOf(*saved)), 4);
    for (const ScreenshotAnnotation &one : everything()) {
        const auto alone = ScreenshotRenderer::render(original, {one}, {});
        EXPECT_LE(largestDifference(contentOf(afresh({one})), pixelsOf(*alone)), 4)
            << static_cast<int>(one.kind);
    }
}

TEST_P(CanvasLayersTest, showsOnlyTheCropOfIt) {
    const QRectF crop(31, 17, 120, 101);
    viewport.setContent(crop);
    viewport.fit();
    const auto saved = ScreenshotRenderer::render(original, everything(), crop);
    EXPECT_LE(largestDifference(contentOf(afresh(everything())), pixelsOf(*saved)), 4);
}

// Every state on the way, reached from the one before, looks as if it were painted from nothing.
TEST_P(CanvasLayersTest, changesLookAsIfPaintedFromNothing) {
    std::mt19937 random(11); // NOLINT(cert-msc51-cpp): the same walk every time.
    const auto below = [&random](std::size_t count) { return random() % count; };
    CanvasLayers layers;
    const Annotations source = everything();
    std::vector<Annotations> past{{}};
    Annotations current;
    for (int step = 0; step < 24; ++step) {
        CanvasDraft draft;
        const std::size_t kind = current.empty() ? 0 : below(7);
        if (kind == 0) {
            ScreenshotAnnotation added =
                annotationEditing::moved(source[below(source.size())], {double(below(40)), 0});
            added.id = QUuid::createUuid();
            current.push_back(added);
        } else if (kind == 1) {
            current[below(current.size())].color = blue;
        } else if (kind == 2) {
            current = past[below(past.size())];
        } else if (kind == 3) {
            std::swap(current[below(current.size())], current[below(current.size())]);
        } else if (kind == 4) {
            current.erase(current.begin() + static_cast<std::ptrdiff_t>(below(current.size())));
        } else {
            for (const ScreenshotAnnotation &one : current) {
                if (below(3) == 0)
                    draft.annotations.push_back(annotationEditing::moved(one, {double(below(9)), 5}));
            }
            if (below(2) == 0)
                draft.annotations.push_back(source[below(source.size())]);
        }
        past.push_back(current);
        const QImage view = painted(layers, current, draft);
        ASSERT_EQ(view, afresh(current, draft)) << step;
        ASSERT_LE(largestDifference(view, afresh(merged(current, draft))), 3) << step;
    }
}

// While a weak blur is dragged over a strong one, what that hides stays hidden.
TEST_P(CanvasLayersTest, aDraftOfABlurLiesWhereItWillLie) {
    const Annotations all = everything();
    for (const Strength strength : EditorBlur::strengths) {
        const CanvasDraft draft{.annotations = {blur({40, 30, 100, 100}, strength)}};
        EXPECT_LE(largestDifference(afresh(all, draft), afresh(merged(all, draft))), 3);
    }
}

TEST_P(CanvasLayersTest, nothingShowsThroughABlurOfTranslucentPixels) {
    QImage translucent(imageSize, QImage::Format_ARGB32);
    translucent.fill(QColor(0, 0, 0, 60));
    QImage lettering = translucent;
    QPainter(&lettering).fillRect(60, 60, 4, 40, QColor(255, 0, 0, 200));
    const auto shown = [&](const QImage &picture) {
        image = std::make_shared<ImagePyramid>(picture, imageSize);
        return contentOf(afresh({blur({0, 0, 240, 180}, Strength::strong)}));
    };
    // The lettering has no edge any more: beside it is what is on it. The chequers are 16 points apart.
    const QImage hidden = shown(lettering);
    const QImage plain = shown(translucent);
    const auto ink = [&](int x) { return qGreen(plain.pixel(x, 80)) - qGreen(hidden.pixel(x, 80)); };
    EXPECT_GT(ink(62), 3);
    EXPECT_LE(ink(62) - ink(70), 4);
}

TEST_P(CanvasLayersTest, paintsAPartOfItAsItPaintsTheWhole) {
    const Annotations all = everything();
    for (const QRectF exposed : {QRectF(90, 130, 101, 77), QRectF(3, 0, 50, 399), QRectF(201, 201, 3, 3)}) {
        CanvasLayers layers;
        const CanvasDraft draft{.annotations = {annotationEditing::moved(all[4], {3, 7}),
                                                annotationEditing::moved(all[0], {30, 7})}};
        const QImage full = painted(layers, all, draft);
        QImage part = full;
        // What is there of the frame before is painted over, and nothing else is.
        QPainter(&part).fillRect(exposed, Qt::magenta);
        const QImage holed = part;
        paint(layers, part, exposed, all, draft);
        EXPECT_EQ(part, full) << exposed.x();
        EXPECT_NE(holed, full);
    }
}

TEST_P(CanvasLayersTest, takesOtherPixelsAndOtherPlaces) {
    CanvasLayers layers;
    const Annotations all = everything();
    (void)painted(layers, all);
    viewport.setScale(1.7, {80, 90});
    EXPECT_EQ(painted(layers, all), afresh(all));
    viewport.pan({-33, 21});
    EXPECT_EQ(painted(layers, all), afresh(all));
    QImage other(imageSize, QImage::Format_RGB32);
    other.fill(Qt::darkCyan);
    image = std::make_shared<ImagePyramid>(other, imageSize);
    EXPECT_EQ(painted(layers, all), afresh(all));
    image = nullptr;
    EXPECT_EQ(painted(layers, all), afresh(all));
}

// More than are drawn within a frame: they are scaled until a zoom rests, shifted by a pan, and moved as one.
TEST_P(CanvasLayersTest, manyLookTheSameOnceTheyRest) {
    Annotations many;
    for (int at = 0; at < 30; ++at) {
        many.push_back(annotationEditing::moved(everything()[2 + at % 7], {double(at % 5), double(at % 3)}));
        many.back().id = QUuid::createUuid();
    }
    CanvasLayers layers;
    (void)painted(layers, many);
    viewport.setScale(1.7, {80, 90});
    (void)painted(layers, many);
    EXPECT_TRUE(layers.isApproximate());
    many.pop_back();
    (void)painted(layers, many);
    layers.refine();
    EXPECT_EQ(painted(layers, many), afresh(many));
    for (const QPointF way : {QPointF(-33, 21), QPointF(7, -40)}) {
        viewport.pan(way);
        EXPECT_LE(largestDifference(painted(layers, many), afresh(many)), 2);
    }
    viewport.fit();
    (void)painted(layers, many);
    layers.refine();
    const Annotations first(many.begin(), many.begin() + 20);
    for (const QPointF by : {QPointF(3, 4), QPointF(-5, 2)}) {
        CanvasDraft draft{.movedBy = by, .movedBounds = {0, 0, 240, 180}};
        for (const ScreenshotAnnotation &one : first)
            draft.annotations.push_back(annotationEditing::moved(one, by));
        // What hangs over the picture is not moved back in.
        EXPECT_LE(largestDifference(painted(layers, many, draft), afresh(merged(many, draft))), 16);
    }
}

INSTANTIATE_TEST_SUITE_P(displays, CanvasLayersTest, testing::Values(1.0, 1.25, 1.5, 2.0),
                         [](const auto &display) {
                             return "at" + std::to_string(static_cast<int>(display.param * 100));
                         });

} // namespace
} // namespace tembra

#include "editor/canvas/CanvasViewport.h"

#include "editor/DrawnAnnotations.h"
#include "editor/canvas/CanvasTarget.h"
#include "editor/canvas/ImagePart.h"

#include <gtest/gtest.h>

#include <cmath>

namespace tembra {
namespace {

using namespace annotations;

constexpr std::array displayScales{1.0, 1.25, 1.5, 2.0};

CanvasViewport viewportOf(const QRectF &content, QSizeF view, double displayScale) {
    CanvasViewport viewport;
    viewport.setView(view, displayScale);
    viewport.setContent(content);
    viewport.fit();
    return viewport;
}

bool isOnPixel(double points, double displayScale) {
    return std::abs(points * displayScale - std::round(points * displayScale)) < 1e-6;
}

// Whatever the zoom, the picture's pixels begin on those of the display.
void expectOnPixels(const CanvasViewport &viewport) {
    const QPointF corner = viewport.toView(viewport.content().topLeft());
    EXPECT_TRUE(isOnPixel(corner.x(), viewport.displayScale())) << corner.x();
    EXPECT_TRUE(isOnPixel(corner.y(), viewport.displayScale())) << corner.y();
}

TEST(CanvasViewport, fitsEveryImageWhole) {
    const QSizeF images[]{{3'840, 2'160}, {1, 1}, {1, 5'000}, {32'768, 1}, {801, 599}};
    for (const double displayScale : displayScales) {
        for (const QSizeF &image : images) {
            for (const QSizeF &view : {QSizeF(1'280, 800), QSizeF(240, 160), QSizeF(1, 1)}) {
                CanvasViewport viewport = viewportOf({{}, image}, view, displayScale);
                EXPECT_TRUE(viewport.isFit());
                EXPECT_GT(viewport.scale(), 0);
                EXPECT_LE(viewport.scale(), 1);
                expectOnPixels(viewport);
                if (view.width() > 200) {
                    const QRectF shown = viewport.toView(viewport.content());
                    EXPECT_TRUE(QRectF(QPointF(), view).contains(shown));
                    // The dock covers nothing of it.
                    EXPECT_LE(shown.bottom(), view.height() - CanvasViewport::bottomMargin + 1);
                }
                viewport.setScale(1'000, viewport.center());
                EXPECT_EQ(viewport.scale(), CanvasViewport::largestScale);
                viewport.setScale(0, viewport.center());
                EXPECT_EQ(viewport.scale(), viewport.smallestScale());
            }
        }
    }
}

// From the whole to single pixels and back: what the pointer is on does not run away from it.
TEST(CanvasViewport, keepsWhatIsUnderTheAnchorWhileZooming) {
    const QRectF contents[]{{0, 0, 3'840, 2'160}, {100, 200, 1'931, 1'777}};
    for (const double displayScale : displayScales) {
        for (const QRectF &content : contents) {
            for (const QPointF anchor : {QPointF(640, 400), QPointF(500.3, 300.7)}) {
                CanvasViewport viewport = viewportOf(content, {1'280, 800}, displayScale);
                const double first = 1.1 * displayScale;
                viewport.setScale(first, anchor);
                const QPointF meant = viewport.toImage(anchor);
                const auto off = [&] {
                    return QLineF(viewport.toView(meant), anchor).length() * displayScale;
                };
                while (viewport.scale() < CanvasViewport::largestScale) {
                    viewport.setScale(viewport.scale() * 1.07, anchor);
                    // As exactly as one could point at it in the beginning.
                    EXPECT_LE(off(), 0.75 * (1 + viewport.scale() / first)) << viewport.scale();
                    expectOnPixels(viewport);
                }
                while (viewport.scale() > first * 1.07)
                    viewport.setScale(viewport.scale() / 1.07, anchor);
                EXPECT_LE(off(), 1.5);
            }
        }
    }
}

TEST(CanvasViewport, centresWhatIsSmallAndLetsTheRestBePulled) {
    CanvasViewport viewport = viewportOf({0, 0, 100, 2'000}, {800, 600}, 1);
    viewport.setScale(1, viewport.center());
    viewport.pan({200, 0});
    EXPECT_EQ(viewport.toView(QRectF(0, 0, 100, 1)).center().x(), 400);
    viewport.pan({0, 9'000});
    EXPECT_GE(viewport.toView(QPointF()).y(), 0);
    EXPECT_LT(viewport.toView(QPointF()).y(), 300);
    viewport.pan({0, -9'000});
    // The dock does not cover the end.
    EXPECT_EQ(viewport.toView(QPointF(0, 2'000)).y(), 600 - CanvasViewport::bottomMargin);
}

TEST(CanvasViewport, keepsTheMiddleWhenTheWindowIsResized) {
    CanvasViewport viewport = viewportOf({0, 0, 3'840, 2'160}, {1'280, 800}, 1);
    viewport.setScale(2, {640, 400});
    const QPointF middle = viewport.toImage(viewport.center());
    viewport.setView({900, 700}, 1);
    EXPECT_LE(QLineF(viewport.toImage(viewport.center()), middle).length(), 1);
    // To a display with more pixels.
    viewport.setView({900, 700}, 2);
    EXPECT_EQ(viewport.scale(), 2);
    EXPECT_LE(QLineF(viewport.toImage(viewport.center()), middle).length(), 1);
    viewport.fit();
    viewport.setView({400, 300}, 1);
    EXPECT_TRUE(QRectF(0, 0, 400, 300).contains(viewport.toView(viewport.content())));
}

TEST(CanvasViewport, revealsWithAsLittleMotionAsItTakes) {
    CanvasViewport viewport = viewportOf({0, 0, 3'840, 2'160}, {1'280, 800}, 1);
    const CanvasViewport fit = viewport;
    // A whole image that is seen stays as it is, even if something hangs over its edge.
    viewport.reveal({-500, 100, 600, 100});
    EXPECT_EQ(viewport, fit);
    viewport.setScale(2, {0, 0});
    const CanvasViewport before = viewport;
    viewport.reveal({100, 100, 50, 50});
    EXPECT_EQ(viewport, before);
    viewport.reveal({2'000, 1'500, 50, 50});
    EXPECT_TRUE(QRectF(0, 0, 1'280, 800 - CanvasViewport::bottomMargin)
                    .contains(viewport.toView(QRectF(2'000, 1'500, 50, 50))));
}

TEST(CanvasViewport, mapsForthAndBack) {
    for (const double displayScale : displayScales) {
        CanvasViewport viewport = viewportOf({30, 40, 500, 400}, {1'280, 800}, displayScale);
        viewport.setScale(3.7, {100, 100});
        for (const QPointF point : {QPointF(30, 40), QPointF(100.25, 77), QPointF(-3, 900)}) {
            EXPECT_LE(QLineF(viewport.toImage(viewport.toView(point)), point).length(), 1e-9);
            EXPECT_LE(QLineF(viewport.imageToView().map(point), viewport.toView(point)).length(), 1e-9);
        }
    }
}

TEST(CanvasTarget, handlesComeFirstThenTheTopmost) {
    const ScreenshotAnnotation below = shape(Kind::rectangle, {100, 100, 100, 100}, red, 4, true);
    const ScreenshotAnnotation above = shape(Kind::rectangle, {150, 150, 100, 100}, blue, 4, true);
    const ScreenshotAnnotation hollow = shape(Kind::ellipse, {300, 100, 100, 100}, blue, 4);
    const std::vector all{below, above, hollow};
    struct Case {
        const char *name;
        QPointF point;
        QSet<QUuid> selected;
        QUuid id;
        int handle;
    };
    const Case cases[]{
        {"what is seen", {170, 170}, {}, above.id, -1},
        {"a handle through what lies above", {198, 202}, {below.id}, below.id, 4},
        {"no handle of several", {198, 198}, {below.id, above.id}, above.id, -1},
        {"nothing within an outline", {350, 150}, {}, {}, -1},
        {"all of what is selected", {350, 150}, {hollow.id}, hollow.id, -1},
        {"just beside a line", {350, 94}, {}, hollow.id, -1},
        {"a selection that is gone", {170, 170}, {QUuid::createUuid()}, above.id, -1},
    };
    for (const Case &one : cases) {
        const auto target = CanvasTarget::at(one.point, all, one.selected, 1);
        EXPECT_EQ(target ? target->id : QUuid(), one.id) << one.name;
        EXPECT_EQ(target && target->handle ? target->handle->index : -1, one.handle) << one.name;
    }
    // The reach is the display's, not the image's.
    EXPECT_TRUE(CanvasTarget::at({350, 70}, all, {}, 0.15));
    EXPECT_FALSE(CanvasTarget::at({350, 94}, all, {}, 4));
}

TEST(CanvasTarget, everyKindCanBeTakenByItsHandles) {
    const std::pair<ScreenshotAnnotation, std::size_t> cases[]{
        {shape(Kind::rectangle, {100, 100, 100, 100}, red, 4), 8},
        {shape(Kind::rectangle, {100, 100, 100, 10}, red, 4), 6},
        {shape(Kind::rectangle, {100, 100, 10, 10}, red, 4), 1},
        {arrow({10, 10}, {60, 60}, red, 4), 3},
        {make(Kind::line, {{10, 10}, {60, 60}}, red, 4), 2},
        {text({100, 100}, QStringLiteral("words"), 20, red), 1},
        {number({100, 100}, 3, 40, red), 0},
        {pencil({{10, 10}, {60, 60}}, red, 4), 0},
        {make(Kind::line, {}, red, 4), 0}};
    for (const auto &[annotation, count] : cases)
        EXPECT_EQ(CanvasTarget::handlesOf(annotation, 1).size(), count);
}

TEST(ImagePyramid, hasEnoughPixelsForEveryScaleAndSize) {
    for (const QSize size :
         {QSize(1, 1), QSize(1, 5'000), QSize(32'768, 1), QSize(3, 5'000), QSize(1'921, 1'081)}) {
        QImage image(size, QImage::Format_RGB32);
        image.fill(Qt::red);
        const ImagePyramid pyramid(image, size);
        EXPECT_TRUE(pyramid.isFull());
        for (const double scale : {32.0, 1.0, 0.7, 0.3, 0.1, 0.01}) {
            const ImagePyramid::Level &level = pyramid.level(scale);
            const double wanted = std::min(scale, 1.0);
            EXPECT_GE(level.image.width(), std::floor(size.width() * wanted)) << scale;
            EXPECT_GE(level.image.height(), std::floor(size.height() * wanted)) << scale;
            EXPECT_EQ(level.image.pixel(level.image.width() - 1, level.image.height() - 1), qRgb(255, 0, 0));
        }
    }
    EXPECT_TRUE(ImagePyramid(QImage(), {3, 3}).isNull());
    EXPECT_FALSE(ImagePyramid(QImage(10, 10, QImage::Format_RGB32), {20, 20}).isFull());
}

// The part that is seen lies where the image's pixels are, at both ends of whatever it is.
TEST(ImagePart, showsBothEndsOfEveryImageAtEveryScale) {
    for (const QSize size : {QSize(1, 1), QSize(1, 5'000), QSize(32'768, 1), QSize(801, 599)}) {
        QImage image(size, QImage::Format_RGB32);
        image.fill(Qt::white);
        const ImagePyramid pyramid(image, size);
        for (const double scale : {0.05, 0.5, 1.0, 7.0, 32.0}) {
            CanvasViewport viewport = viewportOf({{}, QSizeF(size)}, {640, 400}, 1.5);
            viewport.setScale(scale, {});
            for (const QPointF way : {QPointF(1e6, 1e6), QPointF(-1e6, -1e6)}) {
                viewport.pan(way);
                QImage view(960, 600, QImage::Format_RGB32);
                view.setDevicePixelRatio(1.5);
                view.fill(Qt::black);
                QPainter painter(&view);
                const ImagePart part = ImagePart::of(pyramid, viewport);
                part.draw(painter, part.level->image, part.pixels, viewport);
                painter.end();
                const QRectF shown = viewport.toView(viewport.content()) & QRectF(0, 0, 640, 400);
                const QRect inside = QRectF(shown.topLeft() * 1.5, shown.size() * 1.5).toRect();
                if (inside.width() < 2 || inside.height() < 2)
                    continue;
                for (const QPoint corner : {inside.topLeft(), inside.bottomRight()}) {
                    EXPECT_EQ(view.pixel(corner), qRgb(255, 255, 255))
                        << size.width() << ' ' << scale << ' ' << corner.x() << ' ' << corner.y();
                }
            }
        }
    }
}

} // namespace
} // namespace tembra

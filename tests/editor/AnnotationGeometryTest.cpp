#include "DrawnAnnotations.h"
#include "editor/model/AnnotationPainter.h"
#include "editor/model/AnnotationText.h"
#include "editor/model/ContrastColor.h"
#include "editor/model/NumberBadge.h"

#include <gtest/gtest.h>

namespace tembra {

namespace {

using namespace annotations;
using namespace Qt::StringLiterals;

constexpr QRectF image(0, 0, 400, 300);

TEST(AnnotationGeometry, aShapeFollowsItsHandles) {
    struct Row {
        int handle;
        QPointF to;
        bool preservingAspect;
        QRectF expected;
    };
    // From 100,100 with 100x50.
    const std::vector<Row> rows{
        {0, {90, 80}, false, {90, 80, 110, 70}},
        {1, {0, 120}, false, {100, 120, 100, 30}},
        {2, {250, 90}, false, {100, 90, 150, 60}},
        {3, {260, 0}, false, {100, 100, 160, 50}},
        {4, {110, 110}, false, {100, 100, 10, 10}},
        {5, {0, 290}, false, {100, 100, 100, 190}},
        {6, {50, 160}, false, {50, 100, 150, 60}},
        {7, {150, 0}, false, {150, 100, 50, 50}},
        {3, {70, 0}, false, {70, 100, 30, 50}}, // past the opposite edge it turns over
        {4, {60, 40}, false, {60, 40, 40, 60}},
        {3, {100.25, 0}, false, {100, 100, 1, 50}}, // it never vanishes
        {4, {900, 900}, false, {100, 100, 300, 200}},
        {4, {300, 110}, true, {100, 100, 200, 100}},
        {0, {100, 50}, true, {0, 50, 200, 100}},
        {3, {300, 0}, true, {100, 75, 200, 100}},
        {1, {0, 50}, true, {50, 50, 200, 100}},
        {4, {900, 900}, true, {100, 100, 300, 150}},
        {3, {900, 0}, true, {100, 50, 300, 150}},
        {4, {50, 60}, true, {20, 60, 80, 40}},
        {8, {300, 300}, false, {100, 100, 100, 50}},
        {4, {std::nan(""), 0}, true, {100, 100, 100, 50}},
    };
    const ScreenshotAnnotation before = shape(Kind::rectangle, {100, 100, 100, 50}, red, 4);
    for (const Row &row : rows) {
        const ScreenshotAnnotation after =
            before.resizedShape(row.handle, row.to, row.preservingAspect, image);
        EXPECT_EQ(after.shapeRect(), row.expected) << row.handle << " to " << row.to.x() << "," << row.to.y();
        EXPECT_EQ(after.id, before.id);
    }
}

TEST(AnnotationGeometry, aResizedShapeStaysWithinItsLimitsWhateverIsDragged) {
    const QRectF limits(10, 10, 100, 80);
    for (const QRectF &rect : {QRectF(0, 0, 300, 300), QRectF(10, 10, 100, 80), QRectF(109, 89, 1, 1),
                               QRectF(50, 50, 0, 0), QRectF(60, 60, 30, 0.5)}) {
        for (int handle = 0; handle < 8; ++handle) {
            for (const QPointF to :
                 {QPointF(-50, -50), QPointF(60, 50), QPointF(500, 60), QPointF(110, 90)}) {
                for (const bool preservingAspect : {false, true}) {
                    const QRectF after = shape(Kind::ellipse, rect, red, 4)
                                             .resizedShape(handle, to, preservingAspect, limits)
                                             .shapeRect();
                    const QRectF tolerated = limits.adjusted(-1e-9, -1e-9, 1e-9, 1e-9);
                    EXPECT_GE(after.left(), tolerated.left());
                    EXPECT_GE(after.top(), tolerated.top());
                    EXPECT_LE(after.right(), tolerated.right());
                    EXPECT_LE(after.bottom(), tolerated.bottom());
                }
            }
        }
    }
}

TEST(AnnotationGeometry, isHitWhereItIsSeen) {
    struct Row {
        ScreenshotAnnotation annotation;
        QPointF at;
        double tolerance;
        bool isHit;
    };
    const ScreenshotAnnotation thin = make(Kind::line, {{50, 50}, {150, 50}}, red, 1);
    const ScreenshotAnnotation outlined = shape(Kind::rectangle, {50, 50, 100, 60}, red, 4);
    const ScreenshotAnnotation ellipse = shape(Kind::ellipse, {50, 50, 100, 60}, red, 4);
    const ScreenshotAnnotation filled = shape(Kind::ellipse, {50, 50, 100, 60}, red, 4, true);
    const ScreenshotAnnotation bent = arrow({50, 100}, {150, 100}, red, 6, EditorPoint{100, 50});
    const ScreenshotAnnotation badge = number({100, 100}, 3, 40, red);
    const ScreenshotAnnotation label = text({50, 50}, u"Text"_s, 20, red);
    const ScreenshotAnnotation dot = pencil({{70, 70}}, red, 6);
    const std::vector<Row> rows{
        {thin, {100, 50}, 0, true},     {thin, {100, 53}, 3, true},      {thin, {100, 54}, 3, false},
        {thin, {153, 50}, 3, true},     {outlined, {100, 80}, 3, false}, {outlined, {100, 54}, 3, true},
        {outlined, {150, 80}, 0, true}, {ellipse, {100, 80}, 4, false},  {ellipse, {100, 50}, 0, true},
        {ellipse, {52, 52}, 4, false},  {filled, {100, 80}, 0, true},    {filled, {52, 52}, 0, false},
        {bent, {100, 50}, 0, true},     {bent, {100, 100}, 5, false},    {badge, {100, 118}, 0, true},
        {badge, {118, 118}, 0, false},  {label, {51, 60}, 0, true},      {label, {45, 60}, 3, false},
        {dot, {72, 70}, 0, true},       {dot, {76, 70}, 4, true},        {dot, {std::nan(""), 70}, 4, false},
    };
    for (const Row &row : rows)
        EXPECT_EQ(row.annotation.contains(row.at, row.tolerance), row.isHit)
            << static_cast<int>(row.annotation.kind) << " at " << row.at.x() << "," << row.at.y();
}

TEST(AnnotationGeometry, anArrowIsEditedByItsEndsAndItsMiddle) {
    ScreenshotAnnotation annotation = arrow({10, 20}, {110, 60}, red, 6);
    EXPECT_EQ(annotation.editingPoints(), (std::vector<QPointF>{{10, 20}, {110, 60}, {60, 40}}));
    annotation.bendPoint = EditorPoint{70, 90};
    EXPECT_EQ(annotation.arrowMidpoint(), QPointF(70, 90));
    EXPECT_TRUE(annotation.path().contains(QPointF(70, 90))) << "the curve passes through it";
    EXPECT_EQ(make(Kind::line, {{1, 2}, {3, 4}}, red, 6).editingPoints(),
              (std::vector<QPointF>{{1, 2}, {3, 4}}));
    EXPECT_TRUE(shape(Kind::rectangle, {10, 10, 50, 50}, red, 4).editingPoints().empty());
    EXPECT_TRUE(make(Kind::arrow, {{1, 2}}, red, 6).editingPoints().empty());
}

TEST(AnnotationGeometry, anArrowOfAnyLengthReachesFromEndToEnd) {
    for (const double length : {0.0, 1.0, 4.0, 12.0, 40.0, 300.0}) {
        const QRectF bounds = arrow({50, 50}, {50 + length, 50}, red, 8).path().boundingRect();
        EXPECT_NEAR(bounds.right(), 50 + length, std::max(3.0, length * 0.02)) << length;
        EXPECT_NEAR(bounds.left(), 50, 3) << length;
        EXPECT_LE(bounds.height(), std::max(5.0, length)) << length;
    }
}

TEST(AnnotationGeometry, aPencilStrokeNarrowsTowardsItsEndHoweverFastItWasDrawn) {
    std::vector<EditorPoint> even;
    std::vector<EditorPoint> hasty;
    for (int x = 0; x <= 200; x += 2)
        even.push_back({50.0 + x, 50});
    for (int x = 0; x <= 200; x += x < 100 ? 1 : 25)
        hasty.push_back({50.0 + x, 50});
    for (const auto &samples : {even, hasty}) {
        const QPainterPath path = pencil(samples, red, 10).path();
        const auto reaches = [&](double x, double y) { return path.contains(QPointF(x, 50 + y)); };
        EXPECT_TRUE(reaches(150, 4.9));
        EXPECT_FALSE(reaches(150, 5.1));
        EXPECT_TRUE(reaches(249, 1.5));
        EXPECT_FALSE(reaches(249, 2.0));
        EXPECT_FALSE(reaches(225, 4.9));
    }
}

// Its parts lie over each other many times, which takes the painter its time.
TEST(AnnotationGeometry, aScribbleWithAWidePenHasAnOutlineOfFewPoints) {
    std::vector<EditorPoint> samples;
    for (int at = 0; at < 3'000; ++at)
        samples.push_back({at * 37 % 200 + 50.0, at * 89 % 160 + 40.0});
    EXPECT_LT(pencil(samples, red, 1'000).path().elementCount(), 10'000);
    EXPECT_TRUE(pencil(samples, red, 1'000).contains({150, 120}, 0));
}

TEST(AnnotationGeometry, aBadgeIsACircleUntilItsDigitsNeedMoreAndStaysInTheImage) {
    const ScreenshotAnnotation one = number({380, 290}, 1, 40, red);
    EXPECT_EQ(one.path().boundingRect(), QRectF(360, 270, 40, 40));
    const ScreenshotAnnotation same = one.replacingNumber(2, {0, 0, 400, 400});
    EXPECT_EQ(same.points, one.points);
    EXPECT_EQ(same.number->value, 2);
    EXPECT_EQ(one.replacingNumber(2, image).points[0], (EditorPoint{380, 280}));
    ScreenshotAnnotation wide = one;
    wide.number->fontSize = 30;
    wide = wide.replacingNumber(2'026, image);
    EXPECT_GT(wide.path().boundingRect().width(), 60);
    EXPECT_NEAR(wide.path().boundingRect().right(), 400, 1e-6);
}

TEST(AnnotationText, breaksAWordWithoutEnd) {
    const QString word(5'000, u'W');
    const AnnotationText text(
        {.string = u"A "_s + word, .fontSize = 20, .background = {}, .maximumWidth = 300});
    qsizetype length = 0;
    for (const AnnotationText::Line &line : text.lines()) {
        EXPECT_LE(line.rect.width(), 300);
        length += line.length;
    }
    EXPECT_EQ(length, word.size() + 2);
}

TEST(AnnotationGeometry, theDigitsOfABadgeAreCentredByTheirInk) {
    for (const std::int64_t value : {1, 4, 7, 10, 128, 9'999}) {
        const NumberBadge badge = NumberBadge::of({value, 50, {}}, {100, 60});
        const QRectF ink = badge.digits.boundingRect();
        EXPECT_NEAR(ink.center().x(), 100, 0.01) << value;
        EXPECT_NEAR(ink.center().y(), 60, 0.01) << value;
        EXPECT_LT(ink.width(), badge.body.width() * 0.85) << value;
    }
}

TEST(ContrastColor, isWhiteOnStrongColoursAndDarkOnLightOnes) {
    for (const EditorColor &color : {red, blue, black})
        EXPECT_EQ(contrasting(color), white);
    for (const EditorColor &color : {yellow, orange, green, white})
        EXPECT_LT(relativeLuminance(contrasting(color)), 0.02);
    EXPECT_NEAR(relativeLuminance(white), 1, 1e-9);
}

} // namespace
} // namespace tembra

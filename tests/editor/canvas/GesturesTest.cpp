#include "editor/DrawnAnnotations.h"
#include "editor/canvas/AlignmentGuides.h"
#include "editor/canvas/BandGesture.h"
#include "editor/canvas/DrawingGesture.h"
#include "editor/canvas/MovingGesture.h"
#include "editor/canvas/PencilGesture.h"
#include "editor/canvas/PlacingGesture.h"
#include "editor/canvas/PointGesture.h"
#include "editor/canvas/ResizingGesture.h"
#include "editor/canvas/WordAreas.h"
#include "editor/canvas/WordsGesture.h"
#include "editor/model/AnnotationText.h"
#include "editor/model/NumberBadge.h"
#include "editor/model/RectHandles.h"
#include "support/Annotations.h"

#include <gtest/gtest.h>

#include <cmath>

namespace tembra {
namespace {

using namespace annotations;

const QRectF limits(0, 0, 400, 300);

std::vector<QPointF> pointsOf(const CanvasDraft &draft) {
    std::vector<QPointF> points;
    if (!draft.annotations.empty()) {
        for (const EditorPoint &point : draft.annotations.front().points)
            points.emplace_back(std::round(point.x * 100) / 100, std::round(point.y * 100) / 100);
    }
    return points;
}

ScreenshotAnnotation blurOver(const QRectF &rect) {
    ScreenshotAnnotation blur = annotationOfKind(Kind::blur);
    blur.points = {EditorPoint::from(rect.topLeft()), EditorPoint::from(rect.bottomRight())};
    return blur;
}

TEST(DrawingGesture, drawsFromThePressToThePointer) {
    struct Case {
        const char *name;
        Kind kind;
        QPointF press;
        QPointF pointer;
        Qt::KeyboardModifiers modifiers;
        std::vector<QPointF> points;
    };
    const double diagonal = std::round(100 * 55 / std::sqrt(2) / std::sqrt(2)) / 100;
    const Case cases[]{
        {"free", Kind::line, {10, 10}, {60, 15}, {}, {{10, 10}, {60, 15}}},
        {"level", Kind::line, {10, 10}, {60, 15}, Qt::ShiftModifier, {{10, 10}, {60, 10}}},
        {"diagonal",
         Kind::arrow,
         {10, 10},
         {40, 35},
         Qt::ShiftModifier,
         {{10, 10}, {10 + diagonal, 10 + diagonal}}},
        {"square", Kind::rectangle, {10, 10}, {60, 30}, Qt::ShiftModifier, {{10, 10}, {60, 60}}},
        {"square to the upper left",
         Kind::ellipse,
         {90, 90},
         {60, 80},
         Qt::ShiftModifier,
         {{90, 90}, {60, 60}}},
        {"from the middle", Kind::rectangle, {50, 50}, {70, 60}, Qt::AltModifier, {{30, 40}, {70, 60}}},
        {"square from the middle",
         Kind::rectangle,
         {50, 50},
         {70, 60},
         Qt::AltModifier | Qt::ShiftModifier,
         {{30, 30}, {70, 70}}},
        {"up to the limits", Kind::rectangle, {350, 250}, {500, 290}, {}, {{350, 250}, {400, 290}}},
        {"square up to the limits",
         Kind::blur,
         {350, 200},
         {500, 290},
         Qt::ShiftModifier,
         {{350, 200}, {400, 250}}},
        {"from the middle up to the nearer limit",
         Kind::rectangle,
         {20, 150},
         {100, 170},
         Qt::AltModifier,
         {{0, 145}, {40, 155}}},
        {"square from the middle up to the nearer limit",
         Kind::rectangle,
         {20, 150},
         {100, 170},
         Qt::AltModifier | Qt::ShiftModifier,
         {{0, 130}, {40, 170}}},
        {"from beyond the limits", Kind::line, {-30, 20}, {60, 20}, {}, {{0, 20}, {60, 20}}},
        {"a click", Kind::line, {10, 10}, {12, 11}, {}, {}},
        {"a click from the middle", Kind::line, {10, 10}, {11, 10}, Qt::AltModifier, {}},
    };
    for (const Case &one : cases) {
        DrawingGesture gesture(annotationOfKind(one.kind), one.press, limits, 4);
        EXPECT_EQ(pointsOf(gesture.drag(one.pointer, one.modifiers)), one.points) << one.name;
    }
}

// What has no width or no height would be there without being seen.
TEST(DrawingGesture, makesNothingThatCannotBeSeen) {
    for (const Kind kind : {Kind::arrow, Kind::line, Kind::rectangle, Kind::ellipse, Kind::blur}) {
        for (const bool isFilled : {false, true}) {
            ScreenshotAnnotation prototype = annotationOfKind(kind);
            if (prototype.isShape())
                prototype.filled = isFilled;
            for (const QPointF pointer : {QPointF(80, 20), QPointF(20, 80), QPointF(80, 20.25)}) {
                DrawingGesture gesture(prototype, {20, 20}, limits, 4);
                for (const ScreenshotAnnotation &drawn : gesture.drag(pointer, {}).annotations) {
                    EXPECT_FALSE(drawn.bounds().isEmpty()) << static_cast<int>(kind) << isFilled;
                    EXPECT_TRUE(drawn.contains(drawn.bounds().center(), 1)) << static_cast<int>(kind);
                }
            }
        }
    }
}

TEST(DrawingGesture, namesWhatItDoes) {
    const std::pair<Kind, QString> cases[]{
        {Kind::arrow, QStringLiteral("Draw arrow")},     {Kind::line, QStringLiteral("Draw line")},
        {Kind::pencil, QStringLiteral("Draw stroke")},   {Kind::rectangle, QStringLiteral("Draw rectangle")},
        {Kind::ellipse, QStringLiteral("Draw ellipse")}, {Kind::blur, QStringLiteral("Blur")}};
    for (const auto &[kind, name] : cases)
        EXPECT_EQ(DrawingGesture(annotationOfKind(kind), {}, limits, 4).actionName(), name);
}

TEST(PencilGesture, followsThePointerOrItsDirection) {
    PencilGesture gesture(annotationOfKind(Kind::pencil), {10, 10}, limits, 2);
    EXPECT_EQ(pointsOf(gesture.drag({10, 10}, {})), (std::vector<QPointF>{{10, 10}}));
    (void)gesture.drag({11, 10}, {});
    (void)gesture.drag({20, 14}, {});
    EXPECT_EQ(pointsOf(gesture.drag({500, 14}, {})), (std::vector<QPointF>{{10, 10}, {20, 14}, {400, 14}}));
    EXPECT_EQ(pointsOf(gesture.drag({60, 12}, Qt::ShiftModifier)),
              (std::vector<QPointF>{{10, 10}, {60, 10}}));
    EXPECT_EQ(pointsOf(gesture.drag({12, 90}, Qt::ShiftModifier)),
              (std::vector<QPointF>{{10, 10}, {10, 90}}));
    EXPECT_FALSE(gesture.drag({12, 90}, {}).annotations.front().bounds().isEmpty());
}

class MovingGestureTest : public testing::Test {
protected:
    // The width of its line is no part of what comes into line.
    const ScreenshotAnnotation box = shape(Kind::rectangle, {100, 100, 40, 20}, red, 8);
    const MovingGesture::Surroundings surroundings{limits, {QRectF(200, 50, 60, 30)}, 6};

    [[nodiscard]] QPointF movedTo(QPointF pointer, Qt::KeyboardModifiers modifiers = {}) const {
        MovingGesture gesture({box}, {110, 110}, surroundings, false);
        const auto points = pointsOf(gesture.drag(pointer, modifiers));
        return points.empty() ? QPointF(100, 100) : points.front();
    }
};

TEST_F(MovingGestureTest, movesByWholePixelsAndIntoLine) {
    struct Case {
        const char *name;
        QPointF pointer;
        Qt::KeyboardModifiers modifiers;
        QPointF topLeft;
    };
    const Case cases[]{
        {"an unsteady press", {111, 111}, {}, {100, 100}},
        {"by whole pixels", {130.4, 130.6}, {}, {120, 121}},
        {"its left edge to the left edge", {207, 150}, {}, {200, 140}},
        {"its middle to the middle", {223, 150}, {}, {210, 140}},
        {"its bottom to the top of the other", {130, 43}, {}, {120, 30}},
        {"freely", {207, 150}, Qt::ControlModifier, {197, 140}},
        {"level", {160, 113}, Qt::ShiftModifier, {150, 100}},
        {"upright", {113, 160}, Qt::ShiftModifier, {100, 150}},
        {"no further than where something is seen", {-500, 110}, {}, {-28, 100}},
        {"no further down", {110, 900}, {}, {100, 288}},
    };
    for (const Case &one : cases)
        EXPECT_EQ(movedTo(one.pointer, one.modifiers), one.topLeft) << one.name;
}

TEST_F(MovingGestureTest, moveTogetherAndComeBack) {
    ScreenshotAnnotation bent = arrow({10, 10}, {60, 10}, red, 4, EditorPoint{35, 40});
    MovingGesture gesture({box, bent}, {110, 110}, {limits, {}, 6}, true);
    const CanvasDraft away = gesture.drag({160, 140}, Qt::ControlModifier);
    ASSERT_EQ(away.annotations.size(), 2U);
    EXPECT_EQ(away.annotations[1].bendPoint, (EditorPoint{85, 70}));
    EXPECT_EQ(away.annotations[1].points[1], (EditorPoint{110, 40}));
    EXPECT_EQ(gesture.drag({110, 110}, Qt::ControlModifier).annotations, (std::vector{box, bent}));
    EXPECT_EQ(gesture.actionName(), QStringLiteral("Duplicate"));
}

TEST(AlignmentGuides, linesGoThroughBothAndTheNearestWins) {
    const QRectF targets[]{{0, 0, 400, 300}, {103, 40, 10, 10}};
    const AlignmentGuides guides = AlignmentGuides::of({100, 200, 30, 30}, targets, 6);
    EXPECT_EQ(guides.correction, QPointF(-2, 0));
    EXPECT_EQ(guides.lines, (std::vector{QLineF(113, 40, 113, 230)}));
    EXPECT_TRUE(AlignmentGuides::of({50, 60, 31, 17}, targets, 2).lines.empty());
}

TEST(ResizingGesture, dragsEdgesAndCorners) {
    struct Case {
        const char *name;
        int handle;
        QPointF pointer;
        Qt::KeyboardModifiers modifiers;
        QRectF rect;
    };
    // A rectangle from (100, 100), 80 by 40, that is held by the handle's middle.
    const Case cases[]{
        {"a corner", 4, {200, 160}, {}, {100, 100, 100, 60}},
        {"an edge", 3, {200, 400}, {}, {100, 100, 100, 40}},
        {"the upper edge", 1, {0, 90}, {}, {100, 90, 80, 50}},
        {"turned over", 4, {60, 80}, {}, {60, 80, 40, 20}},
        {"to a pixel", 4, {100, 100}, {}, {100, 100, 1, 1}},
        {"up to the limits", 4, {900, 900}, {}, {100, 100, 300, 200}},
        {"its aspect kept", 4, {260, 150}, Qt::ShiftModifier, {100, 100, 160, 80}},
        {"its aspect kept by an edge", 3, {260, 100}, Qt::ShiftModifier, {100, 80, 160, 80}},
        {"about its middle", 4, {200, 150}, Qt::AltModifier, {80, 90, 120, 60}},
        {"an edge about its middle", 7, {90, 0}, Qt::AltModifier, {90, 100, 100, 40}},
        {"both", 4, {220, 130}, Qt::AltModifier | Qt::ShiftModifier, {60, 80, 160, 80}},
        {"about its middle up to the limits", 3, {390, 120}, Qt::AltModifier, {0, 100, 280, 40}},
        {"both up to the limits", 4, {390, 290}, Qt::AltModifier | Qt::ShiftModifier, {0, 50, 280, 140}},
    };
    for (const Case &one : cases) {
        const ScreenshotAnnotation blur = blurOver({100, 100, 80, 40});
        ResizingGesture gesture(blur, one.handle, rectHandles::position(blur.shapeRect(), one.handle),
                                {limits, {}, 6});
        const CanvasDraft draft = gesture.drag(one.pointer, one.modifiers);
        EXPECT_EQ(draft.annotations.front().shapeRect(), one.rect) << one.name;
    }
}

TEST(ResizingGesture, comesIntoLineUnlessToldNotTo) {
    const std::vector<QRectF> targets{QRectF(200, 150, 20, 20)};
    struct Case {
        int handle;
        Qt::KeyboardModifiers modifiers;
        QRectF rect;
        std::size_t lines;
    };
    const Case cases[]{{4, {}, {100, 100, 100, 50}, 2},
                       {3, {}, {100, 100, 100, 40}, 1},
                       {4, Qt::ControlModifier, {100, 100, 97, 48}, 0},
                       {4, Qt::ShiftModifier, {100, 100, 97, 48.5}, 0}};
    for (const Case &one : cases) {
        const ScreenshotAnnotation blur = blurOver({100, 100, 80, 40});
        ResizingGesture gesture(blur, one.handle, rectHandles::position(blur.shapeRect(), one.handle),
                                {limits, targets, 6});
        const CanvasDraft draft = gesture.drag({197, 148}, one.modifiers);
        EXPECT_EQ(draft.annotations.front().shapeRect(), one.rect);
        EXPECT_EQ(draft.guides.size(), one.lines);
    }
}

// A handle is held where it was taken, and a click on it changes nothing.
TEST(HandleGrip, keepsThePressBesideTheMiddleOfTheHandle) {
    const ScreenshotAnnotation blur = blurOver({100.5, 100.5, 80, 40});
    ResizingGesture resizing(blur, 4, {184, 144}, {limits, {}, 6});
    EXPECT_TRUE(resizing.drag({184, 144}, {}).annotations.empty());
    EXPECT_TRUE(resizing.drag({185, 144}, {}).annotations.empty());
    EXPECT_EQ(resizing.drag({204, 144}, {}).annotations[0].shapeRect(), QRectF(100.5, 100.5, 100.5, 40.5));
    EXPECT_EQ(resizing.drag({184, 144}, {}).annotations.size(), 1U);

    const ScreenshotAnnotation line = arrow({100, 100}, {200, 100}, red, 4);
    PointGesture point(line, 1, {204, 97}, limits, 6);
    EXPECT_TRUE(point.drag({204, 97}, {}).annotations.empty());
    EXPECT_EQ(pointsOf(point.drag({254, 147}, {})), (std::vector<QPointF>{{100, 100}, {250, 150}}));
}

TEST(PointGesture, movesEndsAndCarriesTheBendAlong) {
    const ScreenshotAnnotation bent = arrow({100, 100}, {200, 100}, red, 4, EditorPoint{150, 130});
    // Turned by a quarter and twice as long.
    const CanvasDraft turned = PointGesture(bent, 1, {200, 100}, limits, 6).drag({100, 300}, {});
    EXPECT_EQ(turned.annotations[0].bendPoint, (EditorPoint{40, 200}));
    EXPECT_EQ(pointsOf(turned), (std::vector<QPointF>{{100, 100}, {100, 300}}));
    EXPECT_EQ(pointsOf(PointGesture(bent, 1, {200, 100}, limits, 6).drag({220, 110}, Qt::ShiftModifier)),
              (std::vector<QPointF>{{100, 100}, {220, 100}}));
    EXPECT_EQ(pointsOf(PointGesture(bent, 0, {100, 100}, limits, 6).drag({-40, 100}, {})),
              (std::vector<QPointF>{{0, 100}, {200, 100}}));
}

TEST(PointGesture, keepsTheDirectionAtTheEdgeOfTheImage) {
    const ScreenshotAnnotation line = arrow({350, 100}, {380, 100}, red, 4);
    EXPECT_EQ(pointsOf(PointGesture(line, 1, {380, 100}, limits, 6).drag({450, 195}, Qt::ShiftModifier)),
              (std::vector<QPointF>{{350, 100}, {400, 150}}));
}

TEST(PointGesture, bendsAndStraightens) {
    const ScreenshotAnnotation straight = arrow({100, 100}, {200, 100}, red, 4);
    PointGesture gesture(straight, 2, {150, 100}, limits, 6);
    EXPECT_EQ(gesture.drag({150, 140}, {}).annotations[0].bendPoint, (EditorPoint{150, 140}));
    EXPECT_FALSE(gesture.drag({153, 104}, {}).annotations[0].bendPoint);
    EXPECT_EQ(gesture.actionName(), QStringLiteral("Bend"));
}

TEST(PointGesture, wrapsTextWhereItsEdgeIsDragged) {
    const ScreenshotAnnotation words = text({100, 100}, QStringLiteral("several words in a row"), 20, red);
    const auto widthAt = [&](double x) {
        const QPointF edge = words.bounds().bottomRight();
        const auto draft = PointGesture(words, 0, edge, limits, 6).drag({x, 0}, {});
        return draft.annotations[0].text->maximumWidth;
    };
    EXPECT_DOUBLE_EQ(widthAt(250), 150 - 2 * AnnotationText::horizontalPadding(20));
    EXPECT_DOUBLE_EQ(widthAt(-50), 40);
    EXPECT_DOUBLE_EQ(widthAt(9'000), limits.width());
}

TEST(PlacingGesture, keepsTheBadgeInTheImage) {
    PlacingGesture gesture(number({}, 1'234, 60, red), limits);
    for (const QPointF pointer : {QPointF(-10, -10), QPointF(399, 299), QPointF(200, 1)}) {
        const auto draft = gesture.drag(pointer, {});
        const ScreenshotAnnotation &placed = draft.annotations.front();
        EXPECT_TRUE(limits.contains(NumberBadge::of(*placed.number, placed.points[0].toPointF()).body));
    }
}

TEST(BandGesture, selectsWhatItTouches) {
    const ScreenshotAnnotation hollow = shape(Kind::rectangle, {100, 100, 100, 100}, red, 4);
    const ScreenshotAnnotation covered = blurOver({20, 20, 30, 30});
    const QSet<QUuid> base{QUuid::createUuid()};
    const std::tuple<QPointF, QPointF, QSet<QUuid>> cases[]{{{0, 0}, {25, 25}, {covered.id}},
                                                            // Within the outline nothing is drawn.
                                                            {{120, 120}, {180, 180}, {}},
                                                            {{180, 180}, {220, 150}, {hollow.id}},
                                                            {{300, 300}, {0, 0}, {covered.id, hollow.id}}};
    for (const auto &[from, to, selected] : cases) {
        EXPECT_EQ(BandGesture(std::vector{hollow, covered}, from, {}).drag(to, {}).selection, selected);
        EXPECT_EQ(BandGesture(std::vector{hollow, covered}, from, base).drag(to, {}).selection,
                  selected | base);
    }
}

TEST(WordAreas, hideNeighboursOnALineTogether) {
    struct Case {
        const char *name;
        std::vector<QRectF> words;
        std::vector<QRectF> areas;
    };
    const Case cases[]{
        {"none", {}, {}},
        {"one", {{100, 100, 60, 20}}, {{96, 96, 68, 28}}},
        {"neighbours", {{100, 100, 60, 20}, {170, 102, 40, 18}}, {{96, 96, 118, 28}}},
        {"in any order", {{220, 100, 40, 20}, {100, 100, 50, 20}, {160, 100, 50, 20}}, {{96, 96, 168, 28}}},
        {"far apart on a line",
         {{20, 100, 40, 20}, {120, 100, 40, 20}},
         {{16, 96, 48, 28}, {116, 96, 48, 28}}},
        {"on two lines", {{100, 100, 60, 20}, {100, 124, 60, 20}}, {{96, 96, 68, 28}, {96, 120, 68, 28}}},
        {"one within another", {{100, 100, 100, 50}, {120, 110, 20, 10}}, {{91, 91, 118, 68}}},
        {"at the edge", {{0, 0, 40, 20}}, {{0, 0, 44, 24}}},
        {"tiny", {{50.2, 50.2, 1, 1}}, {{48, 48, 6, 6}}},
        {"beyond the image", {{500, 10, 20, 20}}, {}},
    };
    for (const Case &one : cases)
        EXPECT_EQ(WordAreas::hiding(one.words, limits), one.areas) << one.name;
}

TEST(WordsGesture, hidesWhatIsClickedOrDraggedOver) {
    const std::vector<QRectF> words{{20, 20, 40, 20}, {70, 20, 40, 20}, {20, 80, 40, 20}};
    WordsGesture gesture(annotationOfKind(Kind::blur), {17, 30}, words, limits, 4);
    const CanvasDraft clicked = gesture.drag({17, 30}, {});
    ASSERT_EQ(clicked.annotations.size(), 1U);
    EXPECT_TRUE(clicked.annotations[0].shapeRect().contains(words[0]));
    const CanvasDraft dragged = gesture.drag({90, 90}, {});
    EXPECT_EQ(dragged.words.size(), 3U);
    ASSERT_EQ(dragged.annotations.size(), 2U);
    // The same blur grows, so that it is one thing from frame to frame.
    EXPECT_EQ(dragged.annotations[0].id, clicked.annotations[0].id);
    EXPECT_NE(dragged.annotations[1].id, clicked.annotations[0].id);
    EXPECT_TRUE(WordsGesture(annotationOfKind(Kind::blur), {200, 200}, words, limits, 4)
                    .drag({200, 200}, {})
                    .annotations.empty());
}

} // namespace
} // namespace tembra

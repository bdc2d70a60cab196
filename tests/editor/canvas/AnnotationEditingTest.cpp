#include "editor/canvas/AnnotationEditing.h"

#include "editor/DrawnAnnotations.h"
#include "editor/canvas/EditorToolStyles.h"
#include "editor/canvas/ToolKeys.h"
#include "editor/model/ContrastColor.h"
#include "editor/model/EditorDrawingPreferences.h"
#include "support/Annotations.h"
#include "support/MemoryUserDefaults.h"

#include <gtest/gtest.h>

#include <limits>

namespace tembra {
namespace {

using namespace annotations;
using namespace annotationEditing;

constexpr QRectF limits(0, 0, 400, 300);
constexpr std::array everyKind{Kind::arrow,   Kind::pencil, Kind::line,   Kind::rectangle,
                               Kind::ellipse, Kind::text,   Kind::number, Kind::blur};

TEST(AnnotationEditing, makesWhatTheStyleSaysAndTellsItAgain) {
    for (const Kind kind : everyKind) {
        const EditorStyle style{.color = blue,
                                .size = 30,
                                .isFilled = true,
                                .hasBackground = true,
                                .strength = EditorBlur::Strength::strong};
        ScreenshotAnnotation made = annotationEditing::made(kind, style);
        made.points = {{10, 10}, {60, 40}};
        EXPECT_TRUE(made.hasValidPayload()) << static_cast<int>(kind);
        EXPECT_TRUE(made.isDrawable()) << static_cast<int>(kind);
        const EditorStyle told = styleOf(made);
        if (kind != Kind::blur) {
            EXPECT_EQ(told.color, blue) << static_cast<int>(kind);
            EXPECT_EQ(told.size, 30) << static_cast<int>(kind);
        }
        EXPECT_EQ(told.isFilled, made.isShape());
        EXPECT_EQ(told.hasBackground || kind != Kind::text, true);
        EXPECT_EQ(told.strength == EditorBlur::Strength::strong, kind == Kind::blur);
    }
}

// Of every change each kind takes what it has, and stays sound.
TEST(AnnotationEditing, changesOnlyWhatAKindHas) {
    struct Case {
        const char *name;
        EditorStyleChange change;
        std::vector<Kind> changed;
    };
    const std::vector<Kind> drawn{Kind::arrow,   Kind::pencil, Kind::line,  Kind::rectangle,
                                  Kind::ellipse, Kind::text,   Kind::number};
    const Case cases[]{{"color", {.color = green}, drawn},
                       {"size", {.size = 50}, drawn},
                       {"tiny size", {.size = -5}, drawn},
                       {"huge size", {.size = 1e9}, drawn},
                       {"steps", {.sizeSteps = 3}, drawn},
                       {"filled", {.isFilled = true}, {Kind::rectangle, Kind::ellipse}},
                       {"background", {.hasBackground = true}, {Kind::text}},
                       {"strength", {.strength = EditorBlur::Strength::light}, {Kind::blur}},
                       {"number", {.number = 77}, {Kind::number}},
                       {"straight", {.straightens = true}, {Kind::arrow}}};
    for (const Case &one : cases) {
        for (const Kind kind : everyKind) {
            ScreenshotAnnotation annotation = annotationOfKind(kind);
            if (kind == Kind::arrow)
                annotation.bendPoint = EditorPoint{30, 60};
            const ScreenshotAnnotation changed = restyled(annotation, one.change, limits);
            EXPECT_EQ(changed != annotation, std::ranges::count(one.changed, kind) == 1)
                << one.name << static_cast<int>(kind);
            EXPECT_TRUE(changed.hasValidPayload()) << one.name << static_cast<int>(kind);
            EXPECT_EQ(changed.id, annotation.id);
        }
    }
}

TEST(AnnotationEditing, lettersStayReadableOnTheirBackground) {
    const ScreenshotAnnotation plain = text({10, 10}, QStringLiteral("x"), 20, yellow);
    const ScreenshotAnnotation boxed = restyled(plain, {.hasBackground = true}, limits);
    EXPECT_EQ(boxed.text->background, yellow);
    EXPECT_EQ(boxed.color, contrasting(yellow));
    const ScreenshotAnnotation recolored = restyled(boxed, {.color = blue}, limits);
    EXPECT_EQ(recolored.text->background, blue);
    EXPECT_EQ(recolored.color, contrasting(blue));
    EXPECT_EQ(restyled(boxed, {.hasBackground = false}, limits).color, yellow);
}

TEST(AnnotationEditing, stepsOfSizeComeBack) {
    for (int size = 1; size <= 1'024; ++size) {
        for (const int steps : {1, 4}) {
            EXPECT_EQ(steppedSize(steppedSize(size, steps), -steps), size) << size;
            EXPECT_GT(steppedSize(size, steps), size);
        }
    }
}

TEST(AnnotationEditing, growsAsTheKeysSay) {
    const auto grown = [](const ScreenshotAnnotation &one, QPointF by, const QRectF &within = limits) {
        return grownBy(one, by, within);
    };
    const ScreenshotAnnotation box = shape(Kind::rectangle, {10, 10, 20, 20}, red, 4);
    EXPECT_EQ(grown(box, {5, -3}).shapeRect(), QRectF(10, 10, 25, 17));
    EXPECT_EQ(grown(box, {-90, 0}).shapeRect(), QRectF(0, 10, 10, 20));
    EXPECT_EQ(grown(box, {1'000, 0}).shapeRect(), QRectF(10, 10, 390, 20));
    EXPECT_EQ(grown(arrow({10, 10}, {20, 20}, red, 4), {0, 7}).points[1], (EditorPoint{20, 27}));
    const ScreenshotAnnotation badge = number({50, 50}, 3, 40, red);
    EXPECT_EQ(grown(badge, {9, 9}), badge);
}

// What is typed is as wide as its words, however far away the edge is at which it would wrap.
TEST(AnnotationEditing, aTextWrapsAsSoonAsItIsMadeNarrower) {
    const ScreenshotAnnotation words = text({10, 10}, QStringLiteral("several words in a row"), 20, red);
    const double width = words.path().boundingRect().width();
    EXPECT_LT(grownBy(words, {-10, 0}, limits).path().boundingRect().width(), width);
    // In an image that is narrower than two letters.
    const QRectF narrow(0, 0, 12, 300);
    for (const double by : {-1.0, 1.0, -50.0})
        EXPECT_TRUE(grownBy(words, {by, 0}, narrow).hasValidPayload());
    ScreenshotAnnotation wrapped = words;
    wrapped.text->maximumWidth = 100;
    EXPECT_EQ(grownBy(wrapped, {10, 0}, limits).text->maximumWidth, 110);
}

TEST(EditorToolStyles, keepsEveryKindsStyleByTheImagesUnit) {
    MemoryUserDefaults defaults;
    EditorToolStyles styles(defaults);
    const QSizeF window(1'280, 800);
    const QSizeF large(2'560, 1'600);
    EXPECT_EQ(styles.style(Kind::line, large).size, 2 * styles.style(Kind::line, window).size);
    EXPECT_GT(styles.style(Kind::line, {3'840, 2'160}).size, 12);

    EditorStyle style = styles.style(Kind::rectangle, large);
    style.size = 20;
    style.isFilled = true;
    style.color = EditorColor::from(QColor(1, 200, 3));
    styles.remember(Kind::rectangle, style, large);
    const EditorToolStyles again(defaults);
    EXPECT_EQ(again.style(Kind::rectangle, large), style);
    EXPECT_EQ(again.style(Kind::rectangle, window).size, 10);
    EXPECT_FALSE(again.style(Kind::ellipse, window).isFilled);
    EXPECT_EQ(again.style(Kind::ellipse, window).color, style.color);
    const int writes = defaults.writes();
    styles.remember(Kind::rectangle, style, large);
    EXPECT_EQ(defaults.writes(), writes);
}

TEST(EditorToolStyles, doesNotTrustWhatWasKept) {
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const QList<double> broken[]{
        {}, {4}, {nan, 0, 0, 16}, {-4, 0, 0, 16}, {1e308, 1, 1, 1e308}, {0, 0, 0, -1e9}};
    for (const QList<double> &kept : broken) {
        for (const Kind kind : everyKind) {
            MemoryUserDefaults defaults;
            for (const char *name :
                 {"arrow", "pencil", "line", "rectangle", "ellipse", "text", "number", "blur"})
                defaults.setNumberArray(QStringLiteral("editor.style.") + QString::fromLatin1(name), kept);
            const EditorStyle style = EditorToolStyles(defaults).style(kind, {100, 100});
            ScreenshotAnnotation annotation = made(kind, style);
            annotation.points = {{10, 10}, {60, 40}};
            EXPECT_TRUE(annotation.isDrawable());
            EXPECT_EQ(style.color, EditorDrawingPreferences::defaultColor);
        }
    }
}

} // namespace
} // namespace tembra

#include "editor/model/AnnotationPainter.h"

#include "DrawnAnnotations.h"
#include "editor/model/AnnotationText.h"

#include <QImage>
#include <QPainter>

#include <gtest/gtest.h>

#include <limits>

namespace tembra {
namespace {

using namespace annotations;
using namespace Qt::StringLiterals;

QImage drawn(const std::vector<ScreenshotAnnotation> &list, const std::optional<QUuid> &edited = {}) {
    QImage image(240, 160, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    drawAnnotations(list, painter, edited);
    return image;
}

QRect inkOf(const QImage &image) {
    QRect ink;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (qAlpha(image.pixel(x, y)) > 0)
                ink |= QRect(x, y, 1, 1);
        }
    }
    return ink;
}

TEST(AnnotationPainter, drawsWithinTheBoundsAndFillsThem) {
    const std::vector<ScreenshotAnnotation> list{
        arrow({30, 30}, {180, 90}, red, 9),
        arrow({30, 130}, {200, 120}, red, 9, EditorPoint{100, 30}),
        arrow({50.3, 50.7}, {53, 51}, red, 6),
        pencil(loops({40, 40, 150, 60}, 60), yellow, 12),
        pencil({{80.4, 80.1}}, red, 5),
        make(Kind::line, {{20, 120}, {200, 40}}, yellow, 1),
        shape(Kind::rectangle, {40, 40, 90, 50}, blue, 7),
        shape(Kind::rectangle, {40.5, 40.5, 90, 50}, blue, 7, true),
        shape(Kind::ellipse, {40, 40, 90, 50}, orange, 7),
        shape(Kind::ellipse, {40, 40, 90, 50}, translucent(orange, 0.5), 7, true),
        number({100, 80}, 12, 40, red),
        number({100, 80}, 9999, 16, white),
    };
    for (const ScreenshotAnnotation &annotation : list) {
        const QRect bounds = annotation.bounds().toAlignedRect();
        const QRect ink = inkOf(drawn({annotation}));
        EXPECT_TRUE(bounds.contains(ink)) << static_cast<int>(annotation.kind);
        EXPECT_TRUE(ink.adjusted(-4, -4, 4, 4).contains(bounds)) << static_cast<int>(annotation.kind);
    }
    const ScreenshotAnnotation boxed = text({20, 20}, u"Text\nof a box"_s, 20, red, blue);
    EXPECT_EQ(inkOf(drawn({boxed})), boxed.bounds().toAlignedRect());
    const ScreenshotAnnotation piled = text({60, 60}, u"a"_s + QString(40, QChar(0x301)), 20, red);
    EXPECT_TRUE(piled.bounds().toAlignedRect().contains(inkOf(drawn({piled}))));
}

TEST(AnnotationPainter, fillsATranslucentMarkEvenlyWhereItCrossesItself) {
    const EditorColor half = translucent(red, 0.5);
    ScreenshotAnnotation cross = pencil({{40, 80}, {200, 80}, {120, 20}, {120, 140}}, half, 16);
    cross.pencil.reset();
    const QImage image = drawn({cross, arrow({20, 150}, {230, 150}, half, 6)});
    EXPECT_EQ(image.pixel(120, 80), image.pixel(60, 80));
    EXPECT_EQ(image.pixel(120, 80), image.pixel(120, 110));
    EXPECT_EQ(image.pixel(60, 150), image.pixel(220, 150)) << "shaft and head are one";
    EXPECT_NEAR(qAlpha(image.pixel(60, 80)), 128, 1) << "no edge beneath";
}

TEST(AnnotationPainter, drawsLaterOnesOnTopAndLeavesOutTheEditedText) {
    const ScreenshotAnnotation below = shape(Kind::rectangle, {20, 20, 100, 100}, red, 4, true);
    const ScreenshotAnnotation above = shape(Kind::rectangle, {60, 60, 100, 80}, blue, 4, true);
    EXPECT_EQ(drawn({below, above}).pixel(100, 100), blue.toColor().rgb());
    EXPECT_EQ(drawn({above, below}).pixel(100, 100), red.toColor().rgb());
    const ScreenshotAnnotation label = text({20, 20}, u"Text"_s, 20, red, blue);
    EXPECT_EQ(drawn({below, label}, label.id), drawn({below}));
    EXPECT_EQ(drawn({below}, below.id), drawn({below})) << "only texts are edited so";
}

TEST(AnnotationPainter, isSeenOnItsOwnColour) {
    for (const EditorColor &color : {red, yellow, white, black}) {
        QImage image(100, 60, QImage::Format_ARGB32_Premultiplied);
        image.fill(color.toColor());
        const QImage empty = image;
        QPainter painter(&image);
        const std::vector list{make(Kind::line, {{20, 30}, {80, 30}}, color, 6)};
        drawAnnotations(list, painter);
        painter.end();
        EXPECT_NE(image, empty);
        EXPECT_EQ(image.pixel(50, 30), empty.pixel(50, 30));
    }
}

TEST(AnnotationPainter, leavesOutWhatCannotBeDrawn) {
    constexpr double nan = std::numeric_limits<double>::quiet_NaN();
    ScreenshotAnnotation noText = text({10, 10}, u"Text"_s, 20, red);
    noText.text.reset();
    ScreenshotAnnotation blur = shape(Kind::blur, {10, 10, 50, 50}, red, 4);
    blur.filled.reset();
    blur.blur = EditorBlur{};
    EXPECT_FALSE(blur.bounds().isEmpty());
    const std::vector<ScreenshotAnnotation> list{
        blur,
        noText,
        make(Kind::arrow, {{10, 10}}, red, 5),
        make(Kind::pencil, {}, red, 5),
        make(Kind::line, {{10, nan}, {50, 50}}, red, 5),
        make(Kind::line, {{10, 10}, {50, 50}}, red, -5),
        make(Kind::line, {{10, 10}, {50, 50}}, red, nan),
        make(Kind::line, {{10, 10}, {50, 50}}, red, 0),
        make(Kind::line, {{10, 10}, {50, 50}}, translucent(red, nan), 5),
        shape(Kind::rectangle, {10, 10, 0, 40}, red, 5, true),
        text({10, 10}, {}, 20, red),
    };
    EXPECT_TRUE(inkOf(drawn(list)).isEmpty());
}

// Each of these once took minutes.
TEST(AnnotationPainter, bearsWhatNobodyDraws) {
    std::vector<EditorPoint> scattered;
    for (std::int64_t at = 0; at < 300'000; ++at)
        scattered.push_back({static_cast<double>(at * 7'919 % 240), static_cast<double>(at * 104'729 % 160)});
    const std::vector<ScreenshotAnnotation> list{
        pencil(scattered, red, 3),
        arrow({-1e6, -1e6}, {1e6, 1e6}, red, 1e6, EditorPoint{1e6, -1e6}),
        shape(Kind::ellipse, {-1e6, -1e6, 2e6, 2e6}, translucent(red, 0.5), 1e6),
        text({5, 5}, QString(100'000, u'\n'), 16, red, blue),
        text({5, 5}, u"word "_s.repeated(20'000), 16, red, {}, 200),
        number({50, 50}, std::numeric_limits<std::int64_t>::min(), 40, red),
    };
    EXPECT_FALSE(inkOf(drawn(list)).isEmpty());
}

TEST(AnnotationText, wrapsWhereTheTextIsWiderThanItsBox) {
    const auto linesOf = [](const QString &string, double width) {
        const AnnotationText layout(EditorText{string, 20, {}, width});
        QStringList lines;
        for (const AnnotationText::Line &line : layout.lines()) {
            EXPECT_LE(line.rect.width(), width + 0.1);
            EXPECT_LE(line.rect.right(), layout.size().width());
            EXPECT_LE(line.rect.bottom(), layout.size().height());
            lines += string.mid(line.start, line.length).trimmed();
        }
        return lines;
    };
    EXPECT_EQ(linesOf(u"one two"_s, 1'000), QStringList{u"one two"_s});
    EXPECT_EQ(linesOf(u"one two"_s, 60), (QStringList{u"one"_s, u"two"_s}));
    EXPECT_EQ(linesOf(u"a\n\nb"_s, 60), (QStringList{u"a"_s, {}, u"b"_s}));
    EXPECT_GT(linesOf(u"Donaudampfschifffahrt"_s, 60).size(), 2);
    EXPECT_EQ(linesOf(u"Donaudampfschifffahrt"_s, 60).join(QString()), u"Donaudampfschifffahrt"_s);
}

TEST(AnnotationText, isAsLargeAsItsTypeAtEverySize) {
    const auto sizeOf = [](double fontSize) {
        return AnnotationText(EditorText{u"Text of a box"_s, fontSize, {}, 10'000}).size();
    };
    const QSizeF large = sizeOf(100);
    for (const double fontSize : {8.0, 12.5, 19.9, 256.0}) {
        EXPECT_NEAR(sizeOf(fontSize).width(), large.width() * fontSize / 100, fontSize * 0.1);
        EXPECT_NEAR(sizeOf(fontSize).height(), large.height() * fontSize / 100, fontSize * 0.1);
    }
}

TEST(AnnotationText, beginsRightToLeftTextsAtTheRight) {
    const AnnotationText layout(EditorText{u"שלום עולם\nשלום\nabc"_s, 20, {}, 10'000});
    ASSERT_EQ(layout.lines().size(), 3U);
    EXPECT_NEAR(layout.lines()[1].rect.right(), layout.lines()[0].rect.right(), 0.1);
    EXPECT_NEAR(layout.lines()[2].rect.left(), layout.lines()[0].rect.left(), 0.1);
}

} // namespace
} // namespace tembra

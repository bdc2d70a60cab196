#include "editor/canvas/AnnotationCommands.h"

#include "editor/DrawnAnnotations.h"
#include "editor/canvas/EditedDocument.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace tembra {
namespace {

using namespace annotations;
using Order = AnnotationCommands::Order;

class AnnotationCommandsTest : public testing::Test {
protected:
    const QRectF limits{0, 0, 1'280, 800};
    // a to e, each further to the right.
    std::vector<ScreenshotAnnotation> boxes = [] {
        std::vector<ScreenshotAnnotation> result;
        for (int at = 0; at < 5; ++at)
            result.push_back(shape(Kind::rectangle, QRectF(50 + 100 * at, 50, 60, 40), red, 4));
        return result;
    }();
    ScreenshotEditDocument document{loadedWith(boxes, {1'280, 800})};
    FakePasteboard pasteboard;

    [[nodiscard]] AnnotationCommands commands() { return {document, limits}; }
    void select(const QString &letters) { document.setSelectedIDs(ids(letters)); }
    [[nodiscard]] QSet<QUuid> ids(const QString &letters) const {
        QSet<QUuid> result;
        for (const QChar letter : letters)
            result.insert(boxes[static_cast<std::size_t>(letter.unicode() - u'a')].id);
        return result;
    }
    [[nodiscard]] QString order() const {
        QString letters;
        for (const ScreenshotAnnotation &one : document.annotations()) {
            const auto known = std::ranges::find(boxes, one.id, &ScreenshotAnnotation::id);
            letters +=
                known == boxes.end() ? QChar(u'?') : QChar(u'a' + static_cast<int>(known - boxes.begin()));
        }
        return letters;
    }
    [[nodiscard]] QString selected() const {
        QString letters;
        for (const QChar letter : QStringLiteral("abcde")) {
            if ((ids(letter) & document.selectedIDs()).size() == 1)
                letters += letter;
        }
        return letters;
    }
    void useOnly(const std::vector<ScreenshotAnnotation> &annotations) {
        document.apply(annotations, {}, QStringLiteral("Test"));
        document.history().clear();
        commands().selectAll();
    }
};

TEST_F(AnnotationCommandsTest, ordersSeveralWithoutMixingThem) {
    const std::tuple<QString, Order, QString> cases[]{
        {QStringLiteral("b"), Order::forward, QStringLiteral("acbde")},
        {QStringLiteral("bd"), Order::forward, QStringLiteral("acbed")},
        {QStringLiteral("de"), Order::forward, QStringLiteral("abcde")},
        {QStringLiteral("ce"), Order::forward, QStringLiteral("abdce")},
        {QStringLiteral("bd"), Order::backward, QStringLiteral("badce")},
        {QStringLiteral("ac"), Order::backward, QStringLiteral("acbde")},
        {QStringLiteral("db"), Order::front, QStringLiteral("acebd")},
        {QStringLiteral("db"), Order::back, QStringLiteral("bdace")},
        {QStringLiteral("abcde"), Order::back, QStringLiteral("abcde")},
        {{}, Order::front, QStringLiteral("abcde")}};
    for (const auto &[letters, way, expected] : cases) {
        select(letters);
        commands().order(way);
        EXPECT_EQ(order(), expected);
        EXPECT_EQ(document.history().canUndo(), expected != QStringLiteral("abcde"));
        document.history().undo();
        EXPECT_EQ(order(), QStringLiteral("abcde"));
        document.history().clear();
    }
}

TEST_F(AnnotationCommandsTest, nudgesOfTheSameAreOneStep) {
    select(QStringLiteral("ab"));
    for (int time = 0; time < 5; ++time)
        commands().nudge({1, 0});
    select(QStringLiteral("a"));
    commands().nudge({0, 10});
    commands().grow({4, 0});
    EXPECT_EQ(document.annotations()[0].shapeRect(), QRectF(55, 60, 64, 40));
    EXPECT_EQ(document.annotations()[1].shapeRect(), QRectF(155, 50, 60, 40));
    EXPECT_EQ(document.history().count(), 3);
    document.history().setIndex(0);
    EXPECT_EQ(document.annotations(), boxes);
}

TEST_F(AnnotationCommandsTest, nudgesStayInTheImageAndComeBackIntoIt) {
    select(QStringLiteral("a"));
    for (int time = 0; time < 50; ++time)
        commands().nudge({-10, 0});
    EXPECT_TRUE(document.annotations()[0].bounds().intersects(limits));
    // A crop has left it outside.
    AnnotationCommands cropped(document, {600, 0, 200, 200});
    for (int time = 0; time < 100; ++time)
        cropped.nudge({10, 0});
    EXPECT_GT(document.annotations()[0].bounds().left(), 700);
    EXPECT_LT(document.annotations()[0].bounds().left(), 800);
}

TEST_F(AnnotationCommandsTest, copiesLieBesideTheirOriginalsAndAreSelected) {
    select(QStringLiteral("ae"));
    commands().duplicate();
    ASSERT_EQ(order(), QStringLiteral("abcde??"));
    EXPECT_EQ(document.selectedIDs().size(), 2);
    EXPECT_EQ(selected(), QString());
    EXPECT_EQ(document.annotations()[5].shapeRect(), QRectF(66, 66, 60, 40));
    document.history().undo();
    EXPECT_EQ(document.annotations(), boxes);
    // At the lower right there is room on the other side.
    useOnly({shape(Kind::rectangle, {1'200, 740, 70, 50}, red, 4)});
    commands().duplicate();
    EXPECT_EQ(document.annotations()[1].shapeRect(), QRectF(1'184, 724, 70, 50));
}

TEST_F(AnnotationCommandsTest, numbersCopiesOnUntilTheyEnd) {
    useOnly({number({100, 100}, 4, 40, red), number({200, 100}, 9'996, 40, red)});
    commands().duplicate();
    ASSERT_EQ(document.annotations().size(), 4U);
    EXPECT_EQ(document.annotations()[2].number->value, 9'997);
    EXPECT_EQ(document.annotations()[3].number->value, 9'998);
    EXPECT_TRUE(commands().copy(pasteboard));
    offerWhatWasCopied(pasteboard);
    commands().duplicate();
    EXPECT_FALSE(commands().paste(pasteboard, {100, 100}));
    EXPECT_EQ(document.annotations().size(), 4U);
}

TEST_F(AnnotationCommandsTest, pastesWhereCopiesAreSeen) {
    select(QStringLiteral("ab"));
    ASSERT_TRUE(commands().copy(pasteboard));
    offerWhatWasCopied(pasteboard);
    QSet<QPair<double, double>> places;
    for (const ScreenshotAnnotation &box : boxes)
        places.insert({box.points[0].x, box.points[0].y});
    for (int time = 1; time <= 3; ++time) {
        EXPECT_TRUE(commands().paste(pasteboard, {600, 400}));
        EXPECT_EQ(document.selectedIDs().size(), 2);
        for (const ScreenshotAnnotation &copy : document.selectedAnnotations())
            places.insert({copy.points[0].x, copy.points[0].y});
    }
    // None hides another.
    EXPECT_EQ(places.size(), 5 + 6);

    // In a document that lacks the originals they keep their places, in one that is too small they come to
    // where the user looks.
    ScreenshotEditDocument other(loadedWith({}, {1'280, 800}));
    EXPECT_TRUE(AnnotationCommands(other, limits).paste(pasteboard, {600, 400}));
    EXPECT_EQ(other.annotations()[0].points, boxes[0].points);
    EXPECT_NE(other.annotations()[0].id, boxes[0].id);
    ScreenshotEditDocument small(loadedWith({}, {150, 60}));
    EXPECT_TRUE(AnnotationCommands(small, {0, 0, 150, 60}).paste(pasteboard, {75, 30}));
    EXPECT_TRUE(QRectF(0, 0, 150, 60).intersects(small.annotations()[0].bounds()));
}

TEST_F(AnnotationCommandsTest, pastesNothingThatIsNotSound) {
    const QByteArray broken[]{{}, "x", "{}", R"({"version":2,"annotations":[]})", R"({"version":9})"};
    for (const QByteArray &data : broken) {
        pasteboard.offered.setData(EditorObjectClipboard::type, data);
        EXPECT_FALSE(commands().paste(pasteboard, {10, 10})) << data.toStdString();
    }
    EXPECT_FALSE(document.history().canUndo());
}

TEST_F(AnnotationCommandsTest, cutsOnlyWhatTheClipboardTook) {
    select(QStringLiteral("bc"));
    pasteboard.refuses = true;
    EXPECT_FALSE(commands().cut(pasteboard));
    EXPECT_EQ(order(), QStringLiteral("abcde"));
    pasteboard.refuses = false;
    EXPECT_TRUE(commands().cut(pasteboard));
    EXPECT_EQ(order(), QStringLiteral("ade"));
}

TEST_F(AnnotationCommandsTest, selectsOneAfterTheOther) {
    for (const QChar letter : QStringLiteral("abcde")) {
        EXPECT_TRUE(commands().selectNext(false));
        EXPECT_EQ(selected(), letter);
    }
    EXPECT_FALSE(commands().selectNext(false));
    EXPECT_TRUE(commands().selectNext(true));
    EXPECT_EQ(selected(), QStringLiteral("d"));
    select(QStringLiteral("bd"));
    EXPECT_TRUE(commands().selectNext(false));
    EXPECT_EQ(selected(), QStringLiteral("e"));
    select({});
    EXPECT_TRUE(commands().selectNext(true));
    EXPECT_EQ(selected(), QStringLiteral("e"));
    select(QStringLiteral("a"));
    EXPECT_FALSE(commands().selectNext(true));
    useOnly({});
    EXPECT_FALSE(commands().selectNext(false));
    EXPECT_FALSE(commands().selectNext(true));
}

TEST_F(AnnotationCommandsTest, namesAndGathersChangesOfStyle) {
    const ScreenshotAnnotation badge = number({100, 100}, 4, 40, red);
    const ScreenshotAnnotation words = text({200, 100}, QStringLiteral("words"), 20, red);
    const std::tuple<std::vector<ScreenshotAnnotation>, EditorStyleChange, QString> cases[]{
        {{badge}, {.sizeSteps = 2}, QStringLiteral("Change number size")},
        {{badge}, {.number = 7}, QStringLiteral("Change number")},
        {{words}, {.color = green}, QStringLiteral("Change text style")},
        {{words, badge}, {.sizeSteps = 1}, QStringLiteral("Change style")},
        {{arrow({0, 0}, {9, 9}, red, 4, EditorPoint{3, 9})},
         {.straightens = true},
         QStringLiteral("Straighten")}};
    for (const auto &[annotations, change, name] : cases) {
        useOnly(annotations);
        commands().restyle(change);
        EXPECT_EQ(document.history().undoText(), name);
    }
    useOnly({words});
    commands().restyle({.sizeSteps = 1});
    commands().restyle({.sizeSteps = 1});
    commands().restyle({.hasBackground = true});
    EXPECT_EQ(document.history().count(), 2);
    commands().restyle({.hasBackground = true});
    EXPECT_EQ(document.history().count(), 2);
}

} // namespace
} // namespace tembra

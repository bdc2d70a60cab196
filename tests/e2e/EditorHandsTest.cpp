#include "EditorStories.h"

#include <QFileInfo>
#include <QJsonArray>

#include <array>

using namespace tembra;

namespace {

struct Drawn {
    const char *kind;
    // On what is drawn.
    QPointF place;
};

QStringList kindsOf(const QJsonObject &record) {
    QStringList kinds;
    const QJsonArray annotations = record[u"annotations"].toArray();
    for (const QJsonValue annotation : annotations)
        kinds += annotation[u"kind"].toString();
    return kinds;
}

} // namespace

TEST_F(EditorStories, whatIsDrawnWithEveryToolIsInTheFileAndStaysEditable) {
    const QString shot = shootWords(1);
    start(1);
    ASSERT_TRUE(hands.open(shot)) << tembra.log().toStdString();

    EXPECT_TRUE(hands.take("a", "arrow"));
    hands.drag({{60, 200}, {150, 200}, {260, 200}});
    hands.drag({{160, 200}, {160, 150}, {160, 120}});
    hands.press({text("4"), text("bracketright")});
    EXPECT_TRUE(hands.take("p", "pencil"));
    hands.drag({{320, 120}, {340, 200}, {360, 120}, {380, 200}});
    EXPECT_TRUE(hands.clickControl(text("Line")));
    EXPECT_TRUE(hands.clickControl(text("Green")));
    hands.drag({{420, 120}, {440, 140}, {500, 200}});
    EXPECT_TRUE(hands.take("r", "rectangle"));
    hands.drag({{540, 120}, {580, 150}, {640, 200}});
    EXPECT_TRUE(hands.clickControl(text("Filled")));
    EXPECT_TRUE(hands.take("o", "ellipse"));
    hands.drag({{680, 120}, {700, 150}, {770, 200}});
    EXPECT_TRUE(hands.take("t", "text"));
    hands.click({60, 300});
    EXPECT_TRUE(hands.waitFor([](const QJsonObject &editor) { return editor[u"typing"].toBool(); }));
    hands.type(text("next: a4"));
    hands.press({text("Escape")});
    EXPECT_TRUE(hands.take("n", "number"));
    hands.click({320, 300});
    EXPECT_TRUE(hands.take("b", "blur"));
    hands.drag({{420, 260}, {440, 300}, {500, 340}});
    EXPECT_TRUE(hands.hasAnnotations(8)) << "the letters of a text choose no tools";
    EXPECT_TRUE(hands.clickControl(text("Words")));
    EXPECT_TRUE(hands.waitFor([](const QJsonObject &editor) { return editor[u"wordCount"].toInt() == 3; }));
    hands.drag({{60, 42}, {100, 42}, {300, 42}});
    EXPECT_TRUE(hands.hasAnnotations(9));
    EXPECT_TRUE(hands.take("c", "crop"));
    hands.drag({{0, 0}, {5, 3}, {20, 10}});
    hands.drag({{800, 480}, {790, 470}, {790, 440}});
    hands.press({text("Return")});
    EXPECT_TRUE(hands.waitFor([](const QJsonObject &editor) {
        return editor[u"tool"].toString() == u"blur" && editor[u"undo"].toString() == u"Crop";
    }));
    ASSERT_TRUE(hands.save());
    EXPECT_TRUE(showsTheRecord(shot));
    EXPECT_EQ(QImage(shot).size(), QSize(770, 430));
    EXPECT_TRUE(record()[u"annotations"][0].toObject().contains(u"bendPoint"));

    restart(1);
    ASSERT_TRUE(hands.open(shot));
    constexpr std::array drawn{
        Drawn{"arrow", {160, 120}},     Drawn{"pencil", {320, 121}},  Drawn{"line", {460, 160}},
        Drawn{"rectangle", {580, 160}}, Drawn{"ellipse", {680, 160}}, Drawn{"text", {80, 300}},
        Drawn{"number", {320, 300}},    Drawn{"blur", {460, 300}},    Drawn{"blur", {200, 42}}};
    QStringList kinds;
    for (const auto &[kind, place] : drawn) {
        kinds += text(kind);
        hands.click(place);
        hands.press({text("Right")});
        EXPECT_TRUE(hands.waitFor([](const QJsonObject &editor) {
            return editor[u"selected"].toInt() == 1 && editor[u"dirty"].toBool();
        })) << kind;
        hands.press({text("ctrl+z")});
        EXPECT_TRUE(hands.waitFor([](const QJsonObject &editor) { return !editor[u"dirty"].toBool(); }))
            << kind;
    }
    EXPECT_EQ(kindsOf(record()), kinds);
}

TEST_F(EditorStories, theKeyboardAloneMakesMovesStylesAndSavesAnnotations) {
    const QString shot = shoot(1);
    start(1);
    ASSERT_TRUE(hands.open(shot)) << tembra.log().toStdString();
    hands.press({text("r"), text("Return"), text("Right"), text("Right"), text("shift+Down"),
                 text("alt+Right"), text("bracketright"), text("3")});
    hands.press({text("n"), text("Return"), text("Escape"), text("Escape")});
    EXPECT_TRUE(hands.hasAnnotations(2));
    QStringList unnamed;
    QStringList items;
    for (const AccessibleTree::Node &node : hands.tree().shown(text("Tembra"))) {
        if (node.isFocusable && node.name.isEmpty())
            unnamed += node.role;
        if (node.role == u"list item")
            items += node.name;
    }
    EXPECT_EQ(unnamed, QStringList());
    EXPECT_TRUE(items.contains(text("Rectangle")) && items.contains(text("Number 1")))
        << items.join(u',').toStdString();

    hands.press({text("Tab"), text("Tab"), text("Delete")});
    EXPECT_TRUE(hands.hasAnnotations(1));
    hands.press({text("ctrl+z")});
    EXPECT_TRUE(hands.hasAnnotations(2));
    hands.press({text("ctrl+y")});
    EXPECT_TRUE(hands.hasAnnotations(1));
    ASSERT_TRUE(hands.save());
    const QJsonValue rectangle = record()[u"annotations"][0];
    EXPECT_EQ(rectangle[u"points"], QJsonArray({QJsonObject{{text("x"), 302}, {text("y"), 190}},
                                                QJsonObject{{text("x"), 503}, {text("y"), 310}}}));
    EXPECT_TRUE(showsTheRecord(shot));
    hands.press({text("ctrl+w")});
    EXPECT_TRUE(hands.isClosed());
}

TEST_F(EditorStories, unsavedEditsOfSeveralScreenshotsAreKeptUntilTheyAreSavedOrDiscarded) {
    const std::array shots{shoot(1), shoot(2)};
    const std::array before{QImage(shots[0]), QImage(shots[1])};
    start(2);
    const auto editBoth = [&] {
        for (const QString &shot : shots) {
            ASSERT_TRUE(hands.open(shot)) << tembra.log().toStdString();
            EXPECT_TRUE(hands.take("a", "arrow"));
            hands.drag({{100, 100}, {200, 150}, {300, 200}});
            ASSERT_TRUE(hands.hasAnnotations(1));
        }
    };
    editBoth();
    ASSERT_TRUE(hands.clickControl(QFileInfo(shots[0]).fileName()));
    ASSERT_TRUE(hands.isShown(shots[0]));
    EXPECT_TRUE(hands.hasAnnotations(1));
    hands.press({text("ctrl+w")});
    EXPECT_TRUE(hands.sees(text("Save the edits of 2 screenshots?")));
    EXPECT_TRUE(hands.sees(QFileInfo(shots[1]).fileName() + u'\n' + QFileInfo(shots[0]).fileName()));
    EXPECT_TRUE(hands.clickControl(text("Cancel")));
    EXPECT_EQ(hands.status()[u"unsaved"].toArray().size(), 2);
    hands.press({text("ctrl+w")});
    EXPECT_TRUE(hands.clickControl(text("Discard all")));
    EXPECT_TRUE(hands.isClosed());
    EXPECT_TRUE(QImage(shots[0]) == before[0] && QImage(shots[1]) == before[1]);

    editBoth();
    tembra.command({text("quit")});
    EXPECT_TRUE(hands.clickControl(text("Save all")));
    EXPECT_TRUE(tembra.waitForEnd());
    EXPECT_TRUE(QImage(shots[0]) != before[0] && QImage(shots[1]) != before[1]);
}

TEST_F(EditorStories, aScreenshotIsRenamedAndGoesToTheTrashUnlessItIsPinned) {
    const QString shot = shoot(1);
    const QString other = shoot(2);
    shoot(3);
    start(3);
    ASSERT_TRUE(hands.open(shot)) << tembra.log().toStdString();
    EXPECT_TRUE(hands.clickControl(text("File name")));
    hands.press({text("ctrl+a")});
    hands.type(QFileInfo(other).completeBaseName());
    hands.press({text("Return")});
    EXPECT_TRUE(hands.clickControl(text("Keep both")));
    const QString renamed =
        QFileInfo(other).path() + u'/' + QFileInfo(other).completeBaseName() + text(" copy.png");
    EXPECT_TRUE(hands.isShown(renamed)) << QJsonDocument(hands.status()).toJson().toStdString();
    EXPECT_TRUE(QFile::exists(renamed) && !QFile::exists(shot));

    EXPECT_TRUE(hands.clickControl(text("More")));
    hands.press({text("Up"), text("Return")});
    EXPECT_TRUE(hands.isShown(other)) << "its neighbour";
    EXPECT_FALSE(QFile::exists(renamed));

    tembra.command({text("open")});
    ASSERT_TRUE(
        tembra.waitFor([](const QJsonObject &status) { return status[u"shelf"][u"expanded"].toBool(); }));
    hands.press({text("ctrl+a"), text("ctrl+p")});
    ASSERT_TRUE(tembra.waitFor(
        [](const QJsonObject &status) { return status[u"screenshots"][u"pinned"].toInt() == 2; }));
    tembra.command({text("close")});
    EXPECT_TRUE(hands.clickControl(text("More")));
    hands.press({text("Up"), text("Return")});
    EXPECT_TRUE(hands.says(text("This screenshot is pinned. Unpin it before moving it to Trash.")));
    EXPECT_TRUE(QFile::exists(other));
}

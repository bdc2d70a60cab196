#include "EditorHands.h"

#include "TembraProcess.h"
#include "support/Files.h"
#include "support/Pictures.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>

#include <gtest/gtest.h>

#include <array>

using namespace tembra;

namespace {

struct Drawn {
    const char *kind;
    // On what is drawn.
    QPointF place;
};

QString text(const char *latin) {
    return QString::fromLatin1(latin);
}

// Screenshots as large as the editor's window shows them pixel by pixel, and a user of the editor.
class EditorStories : public testing::Test {
protected:
    EditorStories() { tembra.tool(text("xdotool"), {text("mousemove"), text("640"), text("790")}); }

    // A plain screenshot of that second; its path.
    QString shoot(int second, Qt::GlobalColor color = Qt::white) const {
        QImage image(800, 480, QImage::Format_RGB32);
        image.fill(color);
        return writeFile(QStringLiteral("%1/Screenshot from 2026-11-21 10-15-0%2.png")
                             .arg(tembra.screenshots())
                             .arg(second),
                         encoded(image, "png"));
    }
    // The same with words on it.
    QString shootWords(int second) const {
        const QString plain = shoot(second);
        const QString edits = writeFile(tembra.home() + text("/words.json"), R"({"annotations": [
            {"id": "11111111-2222-3333-4444-555555555555", "kind": "text", "points": [{"x": 40, "y": 20}],
             "color": {"r": 0, "g": 0, "b": 0, "a": 1}, "width": 0, "text": {"string": "Account number 4242",
             "fontSize": 30, "maximumWidth": 700, "background": {"r": 1, "g": 1, "b": 1, "a": 1}}}]})");
        const QString drawn = tembra.home() + text("/words.png");
        const auto rendered =
            tembra.command({text("render"), plain, text("--edits"), edits, text("-o"), drawn});
        EXPECT_EQ(rendered.exitStatus, 0) << rendered.error.toStdString();
        QFile::remove(plain);
        EXPECT_TRUE(QFile::rename(drawn, plain));
        return plain;
    }
    void start(int shots) {
        tembra.start();
        EXPECT_TRUE(tembra.waitFor([shots](const QJsonObject &status) {
            return status[u"screenshots"][u"count"].toInt() == shots;
        })) << tembra.log().toStdString();
    }
    void restart(int shots) {
        EXPECT_EQ(tembra.command({text("quit")}).exitStatus, 0);
        EXPECT_TRUE(tembra.waitForEnd());
        start(shots);
    }

    // Where the edits of the only edited screenshot are kept.
    [[nodiscard]] QString kept(const char *file) const {
        const QDir store(tembra.home() + text("/tembra/data/ScreenshotEdits"));
        return store.filePath(store.entryList(QDir::Dirs | QDir::NoDotAndDotDot).value(0)) + u'/' +
               text(file);
    }
    [[nodiscard]] QJsonObject record() const {
        QFile file(kept("record.json"));
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        return QJsonDocument::fromJson(file.readAll()).object();
    }
    // Whether a file shows, pixel by pixel, what the command line makes of the original and the record.
    [[nodiscard]] bool showsTheRecord(const QString &file) const {
        const QString expected = tembra.home() + text("/expected.png");
        const auto rendered = tembra.command(
            {text("render"), kept("original"), text("--edits"), kept("record.json"), text("-o"), expected});
        EXPECT_EQ(rendered.exitStatus, 0) << rendered.error.toStdString();
        return !QImage(file).isNull() && QImage(file) == QImage(expected);
    }

    TembraProcess tembra;
    const EditorHands hands{tembra};
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

    hands.press({text("a")});
    hands.drag({{60, 200}, {150, 200}, {260, 200}});
    hands.drag({{160, 200}, {160, 150}, {160, 120}});
    hands.press({text("4"), text("bracketright"), text("p")});
    hands.drag({{320, 120}, {340, 200}, {360, 120}, {380, 200}});
    EXPECT_TRUE(hands.clickControl(text("Line")));
    EXPECT_TRUE(hands.clickControl(text("Green")));
    hands.drag({{420, 120}, {440, 140}, {500, 200}});
    hands.press({text("r")});
    hands.drag({{540, 120}, {580, 150}, {640, 200}});
    EXPECT_TRUE(hands.clickControl(text("Filled")));
    hands.press({text("o")});
    hands.drag({{680, 120}, {700, 150}, {770, 200}});
    hands.press({text("t")});
    hands.click({60, 300});
    EXPECT_TRUE(hands.waitFor([](const QJsonObject &editor) { return editor[u"typing"].toBool(); }));
    hands.type(text("next: a4"));
    hands.press({text("Escape"), text("n")});
    hands.click({320, 300});
    hands.press({text("b")});
    hands.drag({{420, 260}, {440, 300}, {500, 340}});
    EXPECT_TRUE(hands.hasAnnotations(8)) << "the letters of a text choose no tools";
    EXPECT_TRUE(hands.clickControl(text("Words")));
    EXPECT_TRUE(hands.waitFor([](const QJsonObject &editor) { return editor[u"wordCount"].toInt() == 3; }));
    hands.drag({{60, 42}, {100, 42}, {300, 42}});
    EXPECT_TRUE(hands.hasAnnotations(9));
    hands.press({text("c")});
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
        Drawn{"arrow", {160, 120}},     Drawn{"pencil", {360, 121}},  Drawn{"line", {460, 160}},
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

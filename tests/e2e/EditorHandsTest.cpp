#include "EditorHands.h"

#include "FileManagerWindow.h"
#include "TembraProcess.h"
#include "support/Files.h"
#include "support/Pictures.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QUrl>
#include <QtEndian>

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
            return status[u"screenshots"][u"count"].toInt() == shots &&
                   status[u"folder"][u"state"].toString() == u"ready";
        })) << tembra.log().toStdString();
    }
    void restart(int shots) {
        EXPECT_EQ(tembra.command({text("quit")}).exitStatus, 0);
        EXPECT_TRUE(tembra.waitForEnd());
        start(shots);
    }

    // By a double click in the shelf.
    void openFirstTile() const {
        tembra.command({text("open")});
        ASSERT_TRUE(tembra.waitFor([](const QJsonObject &status) {
            return status[u"shelf"][u"expanded"].toBool() && status[u"shelf"][u"frame"][3].toInt() == 256;
        }));
        tembra.tool(text("xdotool"), {text("mousemove"), text("340"), text("100"), text("click"),
                                      text("--repeat"), text("2"), text("--delay"), text("20"), text("1")});
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

    // What is on the clipboard in that form.
    [[nodiscard]] QByteArray pasted(const char *type) const {
        const QString file = tembra.home() + text("/pasted");
        tembra.tool(text("sh"), {text("-c"), text("xclip -selection clipboard -o -t \"$1\" >\"$2\""),
                                 text("sh"), text(type), file});
        QFile pasted(file);
        return pasted.open(QIODevice::ReadOnly) ? pasted.readAll() : QByteArray();
    }

    TembraProcess tembra;
    const EditorHands hands{tembra};
};

// The boxes of a recording that is complete.
QByteArray mp4() {
    const auto box = [](const char *kind, const QByteArray &content) {
        QByteArray size(4, 0);
        qToBigEndian(static_cast<quint32>(content.size() + 8), size.data());
        return size + kind + content;
    };
    return box("ftyp", "isommp42") + box("mdat", QByteArray(1000, 'x')) +
           box("moov", box("mvhd", QByteArray(100, 0)));
}

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

TEST_F(EditorStories, whatAnotherProgramWritesMeanwhileIsNeitherLostNorLosesEdits) {
    const QString shot = shoot(1);
    start(1);
    ASSERT_TRUE(hands.open(shot)) << tembra.log().toStdString();
    shoot(1, Qt::yellow);
    EXPECT_TRUE(hands.says(text("Another program changed this screenshot.")));
    EXPECT_TRUE(hands.clickControl(text("Reload")));
    EXPECT_TRUE(hands.says({}));
    ASSERT_TRUE(hands.isShown(shot));

    EXPECT_TRUE(hands.take("a", "arrow"));
    hands.drag({{100, 100}, {200, 150}, {300, 200}});
    EXPECT_TRUE(hands.hasAnnotations(1));
    shoot(1, Qt::gray);
    const QImage theirs(shot);
    EXPECT_TRUE(hands.says(text("Another program changed this screenshot. Your edits are still here. Save a "
                                "copy to keep them.")));
    hands.press({text("ctrl+s")});
    EXPECT_TRUE(hands.says(text("This image changed outside Tembra. Your edits are still here. Use Save a "
                                "copy to keep them.")));
    EXPECT_TRUE(hands.clickControl(text("Save a copy")));
    EXPECT_TRUE(hands.sees(text("Save a copy")));
    hands.press({text("ctrl+a")});
    hands.type(tembra.home() + text("/kept.png"));
    hands.press({text("Return")});
    EXPECT_TRUE(hands.says(QString::fromUtf8("A copy was saved as “kept.png”.")));
    const QImage copy(tembra.home() + text("/kept.png"));
    EXPECT_EQ(copy.pixelColor(20, 20), QColor(Qt::yellow));
    EXPECT_NE(copy.pixelColor(200, 150), QColor(Qt::yellow));
    EXPECT_EQ(QImage(shot), theirs);
    hands.press({text("ctrl+w")});
    EXPECT_TRUE(hands.clickControl(text("Discard")));
    EXPECT_TRUE(hands.isClosed());
}

TEST_F(EditorStories, imagesAndAnnotationsLeaveTheEditorByTheClipboardAndByADrag) {
    const QString shot = shoot(1);
    const QString other = shoot(2, Qt::gray);
    FileManagerWindow files(tembra);
    start(2);
    ASSERT_TRUE(hands.open(shot)) << tembra.log().toStdString();
    EXPECT_TRUE(hands.take("r", "rectangle"));
    hands.drag({{100, 100}, {200, 150}, {300, 200}});
    EXPECT_TRUE(hands.hasAnnotations(1));
    hands.press({text("ctrl+shift+c")});
    EXPECT_TRUE(tembra.waitFor([&](const QJsonObject &) { return pasted("TARGETS").contains("image/png"); }));
    const QImage copied = QImage::fromData(pasted("image/png"));
    const QUrl file = QUrl::fromEncoded(pasted("text/uri-list").trimmed());
    EXPECT_EQ(QImage(file.toLocalFile()), copied);
    hands.press({text("ctrl+a"), text("ctrl+c")});
    ASSERT_TRUE(hands.save());
    EXPECT_EQ(copied, QImage(shot));

    ASSERT_TRUE(hands.open(other));
    hands.press({text("ctrl+v")});
    EXPECT_TRUE(hands.hasAnnotations(1));
    ASSERT_TRUE(hands.save());
    EXPECT_TRUE(hands.take("t", "text"));
    hands.click({400, 300});
    EXPECT_TRUE(hands.waitFor([](const QJsonObject &editor) { return editor[u"typing"].toBool(); }));
    hands.type(text("typed"));
    EXPECT_TRUE(hands.clickControl(text("Save")));
    EXPECT_TRUE(hands.hasAnnotations(2)) << "what is typed can be saved";
    EXPECT_TRUE(hands.isSaved());

    ASSERT_TRUE(files.open({}));
    hands.makeRoomBelow();
    const auto handle = hands.control(text("Drag image"));
    ASSERT_TRUE(handle);
    files.pressAt(*handle);
    files.dragTo(files.middle() + QPoint(0, 60));
    files.release();
    EXPECT_TRUE(files.agreeToCopy());
    const QDir folder(files.folder());
    EXPECT_TRUE(tembra.waitFor([&](const QJsonObject &) {
        return QImage(folder.filePath(folder.entryList(QDir::Files).value(0))) == QImage(other);
    })) << folder.entryList(QDir::Files).join(u',').toStdString();
}

TEST_F(EditorStories, theShelfOpensImagesInTheEditorAndANewCaptureByItself) {
    QDir().mkpath(QFileInfo(tembra.settingsFile()).path());
    writeFile(tembra.settingsFile(), R"({"automaticallyOpenEditor": true})");
    // What recordings are played with.
    const QString applications = tembra.home() + text("/.local/share/applications");
    QDir().mkpath(applications);
    writeFile(applications + text("/player.desktop"),
              "[Desktop Entry]\nType=Application\nName=Player\nExec=cp %f " + tembra.home().toUtf8() +
                  "/played\nMimeType=video/mp4;\n");
    QDir().mkpath(tembra.home() + text("/.config"));
    writeFile(tembra.home() + text("/.config/mimeapps.list"),
              "[Default Applications]\nvideo/mp4=player.desktop\n");
    start(0);
    EXPECT_EQ(tembra.tool(text("scrot"), {text("Screenshot from 2026-11-21 10-15-01.png")}).exitStatus, 0);
    const QString shot = tembra.screenshots() + text("/Screenshot from 2026-11-21 10-15-01.png");
    EXPECT_TRUE(hands.isShown(shot)) << "a new capture opens by itself";
    hands.press({text("ctrl+w")});
    EXPECT_TRUE(hands.isClosed());

    openFirstTile();
    EXPECT_TRUE(hands.isShown(shot));
    hands.press({text("ctrl+w")});
    EXPECT_TRUE(hands.isClosed());

    writeFile(tembra.screenshots() + text("/Screencast from 2026-11-21 10-15-02.mp4"), mp4());
    EXPECT_TRUE(tembra.waitFor(
        [](const QJsonObject &status) { return status[u"screenshots"][u"count"].toInt() == 2; }));
    openFirstTile();
    EXPECT_TRUE(tembra.waitFor(
        [this](const QJsonObject &) { return QFile::exists(tembra.home() + text("/played")); }));
    EXPECT_TRUE(hands.isClosed());
}

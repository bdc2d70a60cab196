#include "EditorStories.h"
#include "FileManagerWindow.h"

#include <QFile>
#include <QUrl>
#include <QtEndian>

using namespace tembra;

namespace {

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

} // namespace

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
    tembra.setSettings({{text("automaticallyOpenEditor"), true}});
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

TEST_F(EditorStories, aFileThatIsNoImageIsRefusedAndNothingCanBeDoneWithIt) {
    const QString shot = shoot(1);
    const QString broken = writeFile(tembra.home() + text("/broken.png"));
    const QString refusal = text("The editor currently supports PNG and JPEG images.");
    start(1);
    tembra.command({text("edit"), broken});
    EXPECT_TRUE(hands.says(refusal));
    EXPECT_TRUE(hands.clickControl(text("More")));
    hands.press({text("Down"), text("Return"), text("ctrl+s"), text("ctrl+shift+c"), text("ctrl+shift+s")});
    EXPECT_TRUE(hands.open(shot)) << tembra.log().toStdString();
    tembra.command({text("edit"), broken});
    EXPECT_TRUE(hands.says(QString::fromUtf8("“broken.png”: ") + refusal));
    EXPECT_TRUE(hands.isShown(shot));
}

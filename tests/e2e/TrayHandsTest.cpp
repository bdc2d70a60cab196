#include "FileManagerWindow.h"
#include "TembraProcess.h"

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>

#include <gtest/gtest.h>

using namespace tembra;

namespace {

// The shelf beside a file manager, and a hand that drags between them.
class TrayHands : public testing::Test {
protected:
    static constexpr QPoint firstTile{340, 100};
    static constexpr QPoint notch{640, 4};
    static constexpr QPoint aside{60, 700};

    TrayHands() {
        QDir().mkpath(leftover);
        tembra.tool(QStringLiteral("scrot"), {screenshot});
        tembra.start();
        EXPECT_TRUE(tembra.waitFor([](const QJsonObject &status) {
            return status[u"screenshots"][u"count"].toInt() == 1;
        })) << tembra.log().toStdString();
    }

    static bool isOpen(const QJsonObject &status) { return status[u"shelf"][u"expanded"].toBool(); }
    static QString tab(const QJsonObject &status) { return status[u"shelf"][u"tab"].toString(); }
    static int trayCount(const QJsonObject &status) { return status[u"tray"][u"count"].toInt(); }

    TembraProcess tembra;
    FileManagerWindow files{tembra};
    const QString screenshot =
        tembra.screenshots() + QStringLiteral("/Screenshot from 2026-11-21 10-15-01.png");
    // In the scratch folder.
    const QString leftover = tembra.home() + QStringLiteral("/tembra/temporary/Pavrell-Clipboard/old");
};

} // namespace

TEST_F(TrayHands, aFileDraggedToTheNotchIsKeptInTheTrayAndStaysWhereItIs) {
    ASSERT_TRUE(files.open({QStringLiteral("kept.txt")}));
    files.pressFirst();
    files.dragTo(notch);
    EXPECT_TRUE(tembra.waitFor([](const QJsonObject &status) {
        return isOpen(status) && tab(status) == QStringLiteral("tray");
    })) << QJsonDocument(tembra.status()).toJson().toStdString();
    files.dragTo({640, 130});
    files.release();
    EXPECT_TRUE(tembra.waitFor([](const QJsonObject &status) { return trayCount(status) == 1; }));
    EXPECT_TRUE(QFile::exists(files.folder() + QStringLiteral("/kept.txt")));

    // It is followed until it is deleted.
    const QString moved = tembra.home() + QStringLiteral("/moved.txt");
    ASSERT_TRUE(QFile::rename(files.folder() + QStringLiteral("/kept.txt"), moved));
    ASSERT_TRUE(QFile::remove(moved));
    EXPECT_TRUE(tembra.waitFor([](const QJsonObject &status) { return trayCount(status) == 0; }));
    EXPECT_FALSE(QFile::exists(leftover)) << "what an earlier run left was deleted at the start";
}

TEST_F(TrayHands, aDragThatGoesElsewhereLeavesTheShelfAsItWas) {
    ASSERT_TRUE(files.open({QStringLiteral("kept.txt")}));
    files.pressFirst();
    files.dragTo(notch);
    EXPECT_TRUE(tembra.waitFor(isOpen));
    files.dragTo(aside);
    files.release();
    EXPECT_TRUE(tembra.waitFor([](const QJsonObject &status) {
        return !isOpen(status) && tab(status) == QStringLiteral("screenshots") && trayCount(status) == 0;
    })) << QJsonDocument(tembra.status()).toJson().toStdString();
}

TEST_F(TrayHands, whatIsPastedIsKeptAndCopiedAgainAsFiles) {
    const QString named = tembra.home() + QStringLiteral("/named file.txt");
    EXPECT_TRUE(QFile(named).open(QIODevice::WriteOnly));
    EXPECT_EQ(tembra.command({QStringLiteral("add"), named}).exitStatus, 0);
    EXPECT_EQ(tembra.command({QStringLiteral("add"), QStringLiteral("missing")}).exitStatus, 1);
    tembra.command({QStringLiteral("open"), QStringLiteral("--tab"), QStringLiteral("tray")});
    ASSERT_TRUE(
        tembra.waitFor([](const QJsonObject &status) { return isOpen(status) && trayCount(status) == 1; }));

    // An image that is no file yet, as a browser or an editor offers it.
    tembra.tool(QStringLiteral("xclip"), {QStringLiteral("-selection"), QStringLiteral("clipboard"),
                                          QStringLiteral("-t"), QStringLiteral("image/png"), screenshot});
    files.press({QStringLiteral("ctrl+v")});
    EXPECT_TRUE(tembra.waitFor([](const QJsonObject &status) {
        const QJsonArray entries = status[u"tray"][u"entries"].toArray();
        return entries.size() == 2 &&
               entries[1][u"path"].toString().endsWith(QStringLiteral("/File Tray Image.png"));
    })) << QJsonDocument(tembra.status()).toJson().toStdString();

    files.press({QStringLiteral("ctrl+a"), QStringLiteral("ctrl+c")});
    const QStringList read{QStringLiteral("-o"), QStringLiteral("-selection"), QStringLiteral("clipboard"),
                           QStringLiteral("-t"), QStringLiteral("text/uri-list")};
    EXPECT_TRUE(tembra.waitFor([this, &read](const QJsonObject &) {
        const QString copied = tembra.tool(QStringLiteral("xclip"), read).output;
        return copied.contains(QStringLiteral("/named%20file.txt")) &&
               copied.contains(QStringLiteral("/File%20Tray%20Image.png"));
    }));
}

TEST_F(TrayHands, aScreenshotDraggedIntoAFolderArrivesThereAsACopy) {
    ASSERT_TRUE(files.open({}));
    tembra.command({QStringLiteral("open")});
    ASSERT_TRUE(tembra.waitFor([](const QJsonObject &status) {
        return isOpen(status) && status[u"shelf"][u"frame"][3].toInt() == 256;
    }));
    files.pressAt(firstTile);
    files.dragTo(files.middle());
    files.release();
    EXPECT_TRUE(files.agreeToCopy());
    const QDir folder(files.folder());
    EXPECT_TRUE(
        tembra.waitFor([&folder](const QJsonObject &) { return folder.entryList(QDir::Files).size() == 1; }));
    EXPECT_EQ(tembra.status()[u"screenshots"][u"count"].toInt(), 1) << "the screenshot stays";
}

TEST_F(TrayHands, allSelectedFilesArriveByteForByteWhereTheyAreDroppedAndWhereTheyArePasted) {
    ASSERT_TRUE(files.open({}));
    const QString kept = tembra.home() + QStringLiteral("/Kept");
    const QString putIn = QStringLiteral("mkdir \"$1\" && cd \"$1\" && echo 1 >plain && echo 2 >\"$(printf "
                                         "'\\377 \\n.txt')\" && \"$2\" add -- *");
    const auto added = tembra.tool(QStringLiteral("sh"), {QStringLiteral("-c"), putIn, QStringLiteral("sh"),
                                                          kept, QStringLiteral(TEMBRA_PROGRAM)});
    EXPECT_EQ(added.exitStatus, 0) << added.error.toStdString();
    tembra.command({QStringLiteral("open"), QStringLiteral("--tab"), QStringLiteral("tray")});
    ASSERT_TRUE(tembra.waitFor([](const QJsonObject &status) {
        return trayCount(status) == 2 && status[u"shelf"][u"frame"][3].toInt() == 256;
    }));
    const auto haveArrived = [&](const QJsonObject &) {
        return tembra.tool(QStringLiteral("diff"), {QStringLiteral("-r"), kept, files.folder()}).exitStatus ==
               0;
    };

    files.press({QStringLiteral("ctrl+a"), QStringLiteral("ctrl+c")});
    files.pressAt(firstTile);
    files.dragTo(files.middle());
    files.release();
    EXPECT_TRUE(files.agreeToCopy());
    EXPECT_TRUE(tembra.waitFor(haveArrived));

    tembra.tool(QStringLiteral("find"),
                {files.folder(), QStringLiteral("-type"), QStringLiteral("f"), QStringLiteral("-delete")});
    files.pressAt(files.middle());
    files.release();
    files.press({QStringLiteral("ctrl+v")});
    EXPECT_TRUE(tembra.waitFor(haveArrived));
    EXPECT_EQ(trayCount(tembra.status()), 2);
    // Qt cannot delete such a file.
    tembra.tool(QStringLiteral("rm"), {QStringLiteral("-r"), kept, files.folder()});
}

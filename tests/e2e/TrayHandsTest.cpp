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
        tembra.tool(QStringLiteral("scrot"), {tembra.screenshots() + QStringLiteral("/Screenshot from "
                                                                                    "2026-11-21 "
                                                                                    "10-15-01.png")});
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

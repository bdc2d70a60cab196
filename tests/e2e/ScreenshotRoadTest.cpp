#include "TembraProcess.h"

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>

#include <gtest/gtest.h>

using namespace tembra;

namespace {

int shotCount(const QJsonObject &status) {
    return status[u"screenshots"][u"count"].toInt();
}

QString folderState(const QJsonObject &status) {
    return status[u"folder"][u"state"].toString();
}

bool isExpanded(const QJsonObject &status) {
    return status[u"shelf"][u"expanded"].toBool();
}

bool isReady(const QJsonObject &status) {
    return folderState(status) == u"ready";
}

QString todayName() {
    return QStringLiteral("Screenshot from %1.png")
        .arg(QDateTime::currentDateTime().toString(QStringLiteral("yyyy-MM-dd hh-mm-ss")));
}

} // namespace

TEST(ScreenshotRoad, capturesOfRealToolsAreAnnouncedAndShownUnderToday) {
    TembraProcess tembra;
    tembra.start();
    ASSERT_TRUE(tembra.waitFor(isReady)) << tembra.log().toStdString();
    EXPECT_EQ(tembra.status()[u"folder"][u"path"].toString(), tembra.screenshots())
        << "the folder that the desktop saves into is adopted without a question";

    const QList<QPair<QString, QStringList>> tools{
        {QStringLiteral("scrot"), {}},
        {QStringLiteral("gnome-screenshot"),
         {QStringLiteral("-f"), tembra.screenshots() + u'/' + todayName()}},
        {QStringLiteral("import"),
         {QStringLiteral("-silent"), QStringLiteral("-window"), QStringLiteral("root"),
          QStringLiteral("Screenshot_2026-01-02_03-04-05.png")}},
    };
    int expected = 0;
    for (const auto &[tool, arguments] : tools) {
        const auto answer = tembra.tool(tool, arguments);
        ASSERT_EQ(answer.exitStatus, 0) << tool.toStdString() << ": " << answer.error.toStdString();
        ++expected;
        ASSERT_TRUE(tembra.waitFor([&](const QJsonObject &status) {
            return shotCount(status) == expected && status[u"notification"][u"showing"].toBool();
        })) << tool.toStdString()
            << "\n"
            << QJsonDocument(tembra.status()).toJson().toStdString() << tembra.log().toStdString();
    }
    const QJsonObject status = tembra.status();
    EXPECT_EQ(status[u"notification"][u"count"].toInt(), expected) << "captures in a row are one series";
    const QJsonArray sections = status[u"screenshots"][u"sections"].toArray();
    ASSERT_EQ(sections.size(), 1);
    EXPECT_EQ(sections.at(0)[u"title"].toString(), QStringLiteral("Today"));
    EXPECT_EQ(sections.at(0)[u"count"].toInt(), expected);
}

TEST(ScreenshotRoad, whatIsNoCaptureIsNotShown) {
    TembraProcess tembra;
    tembra.start();
    ASSERT_TRUE(tembra.waitFor(isReady));
    const QString real = tembra.screenshots() + QStringLiteral("/") + todayName();
    tembra.tool(QStringLiteral("convert"), {QStringLiteral("-size"), QStringLiteral("64x64"),
                                            QStringLiteral("plasma:"), QStringLiteral("IMG_2041.png")});
    ASSERT_EQ(tembra.tool(QStringLiteral("scrot"), {real}).exitStatus, 0);
    ASSERT_TRUE(tembra.waitFor([](const QJsonObject &status) { return shotCount(status) == 1; }));

    ASSERT_TRUE(QFile::rename(real, tembra.screenshots() + QStringLiteral("/Screenshot notes.png")));
    EXPECT_TRUE(tembra.waitFor([](const QJsonObject &status) { return shotCount(status) == 0; }));
}

TEST(ScreenshotRoad, theFolderMayGoAndComeBack) {
    TembraProcess tembra;
    tembra.start();
    ASSERT_TRUE(tembra.waitFor(isReady));
    ASSERT_EQ(tembra.tool(QStringLiteral("scrot"), {}).exitStatus, 0);
    ASSERT_TRUE(tembra.waitFor([](const QJsonObject &status) { return shotCount(status) == 1; }));

    const QString farAway = tembra.home() + QStringLiteral("/some/where/else");
    QDir().mkpath(QFileInfo(farAway).path());
    ASSERT_TRUE(QDir().rename(tembra.screenshots(), farAway));
    EXPECT_TRUE(tembra.waitFor([](const QJsonObject &status) { return folderState(status) == u"missing"; }));
    ASSERT_TRUE(QDir().rename(farAway, tembra.screenshots()));
    EXPECT_TRUE(tembra.waitFor([](const QJsonObject &status) {
        return isReady(status) && shotCount(status) == 1;
    })) << QJsonDocument(tembra.status()).toJson().toStdString();
}

TEST(ScreenshotRoad, aRenamedFolderIsFollowed) {
    TembraProcess tembra;
    tembra.start();
    ASSERT_TRUE(tembra.waitFor(isReady));
    const QString renamed = tembra.screenshots() + QStringLiteral(" of mine");
    ASSERT_TRUE(QDir().rename(tembra.screenshots(), renamed));
    // The tool goes on saving into the old place, which is another folder now.
    EXPECT_TRUE(tembra.waitFor([&](const QJsonObject &status) {
        return status[u"folder"][u"path"].toString() == renamed && folderState(status) == u"elsewhere";
    })) << QJsonDocument(tembra.status()).toJson().toStdString();
}

TEST(ScreenshotRoad, aFolderBehindALinkIsAdopted) {
    TembraProcess tembra;
    const QString real = tembra.home() + QStringLiteral("/elsewhere");
    ASSERT_TRUE(QDir().rename(tembra.screenshots(), real));
    ASSERT_TRUE(QFile::link(real, tembra.screenshots()));
    tembra.start();
    ASSERT_TRUE(tembra.waitFor(isReady)) << tembra.log().toStdString();
    ASSERT_EQ(tembra.tool(QStringLiteral("scrot"), {}).exitStatus, 0);
    EXPECT_TRUE(tembra.waitFor([](const QJsonObject &status) { return shotCount(status) == 1; }));
}

TEST(Shelf, opensForAPointerThatRestsWhereANotificationAppears) {
    TembraProcess tembra;
    tembra.tool(QStringLiteral("xdotool"),
                {QStringLiteral("mousemove"), QStringLiteral("640"), QStringLiteral("60")});
    tembra.start();
    ASSERT_TRUE(tembra.waitFor(isReady));
    ASSERT_EQ(tembra.tool(QStringLiteral("scrot"), {}).exitStatus, 0);
    EXPECT_TRUE(tembra.waitFor(isExpanded));
}

TEST(Shelf, hoveringTheTopEdgeOpensItAndLeavingClosesIt) {
    TembraProcess tembra;
    const auto pointer = [&](int x, int y) {
        tembra.tool(QStringLiteral("xdotool"),
                    {QStringLiteral("mousemove"), QString::number(x), QString::number(y)});
    };
    pointer(640, 500);
    tembra.start();
    ASSERT_TRUE(tembra.waitFor(isReady));
    EXPECT_FALSE(isExpanded(tembra.status()));
    pointer(640, 0);
    ASSERT_TRUE(tembra.waitFor(isExpanded));
    pointer(640, 150);
    EXPECT_TRUE(isExpanded(tembra.status())) << "the pointer is on the panel";
    pointer(640, 500);
    EXPECT_TRUE(tembra.waitFor([](const QJsonObject &status) { return !isExpanded(status); }));
}

TEST(Shelf, isDrivenByItsCommands) {
    TembraProcess tembra;
    EXPECT_EQ(tembra.command({QStringLiteral("status")}).exitStatus, 1) << "nothing runs yet";
    EXPECT_EQ(tembra.command({QStringLiteral("fly")}).exitStatus, 2);

    tembra.start();
    EXPECT_EQ(tembra.command({QStringLiteral("open"), QStringLiteral("--tab"), QStringLiteral("screenshots")})
                  .exitStatus,
              0);
    EXPECT_TRUE(tembra.waitFor(isExpanded)) << "opened by hand, far from the pointer, it stays open";
    EXPECT_EQ(tembra.command({QStringLiteral("toggle")}).exitStatus, 0);
    EXPECT_TRUE(tembra.waitFor([](const QJsonObject &status) { return !isExpanded(status); }));

    EXPECT_EQ(tembra.startAgain().exitStatus, 0);
    EXPECT_TRUE(tembra.waitFor(isExpanded)) << "a second start shows the shelf of the first";
    EXPECT_EQ(tembra.command({QStringLiteral("close")}).exitStatus, 0);
    EXPECT_EQ(tembra.command({QStringLiteral("quit")}).exitStatus, 0);
    const auto tooLate = tembra.command({QStringLiteral("close")});
    EXPECT_TRUE(tooLate.error.startsWith(QStringLiteral("Tembra is not running.")))
        << "the name is free at once";
    EXPECT_TRUE(tembra.waitForEnd());
}

TEST(Settings, aBrokenFileNeverStopsTheStartAndIsKeptAside) {
    for (const QByteArray &broken : {QByteArray("{\"activationMode\": \"cli"),
                                     QByteArray("\x7f"
                                                "ELF not json"),
                                     QByteArray("[1, 2]")}) {
        TembraProcess tembra;
        QDir().mkpath(QFileInfo(tembra.settingsFile()).path());
        QFile file(tembra.settingsFile());
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(broken);
        file.close();

        tembra.start();
        EXPECT_TRUE(tembra.waitFor([](const QJsonObject &status) {
            return status[u"onboarding"][u"visible"].toBool();
        })) << broken.toStdString()
            << ": it is a first start";
        const QStringList kept = QFileInfo(tembra.settingsFile())
                                     .dir()
                                     .entryList({QStringLiteral("settings.json?*")}, QDir::Files);
        ASSERT_EQ(kept.size(), 1) << broken.toStdString();
        QFile aside(QFileInfo(tembra.settingsFile()).path() + u'/' + kept.constFirst());
        ASSERT_TRUE(aside.open(QIODevice::ReadOnly));
        EXPECT_EQ(aside.readAll(), broken);
        EXPECT_TRUE(tembra.log().contains(kept.constFirst())) << tembra.log().toStdString();
    }
}

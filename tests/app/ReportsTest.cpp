#include "app/ProgramStatus.h"
#include "app/ScanReport.h"
#include "app/StatusReport.h"
#include "platform/linux/LinuxCaptureMarkers.h"
#include "platform/linux/LinuxFolderFiles.h"
#include "screenshots/ScreenshotCaptureDetector.h"
#include "support/Files.h"
#include "support/Pictures.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <map>

using namespace tembra;

TEST(ScanReport, saysOfEachFileWhatItIsAndWhy) {
    const QTemporaryDir folder;
    const auto path = [&folder](const char *name) { return folder.filePath(QString::fromUtf8(name)); };
    writeFile(path("Screenshot from 2026-11-21 10-15-22.png"), pictureBytes("png"));
    writeFile(path("Screenshot 2026-11-21 at 10.15.22.png"), pictureBytes("png").chopped(20));
    writeFile(path("Screencast from 2026-11-21 10-15-22.webm"), QByteArrayLiteral("no container"));
    writeFile(path("holiday.jpg"), pictureBytes("jpg"));
    writeFile(path("notes.txt"));

    const LinuxFileFactsReader facts;
    const LinuxFolderFiles files(facts);
    const LinuxCaptureMarkers markers;
    const ScreenshotCaptureDetector detector(markers, files);
    const auto report = ScanReport::of(folder.path(), true, files, detector, {}, systemNow());
    ASSERT_TRUE(report);
    const QJsonObject json = QJsonDocument::fromJson(report->toJson()).object();
    EXPECT_EQ(json[u"folder"].toString(), folder.path());

    std::map<QString, QJsonObject> captures;
    for (const QJsonValue capture : json[u"captures"].toArray())
        captures[capture[u"path"].toString()] = capture.toObject();
    ASSERT_EQ(captures.size(), 3U);
    struct Case {
        const char *name;
        const char *kind;
        const char *because;
        bool complete;
    };
    for (const Case &c : {Case{"Screenshot from 2026-11-21 10-15-22.png", "image", "tool", true},
                          Case{"Screenshot 2026-11-21 at 10.15.22.png", "image", "name", false},
                          Case{"Screencast from 2026-11-21 10-15-22.webm", "video", "tool", false}}) {
        const QJsonObject &capture = captures[path(c.name)];
        EXPECT_EQ(capture[u"kind"].toString(), QString::fromUtf8(c.kind)) << c.name;
        EXPECT_EQ(capture[u"because"].toString(), QString::fromUtf8(c.because)) << c.name;
        EXPECT_EQ(capture[u"complete"].toBool(), c.complete) << c.name;
        EXPECT_EQ(capture[u"section"].toString(), QStringLiteral("Today")) << c.name;
        EXPECT_TRUE(QDateTime::fromString(capture[u"createdAt"].toString(), Qt::ISODateWithMs).isValid())
            << c.name;
    }
    ASSERT_EQ(report->skipped.size(), 2U);
    EXPECT_EQ(report->skipped[0].path, path("holiday.jpg"));
    EXPECT_FALSE(report->skipped[0].because.isEmpty());
    EXPECT_FALSE(ScanReport::of(path("none"), true, files, detector, {}, systemNow()));
}

TEST(StatusReport, givesScriptsEveryKeyAlsoOfAShelfThatKnowsNothing) {
    ProgramStatus program{.version = QStringLiteral("1.2")};
    const QJsonObject empty = QJsonDocument::fromJson(statusJson(program)).object();
    EXPECT_EQ(empty[u"version"].toString(), QStringLiteral("1.2"));
    EXPECT_TRUE(empty[u"folder"][u"path"].isNull());
    EXPECT_EQ(empty[u"folder"][u"state"].toString(), QStringLiteral("none"));
    EXPECT_TRUE(empty[u"lastCapture"].isNull());
    EXPECT_TRUE(empty[u"shortcut"][u"error"].isNull());
    EXPECT_TRUE(empty[u"updates"][u"version"].isNull());
    EXPECT_TRUE(empty[u"settings"][u"page"].isNull());

    ShelfStatus &status = program.shelf;
    status.folder = QStringLiteral("/shots");
    status.frame = {268, 0, 744, 256};
    status.shortcutError = QStringLiteral("Taken.");
    status.recognitionPhase = QStringLiteral("result");
    status.recognitionText = QStringLiteral("four");
    status.sections = {{QStringLiteral("Today"), 3}};
    status.screenshots = {QStringLiteral("/shots/b.png"), QStringLiteral("/shots/a.png")};
    status.lastCapture =
        ShelfStatus::Capture{QStringLiteral("/shots/a.png"), Instant(std::chrono::seconds(1))};
    program.onboarding = {.step = OnboardingStep::folder, .isVisible = true};
    program.updates = {QStringLiteral("available"), QStringLiteral("2.0"), true};
    program.settingsPage = SettingsPageId::fileTray;
    const QJsonObject full = QJsonDocument::fromJson(statusJson(program)).object();
    EXPECT_EQ(full[u"shelf"][u"frame"].toArray(), QJsonArray({268, 0, 744, 256}));
    EXPECT_EQ(full[u"onboarding"][u"step"].toString(), QStringLiteral("folder"));
    EXPECT_EQ(full[u"updates"][u"state"].toString(), QStringLiteral("available"));
    EXPECT_EQ(full[u"updates"][u"version"].toString(), QStringLiteral("2.0"));
    EXPECT_TRUE(full[u"updates"][u"automatic"].toBool());
    EXPECT_EQ(full[u"settings"][u"page"].toString(), QStringLiteral("tray"));
    EXPECT_EQ(full[u"screenshots"][u"sections"][0][u"count"].toInt(), 3);
    EXPECT_EQ(full[u"screenshots"][u"paths"].toArray(), QJsonArray::fromStringList(status.screenshots));
    EXPECT_EQ(full[u"text"][u"characters"].toInt(), 4);
    EXPECT_EQ(full[u"shortcut"][u"error"].toString(), QStringLiteral("Taken."));
    EXPECT_EQ(full[u"lastCapture"][u"at"].toString(), QStringLiteral("1970-01-01T00:00:01.000Z"));
}

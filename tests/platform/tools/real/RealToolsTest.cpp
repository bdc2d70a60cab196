#include "ToolHome.h"
#include "platform/linux/LinuxCaptureMarkers.h"
#include "screenshots/ScreenshotSaveLocation.h"
#include "support/Files.h"

#include <QDateTime>
#include <QDir>
#include <QStandardPaths>

#include <gtest/gtest.h>

using namespace tembra;

namespace {

// A screenshot tool, and how it is made to take a picture and to call and put it as it likes.
struct RealTool {
    const char *name;
    QString program;
    QStringList arguments;
    // Of the dialogue in which it asks where to save; empty when it does not ask.
    QString windowClass;
    // Below the folder of settings, with what the user has set there otherwise; empty for tools that keep
    // their settings in the desktop's database, or none.
    QString settingsFile;
    QByteArray settings;
    // Lines of them that nothing may change.
    QByteArrayList kept;
    // Where it saves when nothing is set, below the home folder; empty when that is the current folder.
    QString usualFolder;

    [[nodiscard]] bool keepsItsFolder() const { return !usualFolder.isEmpty(); }
    // What the user calls it in TEMBRA_SCREENSHOT_TOOL.
    [[nodiscard]] QString wanted() const { return keepsItsFolder() ? program : QStringLiteral("generic"); }
};

const RealTool realTools[]{
    // the one without a folder of its own first
    {.name = "scrot", .program = QStringLiteral("scrot")},
    {.name = "gnome_screenshot",
     .program = QStringLiteral("gnome-screenshot"),
     .usualFolder = ToolHome::pictures},
    {.name = "mate_screenshot",
     .program = QStringLiteral("mate-screenshot"),
     .windowClass = QStringLiteral("mate-screenshot"),
     .usualFolder = ToolHome::desktop},
    {.name = "xfce4_screenshooter",
     .program = QStringLiteral("xfce4-screenshooter"),
     .arguments = {QStringLiteral("--fullscreen")},
     .windowClass = QStringLiteral("xfce4-screenshooter"),
     .settingsFile = QStringLiteral("xfce4/xfce4-screenshooter"),
     .settings = "delay=0\nregion=1\naction=1\nshow_mouse=0\nlast_user=ada\nlast_extension=png\n",
     .kept = {"show_mouse=0", "last_user=ada"},
     .usualFolder = ToolHome::pictures},
    {.name = "flameshot",
     .program = QStringLiteral("flameshot"),
     .arguments = {QStringLiteral("full")},
     .settingsFile = QStringLiteral("flameshot/flameshot.ini"),
     .settings = "[General]\ncontrastUiColor=#111111\nsavePathFixed=true\nshowHelp=false\n",
     .kept = {"contrastUiColor=#111111", "showHelp=false"},
     .usualFolder = ToolHome::pictures},
    {.name = "ksnip",
     .program = QStringLiteral("ksnip"),
     .arguments = {QStringLiteral("--fullscreen"), QStringLiteral("--save")},
     .settingsFile = QStringLiteral("ksnip/ksnip.conf"),
     .settings = "[Application]\nRememberPosition=false\n\n[Snipping]\nCursorColor=#123456\n",
     .kept = {"RememberPosition=false", "CursorColor=#123456"},
     .usualFolder = QStringLiteral(".")},
    {.name = "spectacle",
     .program = QStringLiteral("spectacle"),
     .arguments = {QStringLiteral("--background"), QStringLiteral("--nonotify"),
                   QStringLiteral("--fullscreen")},
     .settingsFile = QStringLiteral("spectaclerc"),
     .settings = "[GuiConfig]\nonClickChecked=false\n\n[Save]\ncompressionQuality=77\n",
     .kept = {"onClickChecked=false", "compressionQuality=77"},
     .usualFolder = ToolHome::pictures},
};

void PrintTo(const RealTool &tool, std::ostream *stream) {
    *stream << tool.name;
}

std::string toolName(const testing::TestParamInfo<RealTool> &info) {
    return info.param.name;
}

const ToolHome &home() {
    static const ToolHome home;
    return home;
}

// Where tools run that have a folder of their own.
const QString elsewhere = QStringLiteral("elsewhere");

class RealTools : public testing::TestWithParam<RealTool> {
protected:
    void SetUp() override {
        if (QStandardPaths::findExecutable(tool.program).isEmpty())
            GTEST_SKIP() << tool.program.toStdString() << " is not installed";
        home().setLanguage({});
        std::ignore = home().emptyFolder(ToolHome::pictures);
        std::ignore = home().emptyFolder(ToolHome::desktop);
        std::ignore = home().emptyFolder(elsewhere);
        if (!tool.settingsFile.isEmpty()) {
            QDir().mkpath(QFileInfo(settingsPath()).path());
            writeFile(settingsPath(), tool.settings);
        }
    }

    [[nodiscard]] QString settingsPath() const {
        return home().path(QStringLiteral("settings/") + tool.settingsFile);
    }
    [[nodiscard]] QByteArrayList settingLines() const {
        QFile file(settingsPath());
        return file.open(QIODevice::ReadOnly) ? file.readAll().split('\n') : QByteArrayList();
    }
    // Tells the tool where to save as "Choose Folder" does.
    void choose(const QString &folder) const {
        const auto preferences = home().preferences(tool.wanted());
        const auto chosen = ScreenshotSaveLocation::setFolder(folder, *preferences);
        EXPECT_TRUE(chosen) << (chosen ? std::string() : chosen.error().message.toStdString());
    }
    void letTheToolChoose() const {
        const auto preferences = home().preferences(tool.wanted());
        preferences->setLocation(std::nullopt);
        preferences->synchronize();
    }
    void takeCaptureIn(const QString &folder) const {
        EXPECT_EQ(takeCapture(tool.program, tool.arguments, folder, tool.windowClass), QString());
    }
    [[nodiscard]] static QStringList filesIn(const QString &folder) {
        return QDir(folder).entryList(QDir::Files);
    }

    const RealTool &tool = GetParam();
};

class ToolsWithAFolder : public RealTools {};

} // namespace

TEST_P(ToolsWithAFolder, saveWhereTembraReads) {
    letTheToolChoose();
    const auto preferences = home().preferences(tool.wanted());
    const QString folder = QDir::cleanPath(home().path(tool.usualFolder));
    EXPECT_EQ(preferences->location(), folder);
    takeCaptureIn(home().path(elsewhere));
    EXPECT_EQ(filesIn(folder).size(), 1);
    EXPECT_EQ(preferences->location(), folder) << "it has written its settings";
}

TEST_P(ToolsWithAFolder, saveWhereTembraTellsThemAndKeepTheirOtherSettings) {
    const QString shots = home().emptyFolder(QStringLiteral("für später, 6% #1 & mehr"));
    choose(shots);
    takeCaptureIn(home().path(elsewhere));
    EXPECT_EQ(filesIn(shots).size(), 1);
    EXPECT_EQ(home().preferences(tool.wanted())->location(), shots) << "it has written its settings";
    for (const QByteArray &line : tool.kept)
        EXPECT_TRUE(settingLines().contains(line)) << line.constData();
}

TEST_P(RealTools, takeCapturesThatAreRecognisedInEveryLanguage) {
    // In the first three languages by their names alone, elsewhere with what the tool's settings tell.
    for (const char *language : {"", "de", "ru", "fr"}) {
        SCOPED_TRACE(language);
        const QString shots = home().emptyFolder(QStringLiteral("Shots"));
        choose(shots);
        home().setLanguage(language);
        const QDateTime start = QDateTime::currentDateTimeUtc().addSecs(-1);
        takeCaptureIn(shots);
        takeCaptureIn(shots);
        const QDateTime end = QDateTime::currentDateTimeUtc().addSecs(1);

        const QString wanted = qstrcmp(language, "fr") == 0 ? tool.wanted() : QStringLiteral("generic");
        const QJsonObject report = home().scan(shots, wanted);
        const QJsonArray captures = report[u"captures"].toArray();
        EXPECT_EQ(captures.size(), 2) << filesIn(shots).join(u'\n').toStdString();
        EXPECT_TRUE(report[u"skipped"].toArray().isEmpty());
        for (const QJsonValue &capture : captures) {
            EXPECT_TRUE(capture[u"complete"].toBool());
            const QDateTime createdAt =
                QDateTime::fromString(capture[u"createdAt"].toString(), Qt::ISODateWithMs);
            EXPECT_TRUE(start <= createdAt && createdAt <= end) << createdAt.toString().toStdString();
            const QString name = QFileInfo(capture[u"path"].toString()).fileName();
            EXPECT_TRUE(wanted != u"generic" || LinuxCaptureMarkers().nameSaysCapture(name, {}))
                << name.toStdString();
        }
    }
}

INSTANTIATE_TEST_SUITE_P(X11, RealTools, testing::ValuesIn(realTools), toolName);
INSTANTIATE_TEST_SUITE_P(X11, ToolsWithAFolder, testing::ValuesIn(std::next(realTools), std::end(realTools)),
                         toolName);

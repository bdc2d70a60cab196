#include "platform/linux/tools/ScreenshotTool.h"

#include "platform/linux/tools/DesktopDatabasePreferences.h"
#include "platform/linux/tools/FlameshotPreferences.h"
#include "platform/linux/tools/GenericPreferences.h"
#include "platform/linux/tools/GnomeShellPreferences.h"
#include "platform/linux/tools/KsnipPreferences.h"
#include "platform/linux/tools/SpectaclePreferences.h"
#include "platform/linux/tools/XfceScreenshooterPreferences.h"

#include <QFileInfo>
#include <QStandardPaths>

#include <algorithm>

namespace tembra {

namespace {

using Tool = ScreenshotTool;

struct Description {
    Tool tool;
    // What the user calls it in the environment.
    QLatin1StringView name;
    QLatin1StringView program;
    // Below the folder of settings.
    QLatin1StringView settingsFile;
    bool needsX11;
};

constexpr Description descriptions[]{
    {Tool::GnomeShell, QLatin1StringView("gnome"), QLatin1StringView("gnome-shell"), {}, false},
    {Tool::Flameshot, QLatin1StringView("flameshot"), QLatin1StringView("flameshot"),
     QLatin1StringView("flameshot/flameshot.ini"), false},
    {Tool::Ksnip, QLatin1StringView("ksnip"), QLatin1StringView("ksnip"),
     QLatin1StringView("ksnip/ksnip.conf"), false},
    {Tool::Spectacle, QLatin1StringView("spectacle"), QLatin1StringView("spectacle"),
     QLatin1StringView("spectaclerc"), false},
    {Tool::XfceScreenshooter, QLatin1StringView("xfce4-screenshooter"),
     QLatin1StringView("xfce4-screenshooter"), QLatin1StringView("xfce4/xfce4-screenshooter"), true},
    {Tool::GnomeScreenshot,
     QLatin1StringView("gnome-screenshot"),
     QLatin1StringView("gnome-screenshot"),
     {},
     true},
    {Tool::MateScreenshot,
     QLatin1StringView("mate-screenshot"),
     QLatin1StringView("mate-screenshot"),
     {},
     true},
    {Tool::Generic, QLatin1StringView("generic"), {}, {}, false},
};

const Description &description(Tool tool) {
    return *std::ranges::find(descriptions, tool, &Description::tool);
}

bool isInstalled(Tool tool, const ScreenshotToolHints &hints) {
    return hints.programs.contains(description(tool).program);
}

// The tool that comes with the desktop, whether it is installed or not.
std::optional<Tool> toolOfDesktop(const ScreenshotToolHints &hints) {
    static const QHash<QString, Tool> tools{
        {QStringLiteral("budgie"), Tool::GnomeScreenshot},
        {QStringLiteral("cinnamon"), Tool::GnomeScreenshot},
        {QStringLiteral("gnome"), Tool::GnomeShell},
        {QStringLiteral("gnome-classic"), Tool::GnomeShell},
        {QStringLiteral("gnome-flashback"), Tool::GnomeScreenshot},
        {QStringLiteral("kde"), Tool::Spectacle},
        {QStringLiteral("mate"), Tool::MateScreenshot},
        {QStringLiteral("x-cinnamon"), Tool::GnomeScreenshot},
        {QStringLiteral("xfce"), Tool::XfceScreenshooter},
    };
    for (const QString &desktop : hints.desktops) {
        const auto tool = tools.constFind(desktop.toLower());
        if (tool == tools.cend())
            continue;
        // Some systems give MATE the other one.
        const bool isReplaced = *tool == Tool::MateScreenshot && !isInstalled(*tool, hints) &&
                                isInstalled(Tool::GnomeScreenshot, hints);
        return isReplaced ? Tool::GnomeScreenshot : *tool;
    }
    return std::nullopt;
}

// Tools that work under any desktop and are installed. GNOME Shell is none of them.
QList<Tool> independentTools(const ScreenshotToolHints &hints) {
    QList<Tool> tools;
    for (const Description &one : descriptions) {
        const bool works = !one.needsX11 || hints.sessionType != u"wayland";
        if (one.tool != Tool::GnomeShell && works && isInstalled(one.tool, hints))
            tools.append(one.tool);
    }
    return tools;
}

QStringList searchPath(const QProcessEnvironment &environment, const QString &variable,
                       const QString &usual) {
    return environment.value(variable, usual).split(u':', Qt::SkipEmptyParts);
}

QString settingsFolder(const StandardFolders &folders, const QProcessEnvironment &environment) {
    const QString folder = environment.value(QStringLiteral("XDG_CONFIG_HOME"));
    return folder.startsWith(u'/') ? folder : folders.home + QStringLiteral("/.config");
}

} // namespace

std::optional<ScreenshotTool> screenshotToolNamed(const QString &name) {
    const auto found = std::ranges::find(descriptions, name, &Description::name);
    return found == std::end(descriptions) ? std::nullopt : std::optional(found->tool);
}

ScreenshotTool screenshotTool(const ScreenshotToolHints &hints) {
    if (const auto wanted = screenshotToolNamed(hints.wanted))
        return *wanted;
    const auto own = toolOfDesktop(hints);
    if (own && isInstalled(*own, hints))
        return *own;
    const QList<Tool> tools = independentTools(hints);
    const auto configured =
        std::ranges::find_if(tools, [&](Tool tool) { return hints.configured.contains(tool); });
    if (configured != tools.cend())
        return *configured;
    if (tools.size() == 1)
        return tools.first();
    return own.value_or(Tool::Generic);
}

ScreenshotToolHints screenshotToolHints(const StandardFolders &folders,
                                        const QProcessEnvironment &environment) {
    ScreenshotToolHints hints;
    hints.desktops = searchPath(environment, QStringLiteral("XDG_CURRENT_DESKTOP"), QString());
    hints.sessionType = environment.value(QStringLiteral("XDG_SESSION_TYPE"));
    hints.wanted = environment.value(QStringLiteral("TEMBRA_SCREENSHOT_TOOL"));
    const QStringList path =
        searchPath(environment, QStringLiteral("PATH"), QStringLiteral("/usr/local/bin:/usr/bin:/bin"));
    const QString settings = settingsFolder(folders, environment) + u'/';
    for (const Description &one : descriptions) {
        if (!one.program.isEmpty() && !QStandardPaths::findExecutable(one.program, path).isEmpty())
            hints.programs.insert(one.program);
        if (!one.settingsFile.isEmpty() && QFileInfo::exists(settings + one.settingsFile))
            hints.configured.insert(one.tool);
    }
    return hints;
}

std::unique_ptr<ScreenCapturePreferences>
makeScreenCapturePreferences(const StandardFolders &folders, const QProcessEnvironment &environment) {
    const Tool tool = screenshotTool(screenshotToolHints(folders, environment));
    const QString file = settingsFolder(folders, environment) + u'/' + description(tool).settingsFile;
    switch (tool) {
    case Tool::GnomeShell:
        return std::make_unique<GnomeShellPreferences>(folders);
    case Tool::GnomeScreenshot:
        return std::make_unique<DesktopDatabasePreferences>(gnomeScreenshotTool, folders);
    case Tool::MateScreenshot:
        return std::make_unique<DesktopDatabasePreferences>(mateScreenshotTool, folders);
    case Tool::Spectacle: {
        const int version = SpectaclePreferences::installedVersion(searchPath(
            environment, QStringLiteral("XDG_DATA_DIRS"), QStringLiteral("/usr/local/share:/usr/share")));
        return std::make_unique<SpectaclePreferences>(file, folders, environment, version);
    }
    case Tool::XfceScreenshooter:
        return std::make_unique<XfceScreenshooterPreferences>(file, folders);
    case Tool::Flameshot:
        return std::make_unique<FlameshotPreferences>(file, folders);
    case Tool::Ksnip:
        return std::make_unique<KsnipPreferences>(file, folders);
    case Tool::Generic:
        break;
    }
    return std::make_unique<GenericPreferences>(folders.configuration + QStringLiteral("/screenshots.conf"),
                                                folders, environment);
}

} // namespace tembra

#pragma once

#include "platform/ScreenCapturePreferences.h"
#include "platform/StandardFolders.h"

#include <QProcessEnvironment>
#include <QSet>
#include <QStringList>

#include <memory>
#include <optional>

namespace tembra {

enum class ScreenshotTool {
    GnomeShell,
    GnomeScreenshot,
    MateScreenshot,
    Spectacle,
    XfceScreenshooter,
    Flameshot,
    Ksnip,
    Generic,
};

// What the choice of the tool depends on.
struct ScreenshotToolHints {
    // $XDG_CURRENT_DESKTOP, the most specific name first, and $XDG_SESSION_TYPE.
    QStringList desktops;
    QString sessionType;
    // The programs that are installed and the tools that have a settings file.
    QSet<QString> programs;
    QSet<ScreenshotTool> configured;
    // The user's own choice, $TEMBRA_SCREENSHOT_TOOL.
    QString wanted;
};

// The tool that takes the session's screenshots: the user's choice, else the desktop's own tool, else one
// that the user has set up or that is the only one there.
[[nodiscard]] ScreenshotTool screenshotTool(const ScreenshotToolHints &hints);

[[nodiscard]] std::optional<ScreenshotTool> screenshotToolNamed(const QString &name);

[[nodiscard]] ScreenshotToolHints screenshotToolHints(const StandardFolders &folders,
                                                      const QProcessEnvironment &environment);

// The preferences of the tool that takes this session's screenshots.
[[nodiscard]] std::unique_ptr<ScreenCapturePreferences> makeScreenCapturePreferences(
    const StandardFolders &folders,
    const QProcessEnvironment &environment = QProcessEnvironment::systemEnvironment());

} // namespace tembra

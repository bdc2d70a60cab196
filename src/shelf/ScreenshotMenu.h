#pragma once

#include "platform/Workspace.h"

#include <functional>
#include <memory>
#include <vector>

QT_BEGIN_NAMESPACE
class QMenu;
QT_END_NAMESPACE

namespace tembra {

// What the menu of the selected screenshots offers. A value.
struct ScreenshotMenuState {
    int selectedCount = 0;
    int pinnedCount = 0;
    bool canEdit = false;
    // The tab for text recognition is offered.
    bool offersRecognition = false;
    bool canRecognize = false;
    // Those that open every selected file, the default one first.
    std::vector<Workspace::Application> applications;
};

// What its items do.
struct ScreenshotMenuActions {
    std::function<void()> copy;
    std::function<void()> openInEditor;
    std::function<void(const QString &identifier)> openWith;
    std::function<void()> recognize;
    std::function<void()> reveal;
    std::function<void()> togglePins;
    std::function<void()> trash;
};

[[nodiscard]] std::unique_ptr<QMenu> screenshotMenu(const ScreenshotMenuState &state,
                                                    const ScreenshotMenuActions &actions);

// The applications that open the files, the default one first; `openWith` gets the one chosen.
[[nodiscard]] std::unique_ptr<QMenu>
screenshotApplicationsMenu(const std::vector<Workspace::Application> &applications,
                           const std::function<void(const QString &identifier)> &openWith);

// What the menu of the background does.
struct ScreenshotBackgroundMenuActions {
    std::function<void()> openFolder;
    std::function<void()> showSettings;
    // Nothing to clear when not set.
    std::function<void()> clear;
};

[[nodiscard]] std::unique_ptr<QMenu> screenshotBackgroundMenu(const ScreenshotBackgroundMenuActions &actions);

} // namespace tembra

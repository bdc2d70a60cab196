#pragma once

#include "base/Clocks.h"
#include "screenshots/ScreenshotSection.h"
#include "screenshots/Shot.h"
#include "shelf/FileOpening.h"

#include <QStringList>

#include <functional>
#include <memory>
#include <vector>

QT_BEGIN_NAMESPACE
class QMenu;
QT_END_NAMESPACE

namespace tembra {

class AppSettings;
class ShelfSession;

// What the user does to the selected screenshots, by keys and menus. Main thread; owned by ShelfController.
class ScreenshotCommands {
public:
    // All must outlive this.
    ScreenshotCommands(AppSettings &settings, ShelfSession &session, Workspace &workspace, WallClock now);

    ShowFailure onError;
    // The selected ones are to open in the editor.
    std::function<void()> onOpenInEditor;
    // The text of the image at that path is wanted.
    std::function<void(const QString &path)> onRecognize;

    // As the shelf shows them now.
    [[nodiscard]] std::vector<ScreenshotSection> sections() const;
    // In display order.
    [[nodiscard]] std::vector<Shot> selectedShots() const;
    [[nodiscard]] QStringList selectedPaths() const;
    // Those of all screenshots that are not pinned.
    [[nodiscard]] std::vector<Shot> removableShots() const;
    [[nodiscard]] std::vector<Shot> removableSelectedShots() const;

    void copySelectedScreenshots();
    // Pins them all unless all of them are pinned.
    void toggleSelectedScreenshotPins();
    void revealSelectedScreenshots();
    void openScreenshotsWith(const QString &applicationIdentifier);
    // In the default application when the identifier is empty.
    void openFiles(const QStringList &paths, const QString &applicationIdentifier);
    void recognizeSelectedScreenshot();
    // Those that are not pinned.
    void trashSelected();
    void openFolder(const QString &folder);
    // The menu of the selected screenshots. It must not outlive this.
    [[nodiscard]] std::unique_ptr<QMenu> menu();

private:
    // One image is selected, and its text can be shown.
    [[nodiscard]] bool canRecognizeSelectedScreenshot(const QStringList &selected) const;
    [[nodiscard]] std::vector<Shot> removable(const std::vector<Shot> &shots) const;

    AppSettings &m_settings;
    ShelfSession &m_session;
    Workspace &m_workspace;
    const WallClock m_now;
};

} // namespace tembra

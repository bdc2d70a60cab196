#pragma once

#include "base/Generation.h"
#include "base/Result.h"
#include "recognition/model/OCRController.h"
#include "screenshots/ScreenshotAutoCopy.h"
#include "screenshots/ScreenshotAutoOpen.h"
#include "screenshots/ScreenshotDestination.h"
#include "screenshots/ScreenshotFeedback.h"
#include "screenshots/Shot.h"
#include "settings/ScreenshotAutoCleanPeriod.h"
#include "shelf/CaptureAnnouncer.h"
#include "shelf/FilePreview.h"
#include "shelf/HoverController.h"
#include "shelf/PopupWatch.h"
#include "shelf/ScreenshotFolderState.h"
#include "shelf/ShelfCommand.h"
#include "shelf/ShelfServices.h"
#include "shelf/ShelfStatus.h"
#include "shelf/ShelfTab.h"
#include "shelf/StatusItem.h"
#include "shelf/TabHover.h"
#include "shortcut/ActivationShortcutControl.h"

#include <QHash>
#include <QObject>
#include <QPoint>

#include <functional>
#include <memory>
#include <optional>
#include <vector>

QT_BEGIN_NAMESPACE
class QMenu;
QT_END_NAMESPACE

namespace tembra {

class AppSettings;
struct AppSettingsState;
struct FolderShelf;
class ScreenshotCommands;
class ScreenshotLocationMonitor;
class ShelfContent;
class ShelfSession;
class ShelfSurfaces;

// Joins the models to the screen: the shelf's surfaces on each display, its tabs and their content, what it
// announces, and when it opens and closes. Main thread; owned by OnboardingCoordinator, which starts and
// stops it.
class ShelfController final : public QObject {
    Q_OBJECT

public:
    ShelfController(AppSettings &settings, std::unique_ptr<ShelfSession> session,
                    std::unique_ptr<ScreenshotLocationMonitor> locationMonitor,
                    const ShelfServices &services);
    ~ShelfController() override;

    // Asks the user for a folder, starting at the one suggested; nothing when the user changed their mind.
    // Replaceable.
    std::function<std::optional<QString>(const QString &suggested)> askForFolder;
    // Asks for an image file, starting in a folder; nothing when the user changed their mind. Replaceable.
    std::function<std::optional<QString>(const QString &folder)> askForImage;
    // Shows a failure as title and message. Replaceable.
    std::function<void(const QString &title, const QString &message)> onError;
    // Asks whether auto-clean, which would move that many files, is to stay on. Replaceable.
    std::function<void(int count, ScreenshotAutoCleanPeriod, std::function<void(bool keeps)> decide)>
        askForSafetyReview;
    // Asks whether so many screenshots are to go to the Trash while so many pinned ones stay. Replaceable.
    std::function<void(int count, int pinnedCount, std::function<void()> clear)> askForClearing;
    // The user wants the program to end.
    std::function<void()> onQuit;
    // The user wants the settings, or those of the screenshots.
    std::function<void()> onShowSettings;
    std::function<void()> onShowScreenshotSettings;
    // The user wants to know of new versions, where that can be asked now.
    std::function<void()> onCheckForUpdates;
    std::function<bool()> canCheckForUpdates;
    // A screenshot is to be opened in the editor, on the display that has the shelf.
    std::function<void(const Shot &, const ScreenRect &display)> onOpenInEditor;
    // Screenshots came, went or changed.
    std::function<void()> onShotsChanged;
    // Captures have arrived, newest first.
    std::function<void(const std::vector<Shot> &)> onNewCaptures;
    // It has been closed.
    std::function<void()> onCollapsed;
    // Where the screenshot tool saves was read.
    std::function<void(const ScreenshotDestination &)> onDestinationRead;

    void start();
    void stop();

    [[nodiscard]] ShelfSession &session() { return *m_session; }
    // The key that opens the shelf and closes it.
    [[nodiscard]] ActivationShortcutControl &shortcut() { return m_shortcut; }
    // In display order.
    [[nodiscard]] std::vector<Shot> shots() const;

    // Which screenshots carry edits, each with the revision that the editor wrote.
    void setEditedScreenshots(const QHash<ScreenshotFileIdentity, QString> &revisions);

    void setExpanded(bool expanded);
    void collapse() { setExpanded(false); }
    // An open made by the user: it stays until closed by the user.
    void openManually();
    void toggleFromShortcut();
    void reopenFromDock();
    // What can be done in the program's menu has changed.
    void validateStatusMenu();
    // Whether the tab is shown. One that was activated for a drag gives way again to the one before when the
    // shelf closes.
    bool activateTab(ShelfTab tab, bool duringDrag = false);

    // Puts files into the file tray. Error: what could not be taken, and why.
    Result<void> addToTray(const QStringList &paths);
    // Asks for a folder, with nothing of the shelf in the way, and does nothing with it.
    [[nodiscard]] std::optional<QString> pickFolder();
    void chooseFolder();
    // Makes the folder the one that is shown; `adopting` leaves the screenshot tool's own setting as it is,
    // since the folder came from there.
    Result<void> acceptScreenshotFolder(const QString &folder, bool adopting);
    // The same, chosen in the settings: the tool saves there from now on, and auto-clean is off.
    Result<void> changeScreenshotFolder(const QString &folder);
    [[nodiscard]] QString suggestedScreenshotFolder() const;
    // Asks the screenshot tool again where it saves; `onDestinationRead` follows.
    void checkDestination();
    // While others move screenshots into the folder; what has come into it then is nothing new.
    void suspendFolder();
    void resumeFolder();

    void showSettings();
    void showScreenshotSettings();

    // Shows the selected files large, or not any more.
    void togglePreview();
    // Opens the screenshot at a path in the editor. Error: why it is none.
    Result<void> openScreenshotEditor(const QString &path);
    // The first of the selected ones that the editor opens.
    void openSelectedScreenshotsInEditor();
    // Reads the text of an image, in its tab.
    void recognize(const OCRInput &input);
    // All screenshots, after a question.
    void clearScreenshots();
    void revealFolder();
    // The latest capture, in its application.
    void openCapture();
    // The last removal or restore.
    void undo();
    void redo();

    [[nodiscard]] bool isExpanded() const { return m_expanded; }
    [[nodiscard]] ShelfStatus status() const;

private:
    void connectTabs();
    void connectFiles();
    void connectRecognition();
    void connectHover();
    void connectAnnouncer();
    void connectSession();
    void startObserving();
    void shotsChanged();
    void openInEditor(const Shot &shot);
    // What a double click or Return does.
    void openTile(const QString &path);
    [[nodiscard]] ScreenRect editorDisplay() const;
    // Made when it is first shown: a shelf that nobody opens costs nothing.
    ShelfContent &content();

    void applySettings(const AppSettingsState &state);
    void refreshWatchers();
    void configureAutoOpen();
    void refreshTimeline();
    void scheduleTimelineRefresh();
    void render();
    void updateFolderState();
    void folderChanged();
    void receiveFolderChange(const FolderShelf &shelf);
    void rereadDestination();
    void receiveDestination(const ScreenshotDestination &destination);
    [[nodiscard]] ScreenshotFolderFacts folderFacts() const;
    void receiveNewFiles(const std::vector<Shot> &shots);
    void announce(const std::vector<Shot> &shots, bool isFirst);
    void removalBegins();
    // By a button, for a while.
    void offerUndo();
    // Opens the shelf on the captures that the notification told of.
    void openAnnounced();
    [[nodiscard]] QString latestCapture() const;
    void copyFinished(ScreenshotAutoCopy::Outcome outcome);
    // Ends the preview, else closes the shelf.
    void cancel();
    bool handleShelfKey(const QKeyEvent &event);
    void perform(ShelfCommand command);
    void stepTab(int steps);
    void dragSelected();
    void pasteIntoTray();
    bool handleRecognitionKey(ShelfCommand command);
    void chooseImage();
    void pasteForRecognition();
    void copyRecognizedText();
    bool copyRecognizedSelection();
    void openLink(const QUrl &url);
    void recognitionChanged();
    // The shelf takes the size that its tab wants.
    void fitPanel();
    void trayChanged();
    void updatePreview();
    [[nodiscard]] QRectF previewArea() const;
    void showScreenshotBackgroundMenu(QPoint globalPosition);
    void installActiveStatusMenu();
    [[nodiscard]] StatusMenuActions statusMenuActions();
    void showMenu(std::unique_ptr<QMenu> menu, QPoint globalPosition);
    void showNotification(const std::optional<CaptureNotification> &notification);
    bool activateSurface();
    void showExpanded();
    void hideSurface();
    void workspaceChanged(Workspace::Event event);
    void scheduleDisplayReconciliation();
    void reconcileDisplayWindows();

    [[nodiscard]] HoverSnapshot hoverSnapshot() const;
    [[nodiscard]] bool canSwitchTabsWithHover(ShelfTab tab) const;
    [[nodiscard]] std::vector<ShelfTab> tabs() const;
    [[nodiscard]] int targetPanelHeight() const;
    [[nodiscard]] std::optional<double> availableHeight() const;

    AppSettings &m_settings;
    ShelfServices m_services;
    std::unique_ptr<ShelfSession> m_session;
    std::unique_ptr<ScreenshotLocationMonitor> m_locationMonitor;
    std::unique_ptr<ScreenshotCommands> m_commands;
    // The surfaces show the content, so they go first.
    std::unique_ptr<ShelfContent> m_content;
    std::unique_ptr<ShelfSurfaces> m_surfaces;
    HoverController m_hover;
    PopupWatch m_popups;
    TabHover m_tabHover;
    CaptureAnnouncer m_announcer;
    FilePreview m_preview;
    OCRController m_ocr;
    ActivationShortcutControl m_shortcut;
    ScreenshotFeedback m_screenshotFeedback;
    ScreenshotAutoOpen m_screenshotAutoOpen;

    bool m_started = false;
    bool m_expanded = false;
    // What the content shows is not what there is now.
    bool m_isStale = true;
    QHash<ScreenshotFileIdentity, QString> m_editedScreenshots;
    bool m_choosingFolder = false;
    bool m_dragging = false;
    // The latest.
    std::unique_ptr<QMenu> m_menu;
    std::unique_ptr<StatusItem> m_statusItem;
    ShelfTab m_activeTab = ShelfTab::screenshots;
    // The one to go back to after a drag.
    std::optional<ShelfTab> m_tabBeforeDrag;
    std::optional<ScreenshotDestination> m_destination;
    std::optional<ScreenshotFolderState> m_folderState;
    std::optional<ShelfStatus::Capture> m_lastCapture;
    // The captures of the notification.
    QSet<ScreenshotFileIdentity> m_pendingToastSelection;

    std::unique_ptr<Workspace::Observation> m_workspaceObservation;
    std::unique_ptr<Displays::Observation> m_displayObservation;
    // While it is pending the last removal can be undone by a button.
    WorkItem m_undoOffer;
    WorkItem m_displayReconcileWork;
    WorkItem m_timelineRefreshWork;
    // While it is pending loading has not taken long enough to be told of.
    WorkItem m_loadingIndicatorWork;
};

} // namespace tembra

#include "shelf/ShelfController.h"

#include "base/MainThread.h"
#include "screenshots/ScreenshotLocationMonitor.h"
#include "session/ShelfSession.h"
#include "settings/AppSettings.h"
#include "shelf/ClearScreenshotsDialog.h"
#include "shelf/ClipboardShelf.h"
#include "shelf/FolderChooser.h"
#include "shelf/ImageChooser.h"
#include "shelf/SafetyReviewDialog.h"
#include "shelf/ScreenshotCommands.h"
#include "shelf/ScreenshotFolderMessage.h"
#include "shelf/ScreenshotMenu.h"
#include "shelf/ScreenshotTiles.h"
#include "shelf/ShelfContent.h"
#include "shelf/ShelfSurfaces.h"
#include "shelf/ShelfTabs.h"

#include <QMenu>
#include <QRandomGenerator>

#include <algorithm>
#include <utility>

namespace tembra {

using namespace std::chrono_literals;

namespace {

bool isShown(const std::vector<ShelfTab> &tabs, ShelfTab tab) {
    return std::ranges::find(tabs, tab) != tabs.end();
}

} // namespace

ShelfController::ShelfController(AppSettings &settings, std::unique_ptr<ShelfSession> session,
                                 std::unique_ptr<ScreenshotLocationMonitor> locationMonitor,
                                 const ShelfServices &services)
    : m_settings(settings),
      m_services(services),
      m_session(std::move(session)),
      m_locationMonitor(std::move(locationMonitor)),
      m_commands(
          std::make_unique<ScreenshotCommands>(settings, *m_session, services.workspace, services.now)),
      m_hover(services.scheduler, services.uptime, services.inputMonitor),
      m_tabHover(services.scheduler),
      m_announcer(services.scheduler),
      m_preview(services),
      m_ocr(services.recognizer, services.pasteboard, services.scheduler),
      m_shortcut(settings, services.hotKeys, [this] { toggleFromShortcut(); }),
      m_screenshotFeedback(
          [](QStringList &phrases) { std::ranges::shuffle(phrases, *QRandomGenerator::global()); }),
      m_screenshotAutoOpen(services.isCapture) {
    m_commands->onError = [this](const QString &title, const QString &message) { onError(title, message); };
    m_commands->onOpenInEditor = [this] { openSelectedScreenshotsInEditor(); };
    m_preview.onOpenWith = [this](const QStringList &paths, QPoint position) {
        const auto open = [this, paths](const QString &id) { m_commands->openFiles(paths, id); };
        showMenu(screenshotApplicationsMenu(m_services.workspace.applicationsFor(paths), open), position);
    };
    m_preview.onOpen = [this](const QStringList &paths) { m_commands->openFiles(paths, QString()); };
    m_commands->onRecognize = [this](const QString &path) { recognize({OCRInput::File{path}}); };
    m_ocr.onStateChange = [this] { recognitionChanged(); };
    m_ocr.onResize = [this] { fitPanel(); };
    m_ocr.onError = [this](const Error &error) {
        // The panel is above every other window.
        collapse();
        onError(tr("Couldn’t Copy Text"), error.message);
    };
    askForFolder = [](const QString &suggested) { return askForScreenshotsFolder(suggested); };
    askForImage = tembra::askForImage;
    askForSafetyReview = showSafetyReview;
    askForClearing = showClearScreenshots;
    onError = [](const QString &title, const QString &message) {
        qWarning("%s: %s", qUtf8Printable(title), qUtf8Printable(message));
    };
}

ShelfController::~ShelfController() = default;

void ShelfController::start() {
    requireMainThread();
    if (m_started)
        return;
    m_started = true;
    m_session->isRunning = true;
    m_surfaces = std::make_unique<ShelfSurfaces>(m_services, [this]() -> QWidget & { return content(); });
    connectHover();
    connectAnnouncer();
    connectSession();
    startObserving();
    reconcileDisplayWindows();
    refreshWatchers();
    m_session->restartAutoClean();
    m_hover.start();
    m_locationMonitor->start();
    scheduleTimelineRefresh();
    updateFolderState();
    installActiveStatusMenu();
    m_shortcut.start();
}

void ShelfController::startObserving() {
    connect(&m_settings, &AppSettings::updates, this, &ShelfController::applySettings);
    m_workspaceObservation =
        m_services.workspace.observe([this](Workspace::Event event) { workspaceChanged(event); });
    m_displayObservation = m_services.displays.observe([this] { scheduleDisplayReconciliation(); });
    m_locationMonitor->onRead = [this](const ScreenshotDestination &destination) {
        receiveDestination(destination);
    };
}

void ShelfController::stop() {
    requireMainThread();
    if (!m_started)
        return;
    m_started = false;
    m_session->isRunning = false;
    m_session->cancelAutoClean();
    disconnect(&m_settings, nullptr, this, nullptr);
    m_shortcut.stop();
    m_displayReconcileWork.cancel();
    m_timelineRefreshWork.cancel();
    m_undoOffer.cancel();
    m_loadingIndicatorWork.cancel();
    m_statusItem.reset();
    m_preview.close();
    m_ocr.reset();
    m_tabHover.cancelTabHover();
    m_announcer.dismiss();
    m_locationMonitor->stop();
    m_hover.stop();
    m_session->stopWatcher();
    m_displayObservation.reset();
    m_workspaceObservation.reset();
    m_surfaces->removeAll();
    m_expanded = false;
}

ShelfContent &ShelfController::content() {
    if (m_content)
        return *m_content;
    m_content = std::make_unique<ShelfContent>(m_services, m_session->clipboard);
    connectTabs();
    connectFiles();
    connectRecognition();
    return *m_content;
}

void ShelfController::connectTabs() {
    ShelfContent *content = m_content.get();
    connect(content, &ShelfContent::tabClicked, this, [this](ShelfTab tab) { activateTab(tab); });
    connect(content, &ShelfContent::tabHovered, this, [this](ShelfTab tab) { m_tabHover.hoverTab(tab); });
    connect(content, &ShelfContent::tabLeft, this, [this](ShelfTab tab) { m_tabHover.cancelTabHover(tab); });
    connect(content, &ShelfContent::tabDraggedOver, this,
            [this](ShelfTab tab) { m_tabHover.hoverTab(tab, true); });
    connect(content, &ShelfContent::filesDraggedOver, this,
            [this] { activateTab(ShelfTab::fileTray, true); });
    // Where the user put files is where the user stays.
    connect(content, &ShelfContent::filesDropped, this, [this] { activateTab(ShelfTab::fileTray); });
    connect(content, &ShelfContent::messageActed, this, &ShelfController::chooseFolder);
    connect(content, &ShelfContent::settingsRequested, this, &ShelfController::showSettings);
    connect(content, &ShelfContent::programMenuRequested, this,
            [this](QPoint position) { showMenu(statusMenu(statusMenuActions()), position); });
    connect(content, &ShelfContent::notificationHeld, this,
            [this](bool isHeld) { m_announcer.hold(isHeld); });
    connect(content, &ShelfContent::notificationClicked, this, &ShelfController::openAnnounced);
    m_tabHover.canSwitchTo = [this](ShelfTab tab) { return canSwitchTabsWithHover(tab); };
    m_tabHover.onActivate = [this](ShelfTab tab) { activateTab(tab); };
}

void ShelfController::connectFiles() {
    ShelfContent *content = m_content.get();
    connect(content, &ShelfContent::selectionChanged, this, [this] {
        if (m_activeTab == ShelfTab::screenshots)
            m_session->selected = m_content->selection();
        updatePreview();
    });
    connect(content, &ShelfContent::activated, this, [this](const FileTile &tile) { openTile(tile.path); });
    connect(content, &ShelfContent::contextMenuRequested, this,
            [this](QPoint position) { showMenu(m_commands->menu(), position); });
    connect(content, &ShelfContent::backgroundMenuRequested, this,
            &ShelfController::showScreenshotBackgroundMenu);
    connect(content, &ShelfContent::trayMenuRequested, this,
            [this](QPoint position) { showMenu(m_content->tray().contextMenu(), position); });
    connect(content, &ShelfContent::filesTakenOut, this, [this] {
        offerUndo();
        render();
    });
    connect(content, &ShelfContent::undoRequested, this, &ShelfController::undo);
    connect(content, &ShelfContent::dragRequested, this, &ShelfController::dragSelected);
    connect(content, &ShelfContent::failed, this,
            [this](const QString &title, const QString &message) { onError(title, message); });
}

void ShelfController::connectHover() {
    m_hover.snapshot = [this] { return hoverSnapshot(); };
    m_hover.mouseLocation = [this] { return m_services.inputMonitor.pointer(); };
    m_hover.onSetExpanded = [this](bool expanded) {
        setExpanded(expanded);
        // A pointer that left for the notch of another display is there already.
        if (!expanded)
            m_hover.requestPointerEvaluation();
    };
    m_surfaces->onPointerActivity = [this] { m_hover.requestPointerEvaluation(); };
    m_popups.onClosed = [this] { m_hover.requestPointerEvaluation(); };
    m_hover.onActivationClick = [this] { toggleFromShortcut(); };
    // A press opens what hovering would open; in click mode the click is seen wherever it goes.
    m_surfaces->onActivationPressed = [this] {
        if (m_settings.state().activationMode == ActivationMode::hover)
            setExpanded(true);
    };
    m_surfaces->onEscape = [this] { cancel(); };
    m_surfaces->onKey = [this](const QKeyEvent &event) { return handleShelfKey(event); };
}

void ShelfController::connectAnnouncer() {
    m_announcer.canShow = [this] { return m_started && !m_expanded; };
    m_announcer.onShow = [this](const auto &notification) { showNotification(notification); };
}

void ShelfController::connectSession() {
    m_session->onFolderChange = [this](FolderShelf &shelf, bool, int) { receiveFolderChange(shelf); };
    m_session->onNewFiles = [this](const std::vector<Shot> &shots) { receiveNewFiles(shots); };
    m_session->onChange = [this] {
        render();
        shotsChanged();
    };
    m_session->clipboard.onChange = [this] { trayChanged(); };
    m_session->onBeforeRemoval = [this] { removalBegins(); };
    m_session->onError = [this](const QString &title, const QString &message) { onError(title, message); };
    m_session->isBusy = [this](bool) { return m_expanded || m_choosingFolder; };
    m_session->continuesScreenshotCopySeries = [this] { return m_announcer.isSeriesOpen(); };
    m_session->screenshotAutoCopy.onFinished = [this](ScreenshotAutoCopy::Outcome outcome) {
        copyFinished(outcome);
    };
    m_session->onSafetyReview = [this](int count, ScreenshotAutoCleanPeriod period, auto decide) {
        askForSafetyReview(count, period, std::move(decide));
    };
}

void ShelfController::setExpanded(bool expanded) {
    requireMainThread();
    if (!m_started || expanded == m_expanded)
        return;
    if (expanded)
        showExpanded();
    else
        hideSurface();
}

void ShelfController::showExpanded() {
    if (!activateSurface())
        return m_hover.didCollapse();
    m_expanded = true;
    m_announcer.dismiss();
    if (m_hover.isDraggingFiles())
        activateTab(ShelfTab::fileTray, true);
    // The tool's setting may have been changed since: nobody tells, so it is asked when somebody looks.
    m_locationMonitor->check();
    if (m_isStale)
        render();
    fitPanel();
    m_session->screenshotAutoCopy.writePostponed();
}

// A display that has just come may not have its window yet.
bool ShelfController::activateSurface() {
    const DisplayPreference preference = m_settings.state().displayPreference;
    const ScreenPoint pointer = m_services.inputMonitor.pointer();
    if (m_surfaces->activateForOpening(preference, pointer))
        return true;
    m_surfaces->reconcileDisplayWindows(preference);
    return m_surfaces->activateForOpening(preference, pointer);
}

void ShelfController::hideSurface() {
    m_expanded = false;
    m_preview.close();
    m_ocr.setPresented(false);
    m_tabHover.cancelTabHover();
    if (const auto before = std::exchange(m_tabBeforeDrag, std::nullopt)) {
        m_activeTab = *before;
        m_isStale = true;
    }
    m_surfaces->present(ShelfPresentation::collapsed());
    m_hover.didCollapse();
    m_announcer.flushFolderNotification();
    if (onCollapsed)
        onCollapsed();
}

void ShelfController::openManually() {
    m_hover.openManually();
    if (m_expanded && m_surfaces->active()) {
        m_surfaces->active()->takeKeyboardFocus();
        content().takeFocus();
    }
    m_session->screenshotAutoCopy.writePostponed();
}

void ShelfController::toggleFromShortcut() {
    if (m_expanded)
        collapse();
    else
        openManually();
}

void ShelfController::reopenFromDock() {
    openManually();
}

bool ShelfController::activateTab(ShelfTab tab, bool duringDrag) {
    if (!isShown(tabs(), tab))
        return false;
    if (!duringDrag)
        m_tabBeforeDrag.reset();
    else if (!m_tabBeforeDrag && tab != m_activeTab)
        m_tabBeforeDrag = m_activeTab;
    m_activeTab = tab;
    if (tab == ShelfTab::imageToText)
        m_preview.close();
    m_ocr.setPresented(tab == ShelfTab::imageToText);
    render();
    fitPanel();
    return true;
}

std::vector<ShelfTab> ShelfController::tabs() const {
    return shownTabs(m_settings.state());
}

bool ShelfController::canSwitchTabsWithHover(ShelfTab tab) const {
    return m_settings.state().hoverOnTabToOpen && m_expanded && isShown(tabs(), tab);
}

void ShelfController::applySettings(const AppSettingsState &state) {
    if (state.screenshotsFolder && state.screenshotsFolder != m_session->folderShelf().url) {
        rereadDestination();
        refreshWatchers();
    }
    m_session->applySettings();
    configureAutoOpen();
    if (!isShown(tabs(), m_activeTab))
        m_activeTab = ShelfTab::screenshots;
    if (m_tabBeforeDrag && !isShown(tabs(), *m_tabBeforeDrag))
        m_tabBeforeDrag.reset();
    if (!state.imageToTextEnabled)
        m_ocr.reset();
    reconcileDisplayWindows();
    updateFolderState();
}

void ShelfController::refreshWatchers() {
    m_session->refreshWatcher();
    configureAutoOpen();
}

void ShelfController::configureAutoOpen() {
    const AppSettingsState &state = m_settings.state();
    m_screenshotAutoOpen.configure(state.automaticallyOpenEditor, state.screenshotsFolder, m_services.now());
}

void ShelfController::setEditedScreenshots(const QHash<ScreenshotFileIdentity, QString> &revisions) {
    requireMainThread();
    m_editedScreenshots = revisions;
    render();
    shotsChanged();
}

// Nothing is drawn for a shelf that nobody sees: opening renders it, if anything has changed since.
void ShelfController::render() {
    m_isStale = true;
    if (!m_started || !m_expanded)
        return;
    m_isStale = false;
    ShelfContent::State state{.tabs = tabs(), .activeTab = m_activeTab};
    const QStringList undoable = m_session->screenshotUndoManager.undoNames();
    if (m_undoOffer.isPending() && !undoable.isEmpty())
        state.undoName = undoable.first();
    const AppSettingsState &settings = m_settings.state();
    state.showsFileNames = settings.showFileNames;
    state.message = screenshotFolderMessage(m_folderState.value_or(ScreenshotFolderState::none));
    if (state.message && m_loadingIndicatorWork.isPending())
        state.message->isLoading = false;
    if (!state.message) {
        state.screenshots = {.sections =
                                 screenshotTiles(m_commands->sections(), m_settings.pinnedScreenshotPaths(),
                                                 m_editedScreenshots),
                             .showFileNames = settings.showFileNames,
                             .grouped = settings.groupScreenshotsByDate};
        state.selection = m_session->selected;
        if (state.screenshots.sections.empty())
            state.message = emptyFolderMessage();
    }
    content().apply(std::move(state));
}

HoverSnapshot ShelfController::hoverSnapshot() const {
    HoverSnapshot snapshot;
    snapshot.activationMode = m_settings.state().activationMode;
    snapshot.expanded = m_expanded;
    snapshot.compact = !m_expanded && m_announcer.showing().has_value();
    snapshot.choosingFolder = m_choosingFolder;
    snapshot.previewOpen =
        m_dragging || m_preview.isOpen() || PopupWatch::isPopupOpen() || m_surfaces->hasLostDisplay();
    snapshot.activationNotches = m_surfaces->activationNotches();
    if (const ShelfDisplayWindow *active = m_surfaces->active()) {
        snapshot.notch = active->display().activationRect();
        snapshot.interactionPanel = active->interactionPanel();
        snapshot.visiblePanel = active->visiblePanel();
        snapshot.scale = active->display().scale;
        snapshot.panelWindow = active->panelWindow();
    }
    return snapshot;
}

} // namespace tembra

#include "shelf/ShelfController.h"

#include "base/MainThread.h"
#include "screenshots/ScreenshotLocationMonitor.h"
#include "session/ShelfSession.h"
#include "settings/AppSettings.h"
#include "shelf/ClearScreenshotsDialog.h"
#include "shelf/ClipboardShelf.h"
#include "shelf/FolderChooser.h"
#include "shelf/SafetyReviewDialog.h"
#include "shelf/ScreenshotCommands.h"
#include "shelf/ScreenshotFolderMessage.h"
#include "shelf/ScreenshotTiles.h"
#include "shelf/ShelfContent.h"
#include "shelf/ShelfSurfaces.h"
#include "shelf/ShelfTabs.h"

#include <QDateTime>
#include <QMenu>
#include <QRandomGenerator>

#include <algorithm>
#include <utility>

namespace tembra {

using namespace std::chrono_literals;

namespace {

constexpr QSize panelSize{744, 256};

// Screens come and go in bursts while a desktop rearranges itself.
constexpr auto displaySettling = 200ms;

// The tabs whose content there is.
const std::vector<ShelfTab> builtTabs{ShelfTab::screenshots, ShelfTab::fileTray};

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
      m_screenshotFeedback(
          [](QStringList &phrases) { std::ranges::shuffle(phrases, *QRandomGenerator::global()); }),
      m_screenshotAutoOpen(services.isCapture) {
    m_commands->onError = [this](const QString &title, const QString &message) { onError(title, message); };
    m_preview.onOpen = [this](const QStringList &paths) { m_commands->openFiles(paths, QString()); };
    askForFolder = askForScreenshotsFolder;
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
    m_displayReconcileWork.cancel();
    m_timelineRefreshWork.cancel();
    m_undoOffer.cancel();
    m_statusItem.reset();
    m_preview.close();
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
    connect(m_content.get(), &ShelfContent::tabClicked, this, [this](ShelfTab tab) { activateTab(tab); });
    connect(m_content.get(), &ShelfContent::tabDraggedOver, this,
            [this](ShelfTab tab) { m_tabHover.hoverTab(tab, true); });
    connect(m_content.get(), &ShelfContent::filesDraggedOver, this,
            [this] { activateTab(ShelfTab::fileTray, true); });
    // Where the user put files is where the user stays.
    connect(m_content.get(), &ShelfContent::filesDropped, this, [this] { activateTab(ShelfTab::fileTray); });
    connect(m_content.get(), &ShelfContent::trayMenuRequested, this,
            [this](QPoint position) { showMenu(content().tray().contextMenu(), position); });
    connect(m_content.get(), &ShelfContent::failed, this,
            [this](const QString &title, const QString &message) { onError(title, message); });
    connect(m_content.get(), &ShelfContent::tabHovered, this,
            [this](ShelfTab tab) { m_tabHover.hoverTab(tab); });
    connect(m_content.get(), &ShelfContent::tabLeft, this,
            [this](ShelfTab tab) { m_tabHover.cancelTabHover(tab); });
    connect(m_content.get(), &ShelfContent::messageActed, this, &ShelfController::chooseFolder);
    connect(m_content.get(), &ShelfContent::selectionChanged, this, [this] {
        if (m_activeTab == ShelfTab::screenshots)
            m_session->selected = m_content->selection();
        updatePreview();
    });
    connect(m_content.get(), &ShelfContent::contextMenuRequested, this,
            [this](QPoint position) { showMenu(m_commands->menu(), position); });
    connect(m_content.get(), &ShelfContent::backgroundMenuRequested, this,
            &ShelfController::showScreenshotBackgroundMenu);
    connect(m_content.get(), &ShelfContent::settingsRequested, this,
            [this](QPoint position) { showMenu(statusMenu(statusMenuActions()), position); });
    connect(m_content.get(), &ShelfContent::undoRequested, this, &ShelfController::undo);
    connect(m_content.get(), &ShelfContent::notificationHeld, this,
            [this](bool isHeld) { m_announcer.hold(isHeld); });
    connect(m_content.get(), &ShelfContent::notificationClicked, this, &ShelfController::openAnnounced);
    connect(m_content.get(), &ShelfContent::dragRequested, this, &ShelfController::dragSelected);
    m_tabHover.canSwitchTo = [this](ShelfTab tab) { return canSwitchTabsWithHover(tab); };
    m_tabHover.onActivate = [this](ShelfTab tab) { activateTab(tab); };
    return *m_content;
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
    m_session->onChange = [this] { render(); };
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
    render();
    m_surfaces->present(ShelfPresentation::expanded(QSize(panelSize.width(), targetPanelHeight())));
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
    m_tabHover.cancelTabHover();
    m_activeTab = std::exchange(m_tabBeforeDrag, std::nullopt).value_or(m_activeTab);
    m_surfaces->present(ShelfPresentation::collapsed());
    m_hover.didCollapse();
    m_announcer.flushFolderNotification();
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
    render();
    return true;
}

std::vector<ShelfTab> ShelfController::tabs() const {
    return shownTabs(m_settings.state(), builtTabs);
}

bool ShelfController::canSwitchTabsWithHover(ShelfTab tab) const {
    return m_settings.state().hoverOnTabToOpen && m_expanded && isShown(tabs(), tab);
}

int ShelfController::targetPanelHeight() const {
    return panelSize.height();
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

// Nothing is drawn for a shelf that nobody sees: opening renders it.
void ShelfController::render() {
    if (!m_started || !m_expanded)
        return;
    ShelfContent::State state{.tabs = tabs(), .activeTab = m_activeTab};
    const QStringList undoable = m_session->screenshotUndoManager.undoNames();
    if (m_undoOffer.isPending() && !undoable.isEmpty())
        state.undoName = undoable.first();
    const AppSettingsState &settings = m_settings.state();
    state.showsFileNames = settings.showFileNames;
    state.message = screenshotFolderMessage(m_folderState.value_or(ScreenshotFolderState::none));
    if (!state.message) {
        state.screenshots = {.sections =
                                 screenshotTiles(m_commands->sections(), m_settings.pinnedScreenshotPaths()),
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
        m_dragging || m_preview.isOpen() || (m_menu && m_menu->isVisible()) || m_surfaces->hasLostDisplay();
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

void ShelfController::workspaceChanged(Workspace::Event event) {
    switch (event) {
    case Workspace::Event::activeSpaceChanged:
        m_hover.activeSpaceChanged();
        break;
    case Workspace::Event::didWake:
        refreshTimeline();
        m_hover.requestPointerEvaluation();
        break;
    case Workspace::Event::didMount:
        m_settings.refreshFolderAccess();
        m_settings.refreshUnresolvedPins(true);
        // What is mounted over a folder hides it without a word.
        refreshWatchers();
        updateFolderState();
        break;
    case Workspace::Event::didUnmount:
        m_settings.refreshFolderAccess();
        m_session->fileWatcher().scanNow();
        updateFolderState();
        break;
    case Workspace::Event::compositingChanged:
        m_surfaces->compositingChanged();
        break;
    case Workspace::Event::willSleep:
        break;
    }
}

void ShelfController::scheduleDisplayReconciliation() {
    if (!m_displayReconcileWork.isPending())
        m_displayReconcileWork =
            m_services.scheduler.schedule(displaySettling, [this] { reconcileDisplayWindows(); });
}

void ShelfController::reconcileDisplayWindows() {
    m_surfaces->reconcileDisplayWindows(m_settings.state().displayPreference);
    // An open shelf that came here from another display waits for the pointer to follow.
    if (!m_expanded)
        m_hover.requestPointerEvaluation();
}

void ShelfController::refreshTimeline() {
    render();
    scheduleTimelineRefresh();
}

// At midnight today's captures become yesterday's.
void ShelfController::scheduleTimelineRefresh() {
    const auto now = std::chrono::floor<std::chrono::milliseconds>(m_services.now().time_since_epoch());
    const QDateTime local = QDateTime::fromMSecsSinceEpoch(now.count());
    const QDateTime midnight = local.date().addDays(1).startOfDay();
    const std::chrono::milliseconds delay(local.msecsTo(midnight));
    m_timelineRefreshWork = m_services.scheduler.schedule(
        delay, [this] { refreshTimeline(); }, 1s);
}

} // namespace tembra

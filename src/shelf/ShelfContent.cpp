#include "shelf/ShelfContent.h"

#include "recognition/ui/OCRPanel.h"
#include "shelf/AccessibleShelf.h"
#include "shelf/CaptureNotificationView.h"
#include "shelf/ClipboardShelf.h"
#include "shelf/FileDrag.h"
#include "shelf/NativeScreenshotGrid.h"
#include "shelf/ScreenshotMessageView.h"
#include "shelf/ScreenshotTiles.h"
#include "shelf/ShelfHeader.h"
#include "tray/ClipboardStore.h"

#include <QAbstractButton>
#include <QDragEnterEvent>

#include <algorithm>
#include <utility>

namespace tembra {

ShelfContent::ShelfContent(const ShelfServices &services, ClipboardStore &store) : m_files(services.files) {
    installAccessibleShelf();
    build(services, store);
    connectTray();
    setAcceptDrops(true);
    connect(m_header, &ShelfHeader::tabClicked, this, &ShelfContent::tabClicked);
    connect(m_header, &ShelfHeader::tabHovered, this, &ShelfContent::tabHovered);
    connect(m_header, &ShelfHeader::tabLeft, this, &ShelfContent::tabLeft);
    connect(m_header, &ShelfHeader::settingsClicked, this, &ShelfContent::settingsRequested);
    connect(m_header, &ShelfHeader::programMenuRequested, this, &ShelfContent::programMenuRequested);
    connect(m_header, &ShelfHeader::undoClicked, this, &ShelfContent::undoRequested);
    connect(m_notification, &CaptureNotificationView::undoClicked, this, &ShelfContent::undoRequested);
    connect(m_notification, &CaptureNotificationView::hovered, this, &ShelfContent::notificationHeld);
    connect(m_notification, &CaptureNotificationView::dragBegan, this,
            [this] { Q_EMIT notificationHeld(true); });
    connect(m_notification, &CaptureNotificationView::dragEnded, this,
            [this] { Q_EMIT notificationHeld(false); });
    connect(m_notification, &CaptureNotificationView::clicked, this, &ShelfContent::notificationClicked);
    connect(m_message, &ScreenshotMessageView::acted, this, &ShelfContent::messageActed);
    connect(m_grid, &NativeScreenshotGrid::selectionChanged, this, &ShelfContent::selectionChanged);
    connect(m_grid, &NativeScreenshotGrid::contextMenuRequested, this,
            [this](const FileTile &, QPoint position) { Q_EMIT contextMenuRequested(position); });
    connect(m_grid, &NativeScreenshotGrid::backgroundMenuRequested, this,
            &ShelfContent::backgroundMenuRequested);
    connect(m_grid, &NativeScreenshotGrid::dragRequested, this, &ShelfContent::dragRequested);
    connect(m_grid, &NativeScreenshotGrid::activated, this, &ShelfContent::activated);
}

ShelfContent::~ShelfContent() = default;

void ShelfContent::build(const ShelfServices &services, ClipboardStore &store) {
    m_header = new ShelfHeader(this);
    const FilePresentation presentation{services.thumbnails, services.files, m_thumbnailCache};
    m_grid = new NativeScreenshotGrid(presentation, this);
    m_tray = new ClipboardShelf(store, services, presentation, this);
    m_recognition = new OCRPanel(services.scheduler, this);
    m_message = new ScreenshotMessageView(this);
    m_notification = new CaptureNotificationView(services.thumbnails, services.files, this);
}

void ShelfContent::connectTray() {
    connect(m_header, &ShelfHeader::tabDraggedOver, this, &ShelfContent::tabDraggedOver);
    connect(m_header, &ShelfHeader::droppedOn, this, &ShelfContent::receiveDrop);
    connect(m_tray, &ClipboardShelf::filesDropped, this, &ShelfContent::filesDropped);
    connect(m_tray, &ClipboardShelf::filesTakenOut, this, &ShelfContent::filesTakenOut);
    connect(m_tray, &ClipboardShelf::menuRequested, this, &ShelfContent::trayMenuRequested);
    connect(m_tray, &ClipboardShelf::dragRequested, this, &ShelfContent::dragRequested);
    connect(m_tray, &ClipboardShelf::selectionChanged, this, &ShelfContent::selectionChanged);
    connect(m_tray, &ClipboardShelf::failed, this, &ShelfContent::failed);
}

void ShelfContent::receiveDrop(ShelfTab tab, const QMimeData *content) {
    if (tab == ShelfTab::fileTray)
        m_tray->receiveDrop(*content);
    else if (const auto input = OCRInput::read(*content))
        Q_EMIT m_recognition->inputReceived(*input);
}

void ShelfContent::apply(State state) {
    const bool isNotification = state.notification.has_value();
    m_notification->setVisible(isNotification);
    m_header->setVisible(!isNotification);
    if (isNotification) {
        for (QWidget *host : tabHosts())
            host->hide();
        return m_notification->apply(*state.notification);
    }
    const bool isSwitch = state.activeTab != m_activeTab;
    if (isSwitch)
        rememberTabResponder(m_activeTab);
    const bool gridComesBack = m_grid->isHidden();
    m_tabs = state.tabs;
    m_activeTab = state.activeTab;
    m_header->apply(state.tabs, state.activeTab);
    m_header->offerUndo(state.undoName);
    showTab(state);
    if (isActiveWindow() && (isSwitch || (gridComesBack && m_grid->isVisible())))
        restoreTabResponder(m_activeTab);
}

void ShelfContent::showTab(State &state) {
    const bool isScreenshots = m_activeTab == ShelfTab::screenshots;
    m_grid->setVisible(isScreenshots && !state.message);
    m_message->setVisible(isScreenshots && state.message);
    m_tray->setVisible(m_activeTab == ShelfTab::fileTray);
    m_recognition->setVisible(m_activeTab == ShelfTab::imageToText);
    if (m_activeTab == ShelfTab::fileTray) {
        m_tray->setShowsFileNames(state.showsFileNames);
        return m_tray->refresh();
    }
    if (!isScreenshots)
        return;
    if (state.message) {
        // Nothing that is hidden stays selected.
        m_grid->render({});
        return m_message->apply(*state.message);
    }
    m_grid->render(std::move(state.screenshots));
    m_grid->select(screenshotTileIDs(state.selection));
}

std::vector<QWidget *> ShelfContent::tabHosts() const {
    return {m_grid, m_message, m_tray, m_recognition};
}

QWidget *ShelfContent::tabHost(ShelfTab tab) const {
    if (tab == ShelfTab::fileTray)
        return m_tray;
    if (tab == ShelfTab::imageToText)
        return m_recognition;
    return m_message->isHidden() ? static_cast<QWidget *>(m_grid) : m_message;
}

void ShelfContent::rememberTabResponder(ShelfTab tab) {
    QWidget *focused = window()->focusWidget();
    if (focused && tabHost(tab)->isAncestorOf(focused))
        m_tabResponders[tab] = focused;
}

void ShelfContent::restoreTabResponder(ShelfTab tab) {
    const QPointer<QWidget> responder = m_tabResponders[tab];
    if (responder && responder->isVisible())
        responder->setFocus(Qt::OtherFocusReason);
    else
        tabHost(tab)->setFocus(Qt::OtherFocusReason);
}

QStringList ShelfContent::selectedPaths() const {
    if (m_activeTab == ShelfTab::fileTray)
        return m_tray->availableSelection();
    return m_activeTab == ShelfTab::screenshots ? m_grid->selectedPaths() : QStringList();
}

void ShelfContent::takeFocus() {
    restoreTabResponder(m_activeTab);
}

bool ShelfContent::isButtonFocused() const {
    return qobject_cast<QAbstractButton *>(window()->focusWidget()) != nullptr;
}

void ShelfContent::revealSelection() {
    m_grid->revealSelection();
}

void ShelfContent::dragSelected() {
    if (m_activeTab == ShelfTab::fileTray)
        return m_tray->dragSelected();
    dragFiles(*m_grid, m_grid->selectedPaths(), m_files, m_grid->selectedPictures());
}

QSet<ScreenshotFileIdentity> ShelfContent::selection() const {
    return screenshotIdentities(m_grid->selection());
}

void ShelfContent::dragEnterEvent(QDragEnterEvent *event) {
    const bool hasTray = std::ranges::find(m_tabs, ShelfTab::fileTray) != m_tabs.end();
    // The other tabs take files themselves, and are reached by way of the space around them.
    if (!event->source() && hasTray && m_activeTab == ShelfTab::screenshots &&
        ClipboardStore::canRead(*event->mimeData()))
        Q_EMIT filesDraggedOver();
}

void ShelfContent::resizeEvent(QResizeEvent *) {
    layOut();
}

void ShelfContent::layOut() {
    m_header->setGeometry(0, 0, width(), ShelfHeader::height);
    const QRect below(0, ShelfHeader::height, width(), height() - ShelfHeader::height);
    m_grid->setGeometry(below);
    m_message->setGeometry(below);
    m_tray->setGeometry(below);
    m_recognition->setGeometry(below);
    m_notification->setGeometry(rect());
}

} // namespace tembra

#include "shelf/ShelfContent.h"

#include "shelf/CaptureNotificationView.h"
#include "shelf/FileDrag.h"
#include "shelf/NativeScreenshotGrid.h"
#include "shelf/ScreenshotMessageView.h"
#include "shelf/ShelfHeader.h"

#include <utility>

namespace tembra {

ShelfContent::ShelfContent(const ShelfServices &services) {
    build(services);
    connect(m_header, &ShelfHeader::tabClicked, this, &ShelfContent::tabClicked);
    connect(m_header, &ShelfHeader::tabHovered, this, &ShelfContent::tabHovered);
    connect(m_header, &ShelfHeader::tabLeft, this, &ShelfContent::tabLeft);
    connect(m_header, &ShelfHeader::settingsClicked, this, &ShelfContent::settingsRequested);
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
            [this](const Shot &, QPoint position) { Q_EMIT contextMenuRequested(position); });
    connect(m_grid, &NativeScreenshotGrid::backgroundMenuRequested, this,
            &ShelfContent::backgroundMenuRequested);
    connect(m_grid, &NativeScreenshotGrid::dragRequested, this, &ShelfContent::dragRequested);
    connect(m_grid, &NativeScreenshotGrid::activated, this, &ShelfContent::activated);
}

ShelfContent::~ShelfContent() = default;

void ShelfContent::build(const ShelfServices &services) {
    m_header = new ShelfHeader(this);
    m_grid = new NativeScreenshotGrid({services.thumbnails, services.files, m_thumbnailCache}, this);
    m_message = new ScreenshotMessageView(this);
    m_notification = new CaptureNotificationView(services.thumbnails, this);
}

void ShelfContent::apply(State state) {
    const bool isNotification = state.notification.has_value();
    m_notification->setVisible(isNotification);
    m_header->setVisible(!isNotification);
    const bool gridComesBack = !isNotification && !state.message && m_grid->isHidden();
    m_grid->setVisible(!isNotification && !state.message);
    m_message->setVisible(!isNotification && state.message);
    if (isNotification)
        return m_notification->apply(*state.notification);
    m_header->apply(state.tabs, state.activeTab);
    m_header->offerUndo(state.undoName);
    if (state.message) {
        // Nothing that is hidden stays selected.
        m_grid->render({});
        return m_message->apply(*state.message);
    }
    m_grid->render({.sections = std::move(state.sections),
                    .pinnedPaths = std::move(state.pinnedPaths),
                    .showFileNames = state.showsFileNames,
                    .grouped = state.isGrouped});
    m_grid->select(state.selection);
    if (gridComesBack && isActiveWindow())
        m_grid->takeFocus();
}

QStringList ShelfContent::selectedPaths() const {
    return m_grid->selectedPaths();
}

void ShelfContent::takeFocus() {
    if (m_message->isHidden())
        m_grid->takeFocus();
    else
        m_message->setFocus();
}

void ShelfContent::revealSelection() {
    m_grid->revealSelection();
}

void ShelfContent::dragSelected() {
    dragFiles(*m_grid, m_grid->selectedPaths(), m_grid->selectedPictures());
}

std::vector<Shot> ShelfContent::selectedShots() const {
    return m_grid->selectedShots();
}

QSet<ScreenshotFileIdentity> ShelfContent::selection() const {
    QSet<ScreenshotFileIdentity> identities;
    for (const Shot &shot : selectedShots())
        identities.insert(shot.identity);
    return identities;
}

void ShelfContent::resizeEvent(QResizeEvent *) {
    layOut();
}

void ShelfContent::layOut() {
    m_header->setGeometry(0, 0, width(), ShelfHeader::height);
    const QRect below(0, ShelfHeader::height, width(), height() - ShelfHeader::height);
    m_grid->setGeometry(below);
    m_message->setGeometry(below);
    m_notification->setGeometry(rect());
}

} // namespace tembra

#pragma once

#include "screenshots/ScreenshotSection.h"
#include "shelf/CaptureNotification.h"
#include "shelf/FileThumbnailCache.h"
#include "shelf/ScreenshotMessage.h"
#include "shelf/ShelfServices.h"
#include "shelf/ShelfTab.h"

#include <QSet>
#include <QWidget>

#include <optional>
#include <vector>

namespace tembra {

class CaptureNotificationView;
class NativeScreenshotGrid;
class ScreenshotMessageView;
class ShelfHeader;

// Everything inside the shelf's outline: the header with the tabs, the content of the active tab, and, while
// the shelf is closed, the notification. It moves from one display's window to another's. View space, main
// thread.
class ShelfContent final : public QWidget {
    Q_OBJECT

public:
    // What is shown, as one value; the view is a function of it.
    struct State {
        std::vector<ShelfTab> tabs;
        ShelfTab activeTab = ShelfTab::screenshots;
        // Shown in place of the grid.
        std::optional<ScreenshotMessage> message;
        std::vector<ScreenshotSection> sections;
        QSet<QString> pinnedPaths;
        QSet<ScreenshotFileIdentity> selection;
        // What an offered undo would reverse.
        std::optional<QString> undoName;
        bool isGrouped = false;
        bool showsFileNames = true;
        // Shown in place of everything else.
        std::optional<CaptureNotification> notification;
    };

    explicit ShelfContent(const ShelfServices &services);
    ~ShelfContent() override;

    void apply(State state);
    [[nodiscard]] QStringList selectedPaths() const;
    [[nodiscard]] std::vector<Shot> selectedShots() const;
    void revealSelection();
    // Gives the keyboard to the content of the active tab.
    void takeFocus();
    // Drags the selected screenshots out; returns when the drag has ended.
    void dragSelected();
    [[nodiscard]] QSet<ScreenshotFileIdentity> selection() const;

Q_SIGNALS:
    void tabClicked(tembra::ShelfTab tab);
    void tabHovered(tembra::ShelfTab tab);
    void tabLeft(tembra::ShelfTab tab);
    // The button of the message.
    void messageActed();
    void selectionChanged();
    // For the selected screenshots.
    void contextMenuRequested(QPoint globalPosition);
    void backgroundMenuRequested(QPoint globalPosition);
    void dragRequested();
    void undoRequested();
    void settingsRequested(QPoint globalPosition);
    void notificationClicked();
    // The pointer rests on it, or drags from it.
    void notificationHeld(bool isHeld);
    void activated(const tembra::Shot &shot);

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    void build(const ShelfServices &services);
    void layOut();

    FileThumbnailCache m_thumbnailCache;
    ShelfHeader *m_header = nullptr;
    NativeScreenshotGrid *m_grid = nullptr;
    ScreenshotMessageView *m_message = nullptr;
    CaptureNotificationView *m_notification = nullptr;
};

} // namespace tembra

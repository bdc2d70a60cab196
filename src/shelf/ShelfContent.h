#pragma once

#include "shelf/CaptureNotification.h"
#include "shelf/FileGridState.h"
#include "shelf/FileThumbnailCache.h"
#include "shelf/ScreenshotMessage.h"
#include "shelf/ShelfServices.h"
#include "shelf/ShelfTab.h"

#include <QPointer>
#include <QSet>
#include <QWidget>

#include <map>
#include <optional>
#include <vector>

namespace tembra {

class CaptureNotificationView;
class ClipboardShelf;
class ClipboardStore;
class NativeScreenshotGrid;
class OCRPanel;
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
        FileGridState screenshots;
        bool showsFileNames = true;
        QSet<ScreenshotFileIdentity> selection;
        // What an offered undo would reverse.
        std::optional<QString> undoName;
        // Shown in place of everything else.
        std::optional<CaptureNotification> notification;
    };

    // The store must outlive this.
    ShelfContent(const ShelfServices &services, ClipboardStore &store);
    ~ShelfContent() override;

    void apply(State state);
    // Of the files of the active tab that can be reached.
    [[nodiscard]] QStringList selectedPaths() const;
    void revealSelection();
    // Gives the keyboard to the content of the active tab.
    void takeFocus();
    [[nodiscard]] bool isButtonFocused() const;
    // Drags the selected files out; returns when the drag has ended.
    void dragSelected();
    // Of the screenshots.
    [[nodiscard]] QSet<ScreenshotFileIdentity> selection() const;
    [[nodiscard]] ClipboardShelf &tray() { return *m_tray; }
    [[nodiscard]] OCRPanel &recognition() { return *m_recognition; }

Q_SIGNALS:
    void tabClicked(tembra::ShelfTab tab);
    void tabHovered(tembra::ShelfTab tab);
    void tabLeft(tembra::ShelfTab tab);
    // Files from another program are held over a tab that does not take them.
    void filesDraggedOver();
    void filesDropped();
    void filesTakenOut();
    void tabDraggedOver(tembra::ShelfTab tab);
    void trayMenuRequested(QPoint globalPosition);
    void failed(const QString &title, const QString &message);
    // The button of the message.
    void messageActed();
    void selectionChanged();
    // For the selected screenshots.
    void contextMenuRequested(QPoint globalPosition);
    void backgroundMenuRequested(QPoint globalPosition);
    void dragRequested();
    void undoRequested();
    void settingsRequested();
    void programMenuRequested(QPoint globalPosition);
    void notificationClicked();
    // The pointer rests on it, or drags from it.
    void notificationHeld(bool isHeld);
    void activated(const tembra::FileTile &tile);

protected:
    void resizeEvent(QResizeEvent *event) override;
    void dragEnterEvent(QDragEnterEvent *event) override;

private:
    void build(const ShelfServices &services, ClipboardStore &store);
    void connectTray();
    void receiveDrop(ShelfTab tab, const QMimeData *content);
    void layOut();
    void showTab(State &state);
    [[nodiscard]] std::vector<QWidget *> tabHosts() const;
    // What holds the content of a tab.
    [[nodiscard]] QWidget *tabHost(ShelfTab tab) const;
    void rememberTabResponder(ShelfTab tab);
    void restoreTabResponder(ShelfTab tab);

    const FileFactsReader &m_files;
    std::vector<ShelfTab> m_tabs;
    ShelfTab m_activeTab = ShelfTab::screenshots;
    FileThumbnailCache m_thumbnailCache;
    ShelfHeader *m_header = nullptr;
    NativeScreenshotGrid *m_grid = nullptr;
    ClipboardShelf *m_tray = nullptr;
    OCRPanel *m_recognition = nullptr;
    ScreenshotMessageView *m_message = nullptr;
    CaptureNotificationView *m_notification = nullptr;
    // What had the keyboard last in each tab.
    std::map<ShelfTab, QPointer<QWidget>> m_tabResponders;
};

} // namespace tembra

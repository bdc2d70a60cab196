#pragma once

#include <QWidget>

namespace tembra {

class EditorBanner;
class EditorDock;
class EditorHeader;
class EditorSidebar;
class EditorZoomControl;
class Pasteboard;
class Scheduler;
class ScreenshotCanvasView;
class Thumbnails;
class UserDefaults;

// The editor's window: the canvas with what stands around it. It lays its parts out and hands keys and the
// commands of the menus on; what they mean is its controller's to say. Main thread.
class ScreenshotEditorWindow final : public QWidget {
    Q_OBJECT

public:
    static constexpr QSize smallest{720, 480};
    static constexpr QSize usual{1200, 740};

    // The services must outlive this.
    ScreenshotEditorWindow(UserDefaults &defaults, Pasteboard &pasteboard, Thumbnails &thumbnails,
                           Scheduler &scheduler);

    // What floats over the canvas may have another size.
    void placeOverlays();

    [[nodiscard]] EditorHeader &header() { return *m_header; }
    [[nodiscard]] EditorBanner &banner() { return *m_banner; }
    [[nodiscard]] EditorSidebar &sidebar() { return *m_sidebar; }
    [[nodiscard]] ScreenshotCanvasView &canvas() { return *m_canvas; }
    [[nodiscard]] EditorDock &dock() { return *m_dock; }
    [[nodiscard]] EditorZoomControl &zoomControl() { return *m_zoom; }

    // The commands of the menus, by their names.
    Q_INVOKABLE void saveEdit() { Q_EMIT saveRequested(); }
    Q_INVOKABLE void saveCopy() { Q_EMIT saveCopyRequested(); }
    Q_INVOKABLE void performClose() { close(); }
    Q_INVOKABLE void undoEdit();
    Q_INVOKABLE void redoEdit();
    Q_INVOKABLE void cut();
    Q_INVOKABLE void copy();
    Q_INVOKABLE void paste();
    Q_INVOKABLE void selectAll();
    Q_INVOKABLE void duplicateObject();
    Q_INVOKABLE void copyImage() { Q_EMIT copyImageRequested(); }
    Q_INVOKABLE void zoomInClicked();
    Q_INVOKABLE void zoomOutClicked();
    Q_INVOKABLE void fitToWindow();
    Q_INVOKABLE void actualSize();
    Q_INVOKABLE void performMiniaturize() { showMinimized(); }
    Q_INVOKABLE void arrangeInFront() { raise(); }

Q_SIGNALS:
    void saveRequested();
    void saveCopyRequested();
    void copyImageRequested();
    // The user wants to close the window; it stays until its controller hides it.
    void closeRequested();
    void activated();

protected:
    void closeEvent(QCloseEvent *event) override;
    void changeEvent(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void layOut();

    EditorHeader *m_header;
    EditorBanner *m_banner;
    EditorSidebar *m_sidebar;
    ScreenshotCanvasView *m_canvas;
    EditorDock *m_dock;
    EditorZoomControl *m_zoom;
};

} // namespace tembra

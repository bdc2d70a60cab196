#pragma once

#include "DrawnThumbnails.h"
#include "controls/Theme.h"
#include "editor/chrome/EditorDockState.h"
#include "editor/model/EditorStyleChange.h"

#include <QWidget>

namespace tembra {

class EditorBanner;
class EditorDock;
class EditorHeader;
class EditorSidebar;
class EditorZoomControl;

// Everything around the editor's canvas, with an empty one. The tool that is chosen shows what it can set.
class EditorGallery final : public QWidget {
    Q_OBJECT

public:
    explicit EditorGallery(Appearance appearance, QWidget *parent = nullptr);

    void choose(EditorTool tool);
    void showBanner();

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    void connectControls();
    void fillSidebar();
    void place();
    void change(const EditorStyleChange &change);

    DrawnThumbnails m_thumbnails;
    QWidget *m_canvas;
    EditorHeader *m_header;
    EditorBanner *m_banner;
    EditorSidebar *m_sidebar;
    EditorDock *m_dock;
    EditorZoomControl *m_zoom;
    EditorDockState m_state;
};

} // namespace tembra

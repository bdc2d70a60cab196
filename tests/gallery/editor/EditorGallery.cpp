#include "EditorGallery.h"

#include "editor/chrome/EditorBanner.h"
#include "editor/chrome/EditorDock.h"
#include "editor/chrome/EditorHeader.h"
#include "editor/chrome/EditorOverlays.h"
#include "editor/chrome/EditorPalette.h"
#include "editor/chrome/EditorSidebar.h"
#include "editor/chrome/EditorZoomControl.h"

#include <QPainter>

namespace tembra {

namespace {

class Canvas final : public QWidget {
public:
    using QWidget::QWidget;

protected:
    void paintEvent(QPaintEvent *) override {
        const bool isDark = Theme::of(*this).window.lightness() < 128;
        QPainter painter(this);
        painter.fillRect(rect(), isDark ? QColor(18, 18, 20) : QColor(226, 226, 231));
        painter.fillRect(rect().adjusted(110, 36, -110, -132), Qt::white);
    }
};

// What the editor would tell of the tool.
EditorDockState stateFor(EditorTool tool) {
    EditorDockState state{.tool = tool};
    if (tool == EditorTool::crop) {
        state.crop = QSize(1200, 800);
        return state;
    }
    if (tool == EditorTool::blur) {
        state.blurMode = BlurMode::text;
        state.strength = EditorBlur::Strength::medium;
        state.notice = QStringLiteral("Looking for words…");
        state.isBusy = true;
        return state;
    }
    state.color = editorPalette().front().color;
    if (tool == EditorTool::select)
        return state;
    state.size = 7;
    if (tool == EditorTool::rectangle || tool == EditorTool::ellipse)
        state.isFilled = true;
    if (tool == EditorTool::text)
        state.hasBackground = true;
    if (tool == EditorTool::number)
        state.number = 3;
    if (tool == EditorTool::line)
        state.color = EditorColor{.r = 0.1, .g = 0.6, .b = 0.6, .a = 1};
    return state;
}

} // namespace

EditorGallery::EditorGallery(Appearance appearance, QWidget *parent) : QWidget(parent) {
    Theme::setAppearance(*this, appearance);
    m_canvas = new Canvas(this);
    m_header = new EditorHeader(this);
    m_banner = new EditorBanner(this);
    m_sidebar = new EditorSidebar(m_thumbnails, this);
    m_dock = new EditorDock(this);
    m_zoom = new EditorZoomControl(this);
    m_zoom->setZoom(0.72, true);
    m_header->apply({.name = QStringLiteral("Screenshot 2026-11-21 at 10.15.22"),
                     .extension = QStringLiteral("png"),
                     .isDirty = true,
                     .canUndo = true,
                     .undoName = QStringLiteral("Move annotations"),
                     .canSave = true});
    fillSidebar();
    connectControls();
    choose(EditorTool::arrow);
}

void EditorGallery::connectControls() {
    connect(m_dock, &EditorDock::toolChosen, this, &EditorGallery::choose);
    connect(m_dock, &EditorDock::sizeHintChanged, this, &EditorGallery::place);
    connect(m_dock, &EditorDock::styleChanged, this, &EditorGallery::change);
    connect(m_dock, &EditorDock::cropCancelled, this, [this] { choose(EditorTool::select); });
    connect(m_banner, &EditorBanner::dismissed, this, &EditorGallery::place);
    connect(m_header, &EditorHeader::saveRequested, this, &EditorGallery::showBanner);
}

void EditorGallery::fillSidebar() {
    std::vector<EditorSidebarItem> items;
    for (int number = 1; number <= 7; ++number) {
        const QString name = QStringLiteral("Screenshot %1.png").arg(number);
        items.push_back({.path = QStringLiteral("/shots/") + name,
                         .name = name,
                         .isEdited = number <= 2,
                         .isUnsaved = number == 3});
    }
    m_sidebar->setCurrent(items.front().path);
    m_sidebar->apply(std::move(items));
}

void EditorGallery::choose(EditorTool tool) {
    m_state = stateFor(tool);
    m_dock->apply(m_state);
}

void EditorGallery::change(const EditorStyleChange &change) {
    if (change.color)
        m_state.color = change.color;
    if (change.size)
        m_state.size = change.size;
    if (change.isFilled)
        m_state.isFilled = change.isFilled;
    if (change.hasBackground)
        m_state.hasBackground = change.hasBackground;
    if (change.strength)
        m_state.strength = change.strength;
    if (change.number)
        m_state.number = change.number;
    m_dock->apply(m_state);
}

void EditorGallery::showBanner() {
    m_banner->present({.text = QStringLiteral("This image changed outside Tembra. "
                                              "Make a copy to edit it as a new image."),
                       .actions = {{QStringLiteral("Make a copy"), {}}, {QStringLiteral("Reload"), {}}},
                       .isError = true});
    place();
}

void EditorGallery::place() {
    m_header->setGeometry(0, 0, width(), EditorHeader::barHeight);
    const int top = EditorHeader::barHeight;
    m_sidebar->setGeometry(0, top, EditorSidebar::barWidth, height() - top);
    const QRect area(EditorSidebar::barWidth, top, width() - EditorSidebar::barWidth, height() - top);
    m_canvas->setGeometry(area);
    m_banner->setGeometry(area.x(), area.y(), area.width(), m_banner->heightForWidth(area.width()));
    placeEditorOverlays(*m_dock, *m_zoom, area);
}

void EditorGallery::resizeEvent(QResizeEvent *) {
    place();
}

} // namespace tembra

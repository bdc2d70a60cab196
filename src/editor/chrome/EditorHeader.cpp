#include "editor/chrome/EditorHeader.h"

#include "controls/ControlPainting.h"
#include "controls/LoadingIndicator.h"
#include "controls/ShelfMenu.h"
#include "controls/TembraButton.h"
#include "controls/Theme.h"
#include "editor/chrome/AccessibleEditorChrome.h"
#include "editor/chrome/EditorDragHandle.h"
#include "editor/chrome/EditorNameField.h"
#include "editor/chrome/ToolTipWithKeys.h"

#include <QKeySequence>
#include <QMouseEvent>
#include <QPainter>
#include <QStyle>
#include <QWindow>

namespace tembra {

namespace {

constexpr int sideMargin = 16;
constexpr int gap = 8;
constexpr int nameGap = 14;

TembraButton *makeButton(TembraButton::Kind kind, const QString &title, QWidget *parent) {
    auto *button = new TembraButton(kind, TembraButton::Size::bar, title, parent);
    // A click leaves the keyboard to what is being drawn.
    button->setFocusPolicy(Qt::TabFocus);
    return button;
}

} // namespace

EditorHeader::EditorHeader(QWidget *parent)
    : QWidget(parent),
      m_undo(makeButton(TembraButton::Kind::plain, tr("Undo"), this)),
      m_redo(makeButton(TembraButton::Kind::plain, tr("Redo"), this)),
      m_name(new EditorNameField(this)),
      m_drag(new EditorDragHandle(this)),
      m_more(new EditorIconButton(Icon::more, EditorIconButton::Size::small, tr("More"), this)),
      m_copy(makeButton(TembraButton::Kind::plain, tr("Copy image"), this)),
      m_saveAs(makeButton(TembraButton::Kind::plain, tr("Save as…"), this)),
      m_save(makeButton(TembraButton::Kind::accent, tr("Save"), this)),
      m_saving(new LoadingIndicator(m_save)) {
    installAccessibleEditorChrome();
    setAccessibleName(tr("Screenshot file"));
    setFixedHeight(barHeight);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    m_saving->resize(16, 16);
    // Its button tells.
    m_saving->setAccessibleName({});
    m_saving->hide();
    m_save->setFixedSize(m_save->sizeHint());
    connectControls();
    apply({});
}

void EditorHeader::connectControls() {
    connect(m_undo, &QAbstractButton::clicked, this, &EditorHeader::undoRequested);
    connect(m_redo, &QAbstractButton::clicked, this, &EditorHeader::redoRequested);
    connect(m_name, &EditorNameField::renameRequested, this, &EditorHeader::renameRequested);
    connect(m_name, &EditorNameField::editingEnded, this, &EditorHeader::nameEditingEnded);
    connect(m_name, &EditorNameField::sizeHintChanged, this, &EditorHeader::layOut);
    connect(m_drag, &EditorDragHandle::dragRequested, this, &EditorHeader::dragRequested);
    connect(m_drag, &EditorDragHandle::copyRequested, this, &EditorHeader::copyRequested);
    connect(m_more, &QAbstractButton::clicked, this, &EditorHeader::openMenu);
    connect(m_copy, &QAbstractButton::clicked, this, &EditorHeader::copyRequested);
    connect(m_saveAs, &QAbstractButton::clicked, this, &EditorHeader::saveAsRequested);
    connect(m_save, &QAbstractButton::clicked, this, &EditorHeader::saveRequested);
    setToolTipWithKeys(*m_copy, tr("Copy image"), QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_C));
    setToolTipWithKeys(*m_saveAs, tr("Save as"), QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_S));
    setToolTipWithKeys(*m_save, tr("Save"), QKeySequence(Qt::CTRL | Qt::Key_S));
}

void EditorHeader::apply(const EditorHeaderState &state) {
    m_name->setName(state.name, state.extension);
    m_name->setDirty(state.isDirty);
    m_undo->setEnabled(state.canUndo);
    m_redo->setEnabled(state.canRedo);
    const QString undo = state.undoName.isEmpty() ? tr("Undo") : tr("Undo %1").arg(state.undoName);
    const QString redo = state.redoName.isEmpty() ? tr("Redo") : tr("Redo %1").arg(state.redoName);
    setToolTipWithKeys(*m_undo, undo, QKeySequence(Qt::CTRL | Qt::Key_Z));
    setToolTipWithKeys(*m_redo, redo, QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Z));
    m_save->setEnabled(state.canSave && !state.isSaving);
    for (QWidget *control : std::initializer_list<QWidget *>{m_drag, m_more, m_copy, m_saveAs})
        control->setEnabled(state.hasScreenshot);
    m_name->setVisible(state.hasScreenshot);
    showSaving(state.isSaving);
}

void EditorHeader::showSaving(bool isSaving) {
    m_save->setText(isSaving ? QString() : tr("Save"));
    m_save->setAccessibleName(isSaving ? tr("Saving…") : tr("Save"));
    m_saving->setVisible(isSaving);
}

ShelfMenu *EditorHeader::makeMenu() {
    auto *menu = new ShelfMenu(this);
    menu->add(tr("Show in Finder"), [this] { Q_EMIT revealRequested(); });
    menu->addSeparator();
    menu->add(tr("Move to Trash"), [this] { Q_EMIT trashRequested(); });
    return menu;
}

void EditorHeader::openMenu() {
    ShelfMenu *menu = makeMenu();
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->popup(m_more->mapToGlobal(QPoint(ringMargin, m_more->height())));
}

void EditorHeader::layOut() {
    constexpr int ring = 2 * ringMargin;
    const auto place = [&](QWidget &control, int x, int width) {
        const int height = control.sizeHint().height();
        const QRect body(x - ringMargin, (barHeight - height) / 2, width, height);
        control.setGeometry(QStyle::visualRect(layoutDirection(), rect(), body));
    };
    int left = sideMargin;
    for (QWidget *control : {m_undo, m_redo}) {
        const int width = control->sizeHint().width();
        place(*control, left, width);
        left += width - ring + gap;
    }
    int right = width() - sideMargin;
    for (QWidget *control : std::initializer_list<QWidget *>{m_save, m_saveAs, m_copy, m_more, m_drag}) {
        const int width = control == m_save ? m_save->width() : control->sizeHint().width();
        right -= width - ring;
        place(*control, right, width);
        right -= control == m_more ? 2 : gap;
    }
    // In the middle of the window where the controls leave room there.
    const int leftmost = left - gap + nameGap;
    const int rightmost = std::max(leftmost, right + gap - nameGap);
    const int wanted = std::min(m_name->sizeHint().width() - ring, rightmost - leftmost);
    place(*m_name, std::clamp((width() - wanted) / 2, leftmost, std::max(leftmost, rightmost - wanted)),
          wanted + ring);
    m_saving->move((m_save->width() - m_saving->width()) / 2, (m_save->height() - m_saving->height()) / 2);
}

void EditorHeader::resizeEvent(QResizeEvent *) {
    layOut();
}

void EditorHeader::changeEvent(QEvent *event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LayoutDirectionChange)
        layOut();
}

void EditorHeader::paintEvent(QPaintEvent *) {
    QPainter painter(this);
    const Theme &theme = Theme::of(*this);
    painter.fillRect(rect(), theme.header);
    painter.fillRect(QRect(0, height() - 1, width(), 1), theme.edge);
}

void EditorHeader::mouseMoveEvent(QMouseEvent *event) {
    if (event->buttons() == Qt::LeftButton && window()->windowHandle())
        window()->windowHandle()->startSystemMove();
}

void EditorHeader::mouseDoubleClickEvent(QMouseEvent *event) {
    if (event->button() == Qt::LeftButton)
        window()->setWindowState(window()->windowState() ^ Qt::WindowMaximized);
}

} // namespace tembra

#include "editor/chrome/EditorDock.h"

#include "controls/ControlPainting.h"
#include "controls/Theme.h"
#include "editor/chrome/AccessibleEditorChrome.h"
#include "editor/chrome/EditorCropRow.h"
#include "editor/chrome/EditorNotice.h"
#include "editor/chrome/EditorStyleRow.h"
#include "editor/chrome/EditorToolRow.h"
#include "editor/chrome/FloatingShadow.h"

#include <QMouseEvent>
#include <QPainter>
#include <QStyle>

namespace tembra {

namespace {

constexpr int radius = 16;
constexpr int shadowReach = 30;
constexpr int padding = 8;
constexpr int separatorGap = (EditorControlRow::separatorWidth - 1) / 2;
constexpr int separatorHeight = 26;
constexpr int rowGap = 8;
constexpr int styleHeight = 28;
constexpr int noticeGap = 10;
// Around the row of style, which has no bodies of its own at its ends.
constexpr int styleMargin = 6;

} // namespace

EditorDock::EditorDock(QWidget *parent)
    : QWidget(parent),
      m_tools(new EditorToolRow(this)),
      m_style(new EditorStyleRow(this)),
      m_crop(new EditorCropRow(this)),
      m_notice(new EditorNotice(this)),
      m_shadow(new FloatingShadow(*this, radius, shadowReach)) {
    installAccessibleEditorChrome();
    setAccessibleName(tr("Tools and style"));
    setCursor(Qt::ArrowCursor);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    connect(m_tools, &EditorToolRow::chosen, this, &EditorDock::toolChosen);
    connect(m_tools, &EditorToolRow::scrolled, this, &EditorDock::toolSizeScrolled);
    connect(m_style, &EditorStyleRow::changed, this, &EditorDock::styleChanged);
    connect(m_style, &EditorStyleRow::blurModeChosen, this, &EditorDock::blurModeChosen);
    connect(m_style, &EditorStyleRow::customColorRequested, this, &EditorDock::customColorRequested);
    connect(m_style, &EditorStyleRow::numberEditingEnded, this, &EditorDock::numberEditingEnded);
    connect(m_crop, &EditorCropRow::applied, this, &EditorDock::cropApplied);
    connect(m_crop, &EditorCropRow::cancelled, this, &EditorDock::cropCancelled);
    apply(m_state);
}

void EditorDock::apply(const EditorDockState &state) {
    const QSize before = sizeHint();
    m_state = state;
    m_tools->setTool(state.tool);
    m_style->apply(state);
    if (state.crop)
        m_crop->setCrop(*state.crop);
    m_notice->setNotice(state.notice, state.isBusy);
    m_style->setVisible(secondRow() == m_style);
    m_crop->setVisible(secondRow() == m_crop);
    m_notice->setVisible(!state.notice.isEmpty());
    layOut();
    if (sizeHint() == before)
        return;
    updateGeometry();
    Q_EMIT sizeHintChanged();
}

void EditorDock::setAvailableWidth(int width) {
    m_availableWidth = width;
    layOut();
}

EditorControlRow *EditorDock::secondRow() const {
    if (m_state.crop)
        return m_crop;
    return m_style->bodySize().isEmpty() ? nullptr : m_style;
}

int EditorDock::widestWidth() const {
    const int tools = m_tools->bodySize().width() + 2 * padding;
    const EditorControlRow *second = secondRow();
    return second ? tools + 2 * separatorGap + 1 + second->bodySize().width() : tools;
}

int EditorDock::narrowestWidth() const {
    const EditorControlRow *second = secondRow();
    const int below = m_tools->bodySize().width();
    return 2 * padding + (second ? std::max(below, second->bodySize().width() + 2 * styleMargin) : below);
}

int EditorDock::usualWidth() const {
    return m_tools->bodySize().width() + 2 * padding + EditorControlRow::separatorWidth +
           m_style->usualWidth();
}

bool EditorDock::isStacked() const {
    return secondRow() && widestWidth() > m_availableWidth;
}

QSize EditorDock::barSize() const {
    const int height = m_tools->bodySize().height() + 2 * padding;
    if (isStacked())
        return {narrowestWidth(), height + styleHeight + rowGap};
    return {std::max(widestWidth(), std::min(usualWidth(), m_availableWidth)), height};
}

QSize EditorDock::sizeHint() const {
    const QSize bar = barSize();
    if (m_notice->isHidden())
        return bar;
    const QSize notice =
        m_notice->sizeHint().boundedTo({std::max(m_availableWidth, bar.width()), bar.height()});
    return {std::max(bar.width(), notice.width()), bar.height() + noticeGap + notice.height()};
}

QRect EditorDock::barRect() const {
    const QSize bar = barSize();
    return {QPoint((width() - bar.width()) / 2, height() - bar.height()), bar};
}

void EditorDock::layOut() {
    const QRect bar = barRect();
    m_shadow->setBody(bar);
    const QRect inner = bar.adjusted(padding, padding, -padding, -padding);
    const auto put = [&](EditorControlRow &row, const QPoint &corner) {
        constexpr QMargins ring(ringMargin, ringMargin, ringMargin, ringMargin);
        const QRect place(corner, row.bodySize());
        row.setGeometry(QStyle::visualRect(layoutDirection(), bar, place).marginsAdded(ring));
        row.layOut();
    };
    const QSize tools = m_tools->bodySize();
    EditorControlRow *second = secondRow();
    m_separator = {};
    if (second && isStacked()) {
        const QSize style = second->bodySize();
        put(*second,
            {bar.center().x() - style.width() / 2, inner.top() + (styleHeight - style.height()) / 2});
        put(*m_tools, {bar.center().x() - tools.width() / 2, inner.bottom() + 1 - tools.height()});
        m_separator = QRect(inner.left(), inner.top() + styleHeight + rowGap / 2 - 1, inner.width(), 1);
    } else {
        put(*m_tools, inner.topLeft());
        const int x = inner.left() + tools.width() + separatorGap;
        if (second) {
            put(*second, {x + 1 + separatorGap, inner.center().y() + 1 - second->bodySize().height() / 2});
            const QRect line(x, inner.center().y() + 1 - separatorHeight / 2, 1, separatorHeight);
            m_separator = QStyle::visualRect(layoutDirection(), bar, line);
        }
    }
    const QSize notice = m_notice->sizeHint().boundedTo({width(), height()});
    m_notice->setGeometry(
        QStyle::alignedRect(layoutDirection(), Qt::AlignHCenter | Qt::AlignTop, notice, rect()));
    // What can be drawn on beside the notice is not the dock's.
    if (m_notice->isHidden())
        clearMask();
    else
        setMask(QRegion(bar) + m_notice->geometry());
    update();
}

void EditorDock::resizeEvent(QResizeEvent *) {
    layOut();
}

void EditorDock::paintEvent(QPaintEvent *) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const Theme &theme = Theme::of(*this);
    drawField(painter, barRect(), radius, theme.dock, theme.dockBorder);
    painter.fillRect(m_separator, theme.dockSeparator);
}

// Nothing that happens between the controls is meant for what lies below.
void EditorDock::mousePressEvent(QMouseEvent *event) {
    event->accept();
}

void EditorDock::wheelEvent(QWheelEvent *event) {
    event->accept();
}

} // namespace tembra

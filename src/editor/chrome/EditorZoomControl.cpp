#include "editor/chrome/EditorZoomControl.h"

#include "controls/ControlPainting.h"
#include "controls/ShelfMenu.h"
#include "controls/Theme.h"
#include "editor/chrome/EditorControlRow.h"
#include "editor/chrome/EditorFlatButton.h"
#include "editor/chrome/FloatingShadow.h"
#include "editor/chrome/ToolTipWithKeys.h"

#include <QKeySequence>
#include <QMouseEvent>
#include <QPainter>

#include <array>
#include <cmath>

namespace tembra {

namespace {

constexpr int radius = 10;
constexpr int shadowReach = 14;
constexpr int sideMargin = 3;
constexpr int pillHeight = 31;

QString percent(double fraction) {
    return EditorZoomControl::tr("%1 %").arg(std::lround(fraction * 100));
}

} // namespace

EditorZoomControl::EditorZoomControl(QWidget *parent) : QWidget(parent), m_row(new EditorControlRow(this)) {
    using Mark = EditorFlatButton::Mark;
    setAccessibleName(tr("Zoom"));
    setCursor(Qt::ArrowCursor);
    new FloatingShadow(*this, radius, shadowReach);
    auto *out = new EditorFlatButton(QStringLiteral("−"), tr("Zoom out"), Mark::none, m_row);
    m_percent = new EditorFlatButton(percent(1), tr("Zoom"), Mark::none, m_row);
    auto *in = new EditorFlatButton(QStringLiteral("+"), tr("Zoom in"), Mark::none, m_row);
    m_fit = new EditorFlatButton(tr("Fit"), tr("Fit in window"), Mark::none, m_row);
    setToolTipWithKeys(*out, tr("Zoom out"), QKeySequence(Qt::CTRL | Qt::Key_Minus));
    setToolTipWithKeys(*in, tr("Zoom in"), QKeySequence(Qt::CTRL | Qt::Key_Plus));
    setToolTipWithKeys(*m_fit, tr("Fit in window"), QKeySequence(Qt::CTRL | Qt::Key_0));
    m_percent->setLeastWidth(QFontMetrics(m_percent->font()).horizontalAdvance(percent(1)) + 8);
    for (EditorFlatButton *button : {out, m_percent, in, m_fit}) {
        m_row->add(button, 0);
        connect(button, &EditorFlatButton::stepped, this, [this](int steps) {
            if (steps > 0)
                Q_EMIT zoomInRequested();
            else
                Q_EMIT zoomOutRequested();
        });
    }
    connect(out, &QAbstractButton::clicked, this, &EditorZoomControl::zoomOutRequested);
    connect(in, &QAbstractButton::clicked, this, &EditorZoomControl::zoomInRequested);
    connect(m_fit, &QAbstractButton::clicked, this, &EditorZoomControl::fitRequested);
    connect(m_percent, &QAbstractButton::clicked, this, &EditorZoomControl::openMenu);
    setZoom(1, false);
}

void EditorZoomControl::setZoom(double fraction, bool isFit) {
    m_percent->setText(percent(fraction));
    m_percent->setAccessibleDescription(percent(fraction));
    m_fit->setEnabled(!isFit);
    m_row->layOut();
}

QSize EditorZoomControl::sizeHint() const {
    return {m_row->bodySize().width() + 2 * sideMargin, pillHeight};
}

ShelfMenu *EditorZoomControl::makeMenu() {
    auto *menu = new ShelfMenu(this);
    menu->add(tr("Fit"), [this] { Q_EMIT fitRequested(); });
    menu->addSeparator();
    for (const double fraction : {0.5, 1.0, 2.0})
        menu->add(percent(fraction), [this, fraction] { Q_EMIT zoomRequested(fraction); });
    return menu;
}

void EditorZoomControl::openMenu() {
    ShelfMenu *menu = makeMenu();
    menu->setAttribute(Qt::WA_DeleteOnClose);
    const QPoint above(0, -menu->sizeHint().height() - 4);
    menu->popup(m_percent->mapToGlobal(above));
}

void EditorZoomControl::resizeEvent(QResizeEvent *) {
    const QSize row = m_row->sizeHint();
    m_row->setGeometry(QRect(QPoint((width() - row.width()) / 2, (height() - row.height()) / 2), row));
}

void EditorZoomControl::paintEvent(QPaintEvent *) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const Theme &theme = Theme::of(*this);
    drawField(painter, rect(), radius, theme.dock, theme.dockBorder);
}

void EditorZoomControl::mousePressEvent(QMouseEvent *event) {
    event->accept();
}

void EditorZoomControl::wheelEvent(QWheelEvent *event) {
    event->accept();
}

} // namespace tembra

#include "controls/ShelfScroller.h"

#include "controls/Motion.h"
#include "controls/Theme.h"

#include <QContextMenuEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QSignalBlocker>

#include <algorithm>
#include <cmath>

namespace tembra {

namespace {

constexpr qreal minimumKnobLength = 28;
constexpr qreal padding = 2;

} // namespace

ShelfScroller::ShelfScroller(QScrollBar &mirrored, QWidget *parent)
    : QScrollBar(Qt::Vertical, parent), m_mirrored(mirrored) {
    setAttribute(Qt::WA_OpaquePaintEvent, false);
    setFocusPolicy(Qt::NoFocus);
    setCursor(Qt::ArrowCursor);
    connect(&m_mirrored, &QScrollBar::rangeChanged, this, &ShelfScroller::mirror);
    connect(&m_mirrored, &QScrollBar::valueChanged, this, &QScrollBar::setValue);
    connect(this, &QScrollBar::valueChanged, &m_mirrored, &QScrollBar::setValue);
    connect(&m_fade, &QVariantAnimation::valueChanged, this, [this](const QVariant &value) {
        m_opacity = value.toReal();
        update();
    });
    connect(&m_fade, &QVariantAnimation::finished, this, &ShelfScroller::updateOpacity);
    mirror();
}

void ShelfScroller::mirror() {
    {
        const QSignalBlocker blocker(this);
        setRange(m_mirrored.minimum(), m_mirrored.maximum());
        setPageStep(m_mirrored.pageStep());
        setSingleStep(m_mirrored.singleStep());
        setValue(m_mirrored.value());
    }
    setVisible(maximum() > minimum());
    update();
}

void ShelfScroller::setAreaActive(bool active) {
    m_areaActive = active;
    updateOpacity();
}

void ShelfScroller::updateOpacity() {
    const qreal target = m_areaActive || m_grip ? 1 : 0;
    if (target == m_target && m_fade.state() == QAbstractAnimation::Running)
        return;
    m_target = target;
    m_fade.stop();
    if (m_opacity == target)
        return;
    m_fade.setKeyValues({{0, m_opacity}, {1, target}});
    m_fade.setDuration(motion::isReduced(*this) ? 0 : static_cast<int>(motion::fade.count()));
    m_fade.start();
}

void ShelfScroller::flash() {
    if (m_areaActive || m_grip)
        return;
    m_target = 0;
    m_fade.stop();
    m_opacity = 1;
    m_fade.setKeyValues({{0, 1.0}, {0.8, 1.0}, {1, 0.0}});
    m_fade.setDuration(static_cast<int>(motion::flash.count()));
    m_fade.start();
    update();
}

qreal ShelfScroller::knobLength() const {
    const qreal track = height() - 2 * padding;
    const qreal content = maximum() - minimum() + pageStep();
    const qreal share = content > 0 ? pageStep() / content : 1;
    return std::clamp(track * share, std::min(minimumKnobLength, track), track);
}

qreal ShelfScroller::knobTravel() const {
    return height() - 2 * padding - knobLength();
}

QRectF ShelfScroller::knobRect() const {
    const int range = maximum() - minimum();
    const qreal position = range > 0 ? static_cast<qreal>(value() - minimum()) / range : 0;
    return {static_cast<qreal>(width() - knobWidth), padding + position * knobTravel(),
            static_cast<qreal>(knobWidth), knobLength()};
}

void ShelfScroller::paintEvent(QPaintEvent *) {
    if (m_opacity <= 0)
        return;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setOpacity(m_opacity);
    painter.setPen(Qt::NoPen);
    const Theme &theme = Theme::of(*this);
    painter.setBrush(m_grip || underMouse() ? theme.scrollerActive : theme.scroller);
    painter.drawRoundedRect(knobRect(), knobWidth / 2.0, knobWidth / 2.0);
}

void ShelfScroller::mousePressEvent(QMouseEvent *event) {
    if (event->button() != Qt::LeftButton)
        return;
    const QRectF knob = knobRect();
    const qreal y = event->position().y();
    // A press beside the knob takes it to the pointer.
    m_grip = y >= knob.top() && y <= knob.bottom() ? y - knob.top() : knob.height() / 2;
    mouseMoveEvent(event);
    updateOpacity();
    update();
}

void ShelfScroller::mouseMoveEvent(QMouseEvent *event) {
    if (!m_grip || knobTravel() <= 0)
        return;
    const qreal position = (event->position().y() - *m_grip - padding) / knobTravel();
    setValue(minimum() +
             static_cast<int>(std::lround(std::clamp(position, 0.0, 1.0) * (maximum() - minimum()))));
}

void ShelfScroller::mouseReleaseEvent(QMouseEvent *) {
    m_grip.reset();
    updateOpacity();
    update();
}

void ShelfScroller::enterEvent(QEnterEvent *) {
    update();
}

void ShelfScroller::leaveEvent(QEvent *) {
    update();
}

void ShelfScroller::contextMenuEvent(QContextMenuEvent *event) {
    event->accept();
}

} // namespace tembra

#include "controls/TembraSegmentedControl.h"

#include "controls/AccessibleControls.h"
#include "controls/ControlPainting.h"
#include "controls/Motion.h"
#include "controls/TembraSegment.h"
#include "controls/Theme.h"

#include <QKeyEvent>
#include <QPainter>

namespace tembra {

namespace {

constexpr int inset = 2;

} // namespace

TembraSegmentedControl::TembraSegmentedControl(const QStringList &titles, QWidget *parent) : QWidget(parent) {
    installAccessibleControls();
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    m_position.setStartValue(0.0);
    m_position.setEndValue(0.0);
    connect(&m_position, &QVariantAnimation::valueChanged, this, qOverload<>(&QWidget::update));
    for (const QString &title : titles) {
        auto *segment = new TembraSegment(title, this);
        const int index = count();
        m_segments.push_back(segment);
        segment->installEventFilter(this);
        connect(segment, &QAbstractButton::toggled, this, [this, index](bool isCurrent) {
            if (isCurrent)
                setCurrentIndex(index);
        });
    }
    setCurrentIndex(0);
}

void TembraSegmentedControl::setCurrentIndex(int index) {
    if (index == m_current || index < 0 || index >= count())
        return;
    m_current = index;
    segment(index).setChecked(true);
    updateFocusPolicies();
    motion::animateTo(m_position, segment(index).x(), *this);
    Q_EMIT currentIndexChanged(index);
}

void TembraSegmentedControl::setFocusedByClick(bool isFocused) {
    m_isFocusedByClick = isFocused;
    updateFocusPolicies();
}

// Tab reaches the current segment alone.
void TembraSegmentedControl::updateFocusPolicies() {
    for (int index = 0; index < count(); ++index) {
        const Qt::FocusPolicy byTab = index == m_current ? Qt::TabFocus : Qt::NoFocus;
        const Qt::FocusPolicy byClick = m_isFocusedByClick ? Qt::ClickFocus : Qt::NoFocus;
        segment(index).setFocusPolicy(static_cast<Qt::FocusPolicy>(byTab | byClick));
    }
}

QSize TembraSegmentedControl::sizeHint() const {
    int width = 0;
    int height = 0;
    for (const TembraSegment *segment : m_segments) {
        width += segment->sizeHint().width();
        height = std::max(height, segment->sizeHint().height());
    }
    const int around = 2 * (inset + ringMargin);
    return {width + around, height + around};
}

void TembraSegmentedControl::layOut() {
    const QRect body = controlBody(*this).toRect().adjusted(inset, inset, -inset, -inset);
    const int spare = std::max(0, body.width() - (sizeHint().width() - 2 * (inset + ringMargin)));
    int x = body.left();
    for (int position = 0; position < count(); ++position) {
        const bool isMirrored = layoutDirection() == Qt::RightToLeft;
        TembraSegment &next = segment(isMirrored ? count() - 1 - position : position);
        const int width = next.sizeHint().width() + spare / count();
        next.setGeometry(x, body.top(), width, body.height());
        x += width;
    }
    if (m_current < 0)
        return;
    m_position.stop();
    m_position.setStartValue(static_cast<qreal>(segment(m_current).x()));
    m_position.setEndValue(static_cast<qreal>(segment(m_current).x()));
    update();
}

void TembraSegmentedControl::resizeEvent(QResizeEvent *) {
    layOut();
}

void TembraSegmentedControl::changeEvent(QEvent *event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LayoutDirectionChange)
        layOut();
}

void TembraSegmentedControl::choose(int index, Qt::FocusReason reason) {
    const int chosen = std::clamp(index, 0, count() - 1);
    segment(chosen).setFocus(reason);
    setCurrentIndex(chosen);
}

bool TembraSegmentedControl::eventFilter(QObject *watched, QEvent *event) {
    if (event->type() != QEvent::KeyPress)
        return QWidget::eventFilter(watched, event);
    const bool isMirrored = layoutDirection() == Qt::RightToLeft;
    switch (static_cast<QKeyEvent *>(event)->key()) {
    case Qt::Key_Left:
    case Qt::Key_Up:
        choose(m_current + (isMirrored ? 1 : -1), Qt::TabFocusReason);
        return true;
    case Qt::Key_Right:
    case Qt::Key_Down:
        choose(m_current + (isMirrored ? -1 : 1), Qt::TabFocusReason);
        return true;
    case Qt::Key_Home:
        choose(0, Qt::TabFocusReason);
        return true;
    case Qt::Key_End:
        choose(count() - 1, Qt::TabFocusReason);
        return true;
    default:
        return QWidget::eventFilter(watched, event);
    }
}

void TembraSegmentedControl::paintEvent(QPaintEvent *) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    if (!isEnabled())
        painter.setOpacity(Theme::disabledOpacity);
    const Theme &theme = Theme::of(*this);
    drawField(painter, controlBody(*this), TembraSegment::radius + inset, theme.segments);
    if (m_current < 0)
        return;
    const QRect current = segment(m_current).geometry();
    const QRectF marker(m_position.currentValue().toReal(), current.y(), current.width(), current.height());
    drawField(painter, marker, TembraSegment::radius, theme.segmentCurrent, theme.controlBorder);
}

} // namespace tembra

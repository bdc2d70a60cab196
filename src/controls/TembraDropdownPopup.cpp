#include "controls/TembraDropdownPopup.h"

#include "controls/AccessibleControls.h"
#include "controls/ControlPainting.h"
#include "controls/DropdownList.h"
#include "controls/Theme.h"
#include "controls/Typography.h"

#include <QAccessible>
#include <QKeyEvent>
#include <QPainter>

#include <cmath>

namespace tembra {

namespace {

constexpr int bodyHeight = 27;
constexpr int sideMargin = 12;
constexpr int chevronRoom = 15;
constexpr qreal radius = 7;

} // namespace

TembraDropdownPopup::TembraDropdownPopup(const QStringList &choices, QWidget *parent)
    : PaintedButton(parent) {
    installAccessibleControls();
    setFont(typography::font(typography::itemSize));
    connect(this, &QAbstractButton::pressed, this, &TembraDropdownPopup::open);
    setChoices(choices);
}

void TembraDropdownPopup::setChoices(const QStringList &choices) {
    if (choices == m_choices)
        return;
    const QString current = currentText();
    m_choices = choices;
    m_current = -1;
    setCurrentIndex(std::max(static_cast<int>(choices.indexOf(current)), choices.isEmpty() ? -1 : 0));
    updateGeometry();
    update();
}

void TembraDropdownPopup::setCurrentIndex(int index) {
    if (index == m_current || index < -1 || index >= m_choices.size())
        return;
    m_current = index;
    updateGeometry();
    update();
    QAccessibleValueChangeEvent event(this, currentText());
    QAccessible::updateAccessibility(&event);
    QAccessibleEvent described(this, QAccessible::DescriptionChanged);
    QAccessible::updateAccessibility(&described);
    Q_EMIT currentIndexChanged(index);
}

void TembraDropdownPopup::choose(int index) {
    if (index < 0 || index >= m_choices.size())
        return;
    setCurrentIndex(index);
    Q_EMIT chosen(index);
}

void TembraDropdownPopup::open() {
    if (isOpen() || m_choices.isEmpty())
        return;
    m_list = new DropdownList(m_choices, m_current, this);
    connect(m_list, &DropdownList::chosen, this, &TembraDropdownPopup::choose);
    connect(m_list, &DropdownList::closed, this, [this] {
        m_list.clear();
        setDown(false);
        update();
    });
    m_list->popUp();
}

QSize TembraDropdownPopup::bodySize() const {
    // Never less than the title is wide, which would be cut then.
    const double textWidth = std::ceil(QFontMetricsF(font()).horizontalAdvance(currentText()));
    return QSize(static_cast<int>(textWidth) + 2 * sideMargin + chevronRoom, bodyHeight);
}

PaintedButton::Outline TembraDropdownPopup::paint(QPainter &painter, const Theme &theme) {
    const QRectF body = controlBody(*this);
    const QColor fill = isDown() || isOpen() ? theme.controlPressed
                        : isHovered()        ? theme.controlHovered
                                             : theme.control;
    drawField(painter, body, radius, fill, theme.controlBorder);
    const bool isMirrored = layoutDirection() == Qt::RightToLeft;
    const qreal before = isMirrored ? sideMargin + chevronRoom : sideMargin;
    const qreal after = isMirrored ? sideMargin : sideMargin + chevronRoom;
    const QRectF title = body.adjusted(before, 0, -after, 0);
    const QString shown = painter.fontMetrics().elidedText(currentText(), Qt::ElideRight,
                                                           static_cast<int>(std::ceil(title.width())));
    painter.setPen(theme.text);
    const Qt::Alignment side = isMirrored ? Qt::AlignRight : Qt::AlignLeft;
    painter.drawText(title, static_cast<int>(Qt::AlignVCenter | side), shown);
    const qreal chevronX = sideMargin + 4;
    drawChevron(painter, {isMirrored ? body.left() + chevronX : body.right() - chevronX, body.center().y()},
                theme.secondaryText);
    return {body, radius};
}

int TembraDropdownPopup::indexStartingWith(const QString &letter) const {
    const auto count = static_cast<int>(m_choices.size());
    for (int step = 1; step <= count; ++step) {
        const int index = (m_current + step) % count;
        if (m_choices[index].startsWith(letter, Qt::CaseInsensitive))
            return index;
    }
    return -1;
}

void TembraDropdownPopup::keyPressEvent(QKeyEvent *event) {
    const bool withAlt = event->modifiers().testFlag(Qt::AltModifier);
    const bool isVertical = event->key() == Qt::Key_Up || event->key() == Qt::Key_Down;
    if (isVertical && withAlt)
        return open();
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Space:
        return open();
    case Qt::Key_Up:
        return choose(m_current - 1);
    case Qt::Key_Down:
        return choose(m_current + 1);
    case Qt::Key_Home:
        return choose(0);
    case Qt::Key_End:
        return choose(static_cast<int>(m_choices.size()) - 1);
    default:
        break;
    }
    const bool isCommand = event->modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier);
    const QString letter = event->text();
    if (!isCommand && !letter.isEmpty() && letter[0].isPrint() && !m_choices.isEmpty())
        return choose(indexStartingWith(letter));
    PaintedButton::keyPressEvent(event);
}

} // namespace tembra

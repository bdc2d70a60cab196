#include "controls/TembraSettingsRow.h"

#include "controls/ControlPainting.h"
#include "controls/Theme.h"
#include "controls/Typography.h"

#include <QEvent>
#include <QPainter>
#include <QStyle>

namespace tembra {

namespace {

constexpr int sideMargin = 16;
constexpr int verticalMargin = 11;
constexpr int lowestRow = 46;
constexpr int gap = 24;
constexpr int lineGap = 3;

QFontMetrics titleMetrics() {
    return QFontMetrics(typography::font(typography::bodySize));
}

QFontMetrics detailMetrics() {
    return QFontMetrics(typography::font(typography::itemSize));
}

} // namespace

TembraSettingsRow::TembraSettingsRow(const QString &title, QWidget *control, QWidget *parent)
    : QWidget(parent), m_title(title), m_control(control) {
    QSizePolicy policy(QSizePolicy::Expanding, QSizePolicy::Minimum);
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
    if (m_control)
        m_control->setParent(this);
    nameControl();
}

void TembraSettingsRow::setTitle(const QString &title) {
    if (title == m_title)
        return;
    m_title = title;
    textChanged();
}

void TembraSettingsRow::setDetail(const QString &detail) {
    if (detail == m_detail)
        return;
    m_detail = detail;
    textChanged();
}

void TembraSettingsRow::setProblem(const QString &problem) {
    if (problem == m_problem)
        return;
    m_problem = problem;
    textChanged();
}

void TembraSettingsRow::textChanged() {
    nameControl();
    updateGeometry();
    update();
}

void TembraSettingsRow::nameControl() {
    if (!m_control)
        return;
    m_control->setAccessibleName(m_title);
    m_control->setAccessibleDescription(note());
}

int TembraSettingsRow::textWidth(int width) const {
    const int controlRoom = m_control ? m_control->sizeHint().width() - ringMargin + gap : 0;
    return std::max(40, width - 2 * sideMargin - controlRoom);
}

int TembraSettingsRow::detailHeight(int width) const {
    if (note().isEmpty())
        return 0;
    const QRect room(0, 0, textWidth(width), 10'000);
    return lineGap + detailMetrics().boundingRect(room, Qt::TextWordWrap, note()).height();
}

int TembraSettingsRow::heightForWidth(int width) const {
    const int text = titleMetrics().height() + detailHeight(width);
    const int control = m_control ? m_control->sizeHint().height() - 2 * ringMargin : 0;
    return std::max(lowestRow, std::max(text, control) + 2 * verticalMargin);
}

QSize TembraSettingsRow::sizeHint() const {
    constexpr int width = 464;
    return {width, heightForWidth(width)};
}

QSize TembraSettingsRow::minimumSizeHint() const {
    const int controlRoom = m_control ? m_control->sizeHint().width() : 0;
    return {std::min(titleMetrics().horizontalAdvance(m_title), 120) + controlRoom + gap + 2 * sideMargin,
            lowestRow};
}

void TembraSettingsRow::layOut() {
    if (!m_control)
        return;
    const QRect room = rect().adjusted(sideMargin - ringMargin, 0, ringMargin - sideMargin, 0);
    m_control->setGeometry(QStyle::alignedRect(layoutDirection(), Qt::AlignRight | Qt::AlignVCenter,
                                               m_control->sizeHint().boundedTo(room.size()), room));
}

void TembraSettingsRow::resizeEvent(QResizeEvent *) {
    layOut();
}

bool TembraSettingsRow::event(QEvent *event) {
    if (event->type() == QEvent::LayoutRequest || event->type() == QEvent::LayoutDirectionChange) {
        updateGeometry();
        layOut();
        update();
    }
    return QWidget::event(event);
}

void TembraSettingsRow::paintEvent(QPaintEvent *) {
    QPainter painter(this);
    if (!isEnabled())
        painter.setOpacity(Theme::disabledOpacity);
    const Theme &theme = Theme::of(*this);
    const int below = detailHeight(width());
    const int titleHeight = titleMetrics().height();
    const QRect room = rect().adjusted(sideMargin, 0, -sideMargin, 0);
    QRect text = QStyle::alignedRect(layoutDirection(), Qt::AlignLeft | Qt::AlignVCenter,
                                     {textWidth(width()), titleHeight + below}, room);
    const Qt::Alignment leading =
        QStyle::visualAlignment(layoutDirection(), Qt::AlignLeft) | Qt::AlignAbsolute;
    // A path or a name reads as it is written, whatever the language of the program.
    painter.setLayoutDirection(Qt::LayoutDirectionAuto);
    painter.setFont(typography::font(typography::bodySize));
    painter.setPen(theme.text);
    painter.drawText(text, leading | Qt::AlignTop,
                     titleMetrics().elidedText(m_title, Qt::ElideRight, text.width()));
    if (below == 0)
        return;
    text.setTop(text.top() + titleHeight + lineGap);
    painter.setFont(typography::font(typography::itemSize));
    painter.setPen(m_problem.isEmpty() ? theme.secondaryText : theme.invalid);
    painter.drawText(text, static_cast<int>(leading | Qt::AlignTop) | Qt::TextWordWrap, note());
}

} // namespace tembra

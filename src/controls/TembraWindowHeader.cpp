#include "controls/TembraWindowHeader.h"

#include "controls/Theme.h"
#include "controls/Typography.h"

#include <QHBoxLayout>
#include <QMouseEvent>
#include <QPainter>
#include <QWindow>

namespace tembra {

namespace {

constexpr int sideMargin = 13;
constexpr int titleGap = 16;

} // namespace

TembraWindowHeader::TembraWindowHeader(const QString &title, QWidget *parent)
    : QWidget(parent), m_title(title), m_layout(new QHBoxLayout(this)) {
    setAccessibleName(title);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    setFixedHeight(barHeight);
    m_layout->setContentsMargins(sideMargin, 0, sideMargin, 0);
    m_layout->setSpacing(2);
    m_layout->addStretch();
}

void TembraWindowHeader::setTitle(const QString &title) {
    if (title == m_title)
        return;
    m_title = title;
    setAccessibleName(title);
    update();
}

void TembraWindowHeader::addLeading(QWidget *control) {
    m_layout->insertWidget(m_leadingCount++, control);
}

void TembraWindowHeader::addTrailing(QWidget *control) {
    m_layout->addWidget(control);
}

void TembraWindowHeader::paintEvent(QPaintEvent *) {
    QPainter painter(this);
    const Theme &theme = Theme::of(*this);
    painter.fillRect(rect(), theme.header);
    painter.fillRect(QRect(0, height() - 1, width(), 1), theme.separator);
    // In the middle of the window, narrowed on both sides alike by the controls.
    const QRect free = m_layout->itemAt(m_leadingCount)->geometry();
    const int reach = std::max(free.left(), width() - 1 - free.right()) + titleGap;
    const QRect middle = rect().adjusted(reach, 0, -reach, 0);
    const QFont font = typography::font(typography::bodySize, QFont::DemiBold);
    painter.setFont(font);
    painter.setPen(theme.text);
    painter.drawText(middle, Qt::AlignCenter,
                     QFontMetrics(font).elidedText(m_title, Qt::ElideMiddle, middle.width()));
}

void TembraWindowHeader::mouseMoveEvent(QMouseEvent *event) {
    if (event->buttons() == Qt::LeftButton && window()->windowHandle())
        window()->windowHandle()->startSystemMove();
}

void TembraWindowHeader::mouseDoubleClickEvent(QMouseEvent *event) {
    if (event->button() == Qt::LeftButton)
        window()->setWindowState(window()->windowState() ^ Qt::WindowMaximized);
}

} // namespace tembra

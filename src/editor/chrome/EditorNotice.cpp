#include "editor/chrome/EditorNotice.h"

#include "controls/ControlPainting.h"
#include "controls/LoadingIndicator.h"
#include "controls/SpokenNotice.h"
#include "controls/Theme.h"
#include "controls/Typography.h"

#include <QPainter>
#include <QStyle>

namespace tembra {

namespace {

constexpr int pillHeight = 28;
constexpr int sideMargin = 13;
constexpr int indicatorSide = 16;
constexpr int indicatorGap = 7;

} // namespace

EditorNotice::EditorNotice(QWidget *parent) : QWidget(parent), m_indicator(new LoadingIndicator(this)) {
    setFont(typography::font(typography::itemSize));
    m_indicator->hide();
}

void EditorNotice::setNotice(const QString &text, bool isBusy) {
    if (text == m_text && isBusy == !m_indicator->isHidden())
        return;
    m_text = text;
    setAccessibleName(text);
    if (isVisible())
        SpokenNotice::readAgain(*this);
    m_indicator->setVisible(isBusy);
    updateGeometry();
    update();
}

int EditorNotice::indicatorRoom() const {
    return m_indicator->isHidden() ? 0 : indicatorSide + indicatorGap;
}

QSize EditorNotice::sizeHint() const {
    return {2 * sideMargin + indicatorRoom() + QFontMetrics(font()).horizontalAdvance(m_text), pillHeight};
}

void EditorNotice::resizeEvent(QResizeEvent *) {
    const QRect place(sideMargin - 3, (height() - indicatorSide) / 2, indicatorSide, indicatorSide);
    m_indicator->setGeometry(QStyle::visualRect(layoutDirection(), rect(), place));
}

void EditorNotice::paintEvent(QPaintEvent *) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const Theme &theme = Theme::of(*this);
    drawField(painter, rect(), pillHeight / 2.0, theme.dock, theme.dockBorder);
    painter.setPen(theme.dockIcon);
    const QRect room = QStyle::visualRect(
        layoutDirection(), rect(), rect().adjusted(sideMargin + indicatorRoom(), 0, -sideMargin + 1, 0));
    const Qt::Alignment side = QStyle::visualAlignment(layoutDirection(), Qt::AlignLeft);
    painter.drawText(room, static_cast<int>(side) | Qt::AlignVCenter,
                     painter.fontMetrics().elidedText(m_text, Qt::ElideRight, room.width()));
}

} // namespace tembra

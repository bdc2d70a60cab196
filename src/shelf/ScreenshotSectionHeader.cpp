#include "shelf/ScreenshotSectionHeader.h"

#include "controls/Palette.h"
#include "controls/Typography.h"

#include <QPainter>

namespace tembra {

ScreenshotSectionHeader::ScreenshotSectionHeader(QWidget *parent) : QWidget(parent) {
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setFont(typography::font(typography::itemSize));
}

void ScreenshotSectionHeader::setTitle(const QString &title) {
    if (m_title == title)
        return;
    m_title = title;
    setAccessibleName(title);
    update();
}

void ScreenshotSectionHeader::paintEvent(QPaintEvent *) {
    QPainter painter(this);
    painter.setPen(palette::secondaryText);
    painter.drawText(rect(), Qt::AlignLeading | Qt::AlignVCenter, m_title);
}

} // namespace tembra

#include "controls/TembraSettingsSection.h"

#include "controls/AccessibleControls.h"
#include "controls/ControlPainting.h"
#include "controls/TembraSettingsRow.h"
#include "controls/Theme.h"
#include "controls/Typography.h"

#include <QPainter>
#include <QVBoxLayout>

namespace tembra {

namespace {

constexpr int headingHeight = 24;
constexpr int headingIndent = 4;
constexpr int separatorHeight = 1;
constexpr qreal radius = 12;

} // namespace

TembraSettingsSection::TembraSettingsSection(const QString &heading, QWidget *parent)
    : QWidget(parent), m_heading(heading), m_rows(new QVBoxLayout(this)) {
    installAccessibleControls();
    setAccessibleName(heading);
    m_rows->setContentsMargins(0, heading.isEmpty() ? 0 : headingHeight, 0, 0);
    m_rows->setSpacing(separatorHeight);
    QSizePolicy policy(QSizePolicy::Expanding, QSizePolicy::Minimum);
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
}

void TembraSettingsSection::addRow(TembraSettingsRow *row) {
    m_rows->addWidget(row);
}

void TembraSettingsSection::paintEvent(QPaintEvent *) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const Theme &theme = Theme::of(*this);
    const int top = m_rows->contentsMargins().top();
    if (!m_heading.isEmpty()) {
        painter.setFont(typography::font(typography::itemSize));
        painter.setPen(theme.secondaryText);
        const QRect heading(headingIndent, 0, width() - 2 * headingIndent, headingHeight - 7);
        painter.drawText(
            heading, QStyle::visualAlignment(layoutDirection(), Qt::AlignLeft) | Qt::AlignVCenter, m_heading);
    }
    drawField(painter, rect().adjusted(0, top, 0, 0), radius, theme.group);
    for (int index = 0; index < m_rows->count(); ++index) {
        const QRect row = m_rows->itemAt(index)->geometry();
        if (row.top() > top && m_rows->itemAt(index)->widget()->isVisible())
            painter.fillRect(QRect(0, row.top() - separatorHeight, width(), separatorHeight),
                             theme.separator);
    }
}

} // namespace tembra

#include "shelf/ScreenshotMessageView.h"

#include "controls/LoadingIndicator.h"
#include "controls/Palette.h"
#include "controls/TembraButton.h"
#include "controls/TextLabel.h"
#include "controls/Typography.h"

#include <QLabel>
#include <QVBoxLayout>

namespace tembra {

ScreenshotMessageView::ScreenshotMessageView(QWidget *parent) : QWidget(parent) {
    build();
    connect(m_button, &TembraButton::clicked, this, &ScreenshotMessageView::acted);
}

void ScreenshotMessageView::build() {
    m_indicator = new LoadingIndicator(this);
    m_title = makeTextLabel(this, typography::titleSize, QFont::DemiBold, palette::text);
    m_text = makeTextLabel(this, typography::bodySize, QFont::Normal, palette::secondaryText);
    m_button = new TembraButton(TembraButton::Kind::primary, this);
    setFocusProxy(m_button);
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(24, 0, 24, 20);
    column->setSpacing(8);
    column->addStretch();
    column->addWidget(m_indicator, 0, Qt::AlignHCenter);
    column->addWidget(m_title);
    column->addWidget(m_text);
    column->addSpacing(6);
    column->addWidget(m_button, 0, Qt::AlignHCenter);
    column->addStretch();
}

void ScreenshotMessageView::apply(const ScreenshotMessage &message) {
    m_indicator->setVisible(message.isLoading);
    m_title->setText(message.title);
    m_title->setVisible(!message.title.isEmpty());
    m_text->setText(message.text);
    m_text->setVisible(!message.text.isEmpty());
    m_button->setText(message.action);
    m_button->setVisible(!message.action.isEmpty());
}

} // namespace tembra

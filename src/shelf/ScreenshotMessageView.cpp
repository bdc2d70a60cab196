#include "shelf/ScreenshotMessageView.h"

#include "controls/LoadingIndicator.h"
#include "controls/Palette.h"
#include "controls/TembraButton.h"
#include "controls/Typography.h"

#include <QLabel>
#include <QVBoxLayout>

namespace tembra {

namespace {

QLabel *label(QWidget *parent, int size, QFont::Weight weight, const QColor &color) {
    auto *made = new QLabel(parent);
    made->setFont(typography::font(size, weight));
    QPalette colors = made->palette();
    colors.setColor(QPalette::WindowText, color);
    made->setPalette(colors);
    made->setAlignment(Qt::AlignCenter);
    made->setTextFormat(Qt::PlainText);
    return made;
}

} // namespace

ScreenshotMessageView::ScreenshotMessageView(QWidget *parent) : QWidget(parent) {
    build();
    connect(m_button, &TembraButton::clicked, this, &ScreenshotMessageView::acted);
}

void ScreenshotMessageView::build() {
    m_indicator = new LoadingIndicator(this);
    m_title = label(this, typography::titleSize, QFont::DemiBold, palette::text);
    m_text = label(this, typography::bodySize, QFont::Normal, palette::secondaryText);
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

#include "recognition/ui/OCRLoadingView.h"

#include "controls/ControlPainting.h"
#include "controls/LoadingIndicator.h"
#include "controls/Palette.h"
#include "controls/TembraButton.h"
#include "controls/TextLabel.h"
#include "controls/Theme.h"
#include "controls/Typography.h"
#include "recognition/ui/OCRCard.h"

#include <QLabel>
#include <QPainter>
#include <QVBoxLayout>

namespace tembra {

OCRLoadingView::OCRLoadingView(QWidget *parent) : QWidget(parent) {
    const QString title = tr("Analyzing…");
    setAccessibleName(title);
    auto *indicator = new LoadingIndicator(this);
    indicator->setAccessibleName(title);
    QLabel *label = makeTextLabel(this, typography::bodySize, QFont::Normal, palette::secondaryText);
    label->setText(title);
    auto *cancel = new TembraButton(TembraButton::Kind::plain, TembraButton::Size::card, tr("Cancel"), this);
    setFocusProxy(cancel);
    connect(cancel, &TembraButton::clicked, this, &OCRLoadingView::cancelled);
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(24, 8, 24, 8);
    column->setSpacing(10);
    column->addStretch();
    column->addWidget(indicator, 0, Qt::AlignHCenter);
    column->addWidget(label);
    column->addWidget(cancel, 0, Qt::AlignHCenter);
    column->addStretch();
}

void OCRLoadingView::paintEvent(QPaintEvent *) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    drawField(painter, rect(), OCRCard::radius, Theme::of(*this).field);
}

} // namespace tembra

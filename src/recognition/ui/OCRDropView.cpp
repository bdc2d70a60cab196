#include "recognition/ui/OCRDropView.h"

#include "controls/ControlPainting.h"
#include "controls/DropZoneAppearance.h"
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

namespace {

constexpr float veilOpacity = 0.7F;

} // namespace

OCRDropView::OCRDropView(QWidget *parent) : QWidget(parent) {
    build();
    setError({});
    connect(m_choose, &TembraButton::clicked, this, &OCRDropView::chooseImageRequested);
}

void OCRDropView::build() {
    m_message = makeTextLabel(this, typography::bodySize, QFont::Normal, palette::text);
    m_message->setWordWrap(true);
    m_hint = makeTextLabel(this, typography::captionSize, QFont::Normal, palette::secondaryText);
    m_hint->setText(tr("or paste one with Ctrl+V"));
    m_choose =
        new TembraButton(TembraButton::Kind::plain, TembraButton::Size::card, tr("Choose Image"), this);
    setFocusProxy(m_choose);
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(24, 8, 24, 8);
    column->setSpacing(0);
    column->addStretch();
    column->addWidget(m_message);
    column->addSpacing(11);
    column->addWidget(m_choose, 0, Qt::AlignHCenter);
    column->addSpacing(7);
    column->addWidget(m_hint);
    column->addStretch();
}

void OCRDropView::setError(const QString &message) {
    const bool isError = !message.isEmpty();
    m_message->setText(isError ? message : tr("Drop an image to extract its text"));
    setAccessibleName(m_message->text());
    QPalette colors = m_message->palette();
    colors.setColor(QPalette::WindowText, isError ? palette::text : palette::secondaryText);
    m_message->setPalette(colors);
}

void OCRDropView::setHighlighted(bool highlighted) {
    m_highlighted = highlighted;
    update();
}

void OCRDropView::setOverlay(bool overlay) {
    m_overlay = overlay;
    setAttribute(Qt::WA_TransparentForMouseEvents, overlay);
    m_choose->setVisible(!overlay);
    m_hint->setVisible(!overlay);
    update();
}

void OCRDropView::paintEvent(QPaintEvent *) {
    QPainter painter(this);
    if (m_overlay) {
        // A text would else be read into what is said over it.
        QColor veil = Theme::of(*this).field;
        veil.setAlphaF(veilOpacity);
        painter.setRenderHint(QPainter::Antialiasing);
        drawField(painter, rect(), OCRCard::radius, veil);
    }
    DropZoneAppearance::draw(painter, rect(), m_highlighted, m_overlay, {});
}

} // namespace tembra

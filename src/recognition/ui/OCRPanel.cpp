#include "recognition/ui/OCRPanel.h"

#include "controls/Motion.h"
#include "controls/SpokenNotice.h"
#include "recognition/ui/AccessibleRecognition.h"
#include "recognition/ui/OCRCard.h"
#include "recognition/ui/OCRDropView.h"
#include "recognition/ui/OCRLoadingView.h"
#include "recognition/ui/OCRResultCard.h"
#include "recognition/ui/OCRResultTextView.h"
#include "recognition/ui/PhaseFade.h"

#include <QDragEnterEvent>

namespace tembra {

OCRPanel::OCRPanel(Scheduler &scheduler, QWidget *parent) : QWidget(parent) {
    // First: what a view is to assistive programs is asked once, while it is made.
    installAccessibleRecognition();
    m_dropView = new OCRDropView(this);
    m_loading = new OCRLoadingView(this);
    m_card = new OCRResultCard(scheduler, this);
    m_overlay = new OCRDropView(this);
    setAcceptDrops(true);
    setAccessibleName(tr("Image to Text"));
    m_overlay->setOverlay(true);
    m_overlay->hide();
    connect(m_dropView, &OCRDropView::chooseImageRequested, this, &OCRPanel::chooseImageRequested);
    connect(m_loading, &OCRLoadingView::cancelled, this, &OCRPanel::resetRequested);
    connectCard();
    showPhase();
}

void OCRPanel::connectCard() {
    connect(m_card, &OCRResultCard::layoutChosen, this, &OCRPanel::layoutChosen);
    connect(m_card, &OCRResultCard::newImageRequested, this, &OCRPanel::resetRequested);
    connect(m_card, &OCRResultCard::sizeToggled, this, &OCRPanel::sizeToggled);
    connect(m_card, &OCRResultCard::copyRequested, this, &OCRPanel::copyRequested);
    const OCRResultTextView &text = m_card->textView();
    connect(&text, &OCRResultTextView::selectionCopyRequested, this, &OCRPanel::selectionCopyRequested);
    connect(&text, &OCRResultTextView::linkActivated, this, &OCRPanel::linkActivated);
    connect(&text, &OCRResultTextView::linkCopyRequested, this, &OCRPanel::linkCopyRequested);
}

void OCRPanel::apply(const OCRState &state, const QImage &picture) {
    const bool isSamePhase = state.phase == m_state.phase;
    if (isSamePhase && state == m_state && picture.cacheKey() == m_picture.cacheKey())
        return;
    QWidget *const before = phaseView();
    m_state = state;
    m_picture = picture;
    if (phaseView() != before && isVisible() && !motion::isReduced(*this)) {
        new PhaseFade(*before);
        m_overlay->raise();
    }
    showPhase();
    if (!isSamePhase)
        announce();
}

QWidget *OCRPanel::phaseView() const {
    if (std::holds_alternative<OCRState::Loading>(m_state.phase))
        return m_loading;
    if (std::holds_alternative<OCRState::Text>(m_state.phase))
        return m_card;
    return m_dropView;
}

void OCRPanel::showPhase() {
    QWidget *const shown = phaseView();
    if (shown == m_card)
        m_card->apply(m_state, m_picture);
    else
        m_card->clear();
    if (shown == m_dropView) {
        const auto *const error = std::get_if<OCRState::Error>(&m_state.phase);
        m_dropView->setError(error ? error->message : QString());
    }
    const QWidget *const focused = window()->focusWidget();
    const bool hadFocus = focused && isAncestorOf(focused) && !shown->isAncestorOf(focused);
    shown->show();
    setFocusProxy(shown);
    // Before what has it is hidden and would hand it on to a stranger.
    if (hadFocus)
        shown->setFocus(Qt::OtherFocusReason);
    for (QWidget *view : std::initializer_list<QWidget *>{m_dropView, m_loading, m_card})
        view->setVisible(view == shown);
}

void OCRPanel::announce() {
    const QWidget *const shown = phaseView();
    const bool isOutcome = std::holds_alternative<OCRState::Text>(m_state.phase) ||
                           std::holds_alternative<OCRState::Error>(m_state.phase);
    if (!isOutcome || !isVisible())
        return;
    SpokenNotice::say(*this, shown->accessibleName());
}

QString OCRPanel::selection() const {
    return m_card->isVisible() ? m_card->textView().selection() : QString();
}

void OCRPanel::showCopied() {
    m_card->showCopied();
}

void OCRPanel::highlightOCRDrop(bool highlighted) {
    m_dropView->setHighlighted(highlighted);
    m_overlay->setHighlighted(highlighted);
    m_overlay->setVisible(highlighted && phaseView() != m_dropView);
}

void OCRPanel::dragEnterEvent(QDragEnterEvent *event) {
    // A piece of the shown text may be the path of a file.
    const auto *const source = qobject_cast<QWidget *>(event->source());
    if ((source && isAncestorOf(source)) || !OCRInput::canRead(*event->mimeData()))
        return event->ignore();
    event->setDropAction(Qt::CopyAction);
    event->accept();
    highlightOCRDrop(true);
}

void OCRPanel::dragLeaveEvent(QDragLeaveEvent *) {
    highlightOCRDrop(false);
}

void OCRPanel::dropEvent(QDropEvent *event) {
    highlightOCRDrop(false);
    const auto input = OCRInput::read(*event->mimeData());
    event->setDropAction(Qt::CopyAction);
    event->setAccepted(input.has_value());
    if (input)
        Q_EMIT inputReceived(*input);
}

void OCRPanel::resizeEvent(QResizeEvent *) {
    const QRect card = rect().marginsRemoved(OCRCard::margins);
    for (QWidget *view : std::initializer_list<QWidget *>{m_dropView, m_loading, m_card, m_overlay})
        view->setGeometry(card);
}

} // namespace tembra

#pragma once

#include "recognition/model/OCRInput.h"
#include "recognition/model/OCRState.h"

#include <QImage>
#include <QUrl>
#include <QWidget>

namespace tembra {

class OCRDropView;
class OCRLoadingView;
class OCRResultCard;
class Scheduler;

// The panel for text recognition: an image is dropped on it, its text is shown. A function of the state; it
// does nothing itself but say what the user wants. Ctrl with C or V and Escape are left to what it stands
// in. View space.
class OCRPanel final : public QWidget {
    Q_OBJECT

public:
    // The scheduler must outlive this.
    OCRPanel(Scheduler &scheduler, QWidget *parent);

    // Cheap when nothing changed.
    void apply(const OCRState &state, const QImage &picture);
    // What is selected of the shown text; empty when the text is not visible or nothing is selected.
    [[nodiscard]] QString selection() const;
    // Says for a moment that the text was copied.
    void showCopied();
    // While an image is held over the panel.
    void highlightOCRDrop(bool highlighted);

Q_SIGNALS:
    // Dropped.
    void inputReceived(const tembra::OCRInput &input);
    void chooseImageRequested();
    void resetRequested();
    void sizeToggled();
    void layoutChosen(tembra::OCRTextLayout layout);
    void copyRequested();
    void selectionCopyRequested();
    // Its scheme is http, https or mailto.
    void linkActivated(const QUrl &url);
    void linkCopyRequested(const QUrl &url);

protected:
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dragLeaveEvent(QDragLeaveEvent *event) override;
    void dropEvent(QDropEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void connectCard();
    void showPhase();
    // Tells assistive programs what came of an image.
    void announce();
    [[nodiscard]] QWidget *phaseView() const;

    OCRState m_state;
    QImage m_picture;
    OCRDropView *m_dropView = nullptr;
    OCRLoadingView *m_loading = nullptr;
    OCRResultCard *m_card = nullptr;
    // Over the other views while an image is held over them.
    OCRDropView *m_overlay = nullptr;
};

} // namespace tembra

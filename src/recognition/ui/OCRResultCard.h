#pragma once

#include "base/Scheduler.h"
#include "recognition/model/OCRState.h"

#include <QWidget>

QT_BEGIN_NAMESPACE
class QLabel;
QT_END_NAMESPACE

namespace tembra {

class OCRPictureView;
class OCRResultTextView;
class TembraButton;
class TembraDropdownPopup;

// A recognized text with what can be done with it, and the image it was read from. View space.
class OCRResultCard final : public QWidget {
    Q_OBJECT

public:
    // The scheduler must outlive this.
    OCRResultCard(Scheduler &scheduler, QWidget *parent);

    // Of a state in the phase of a text.
    void apply(const OCRState &state, const QImage &picture);
    // Keeps nothing of what it showed.
    void clear();
    // Says for a moment that the text was copied.
    void showCopied();
    [[nodiscard]] OCRResultTextView &textView() const { return *m_text; }

Q_SIGNALS:
    void layoutChosen(tembra::OCRTextLayout layout);
    void newImageRequested();
    void sizeToggled();
    void copyRequested();

protected:
    void changeEvent(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void build();
    void layOut();
    void layOutHead();
    void put(QWidget &widget, const QRect &place);

    Scheduler &m_scheduler;
    // What is shown, to leave the text and what is selected of it as they are when nothing changed.
    OCRState m_state;
    QLabel *m_count = nullptr;
    TembraDropdownPopup *m_layouts = nullptr;
    TembraButton *m_newImage = nullptr;
    TembraButton *m_size = nullptr;
    TembraButton *m_copy = nullptr;
    OCRResultTextView *m_text = nullptr;
    OCRPictureView *m_picture = nullptr;
    bool m_offersLayouts = false;
    WorkItem m_copied;
};

} // namespace tembra

#pragma once

#include "base/Generation.h"
#include "base/Result.h"
#include "base/Scheduler.h"
#include "recognition/model/OCRInput.h"
#include "recognition/model/OCRRecognition.h"
#include "recognition/model/OCRState.h"

#include <QImage>

#include <functional>
#include <memory>
#include <optional>

namespace tembra {

class OCRRecognitionTask;
class OCRRecognizing;
class Pasteboard;

// What goes on in the panel for text recognition: one image at a time, its text, and copies of it. Main
// thread. What is handed in outlives it.
class OCRController {
public:
    OCRController(OCRRecognizing &recognizer, Pasteboard &pasteboard, Scheduler &scheduler);
    ~OCRController();
    OCRController(const OCRController &) = delete;
    OCRController &operator=(const OCRController &) = delete;

    // After `state` has changed.
    std::function<void()> onStateChange;
    // After its size has changed.
    std::function<void()> onResize;
    // The clipboard refused.
    std::function<void(const Error &)> onError;

    // A new image takes the place of the one under way.
    void recognize(const OCRInput &input);
    void reset();
    void toggleOCRSize();
    void setLayout(OCRTextLayout layout);
    // Whether the panel can be seen. One that shrank while it can be could slip away from under the pointer,
    // so it gives its room up when it is not.
    void setPresented(bool isPresented);
    // The whole result; false when the clipboard refused.
    bool copyOCR();
    // A part of the result; false when it is empty or the clipboard refused.
    bool copyOCRSelection(const QString &selection);

    [[nodiscard]] const OCRState &state() const { return m_state; }
    // The image that the result was read from, small; null in the other phases.
    [[nodiscard]] const QImage &picture() const { return m_picture; }

private:
    void cancelTask();
    void enter(OCRState::Phase phase);
    void finish(Result<OCRRecognition> result);
    void setExpanded(bool isExpanded);
    bool write(const QString &text);

    OCRRecognizing &m_recognizer;
    Pasteboard &m_pasteboard;
    Scheduler &m_scheduler;
    OCRState m_state;
    QImage m_picture;
    std::shared_ptr<OCRRecognitionTask> m_task;
    Generation m_generation;
    // What the user made of the panel's size; until then it follows the text.
    std::optional<bool> m_chosenSize;
};

} // namespace tembra

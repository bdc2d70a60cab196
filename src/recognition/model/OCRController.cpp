#include "recognition/model/OCRController.h"

#include "base/MainThread.h"
#include "platform/Pasteboard.h"
#include "recognition/model/OCRRecognitionTask.h"
#include "recognition/model/OCRRecognizing.h"

#include <QCoreApplication>

namespace tembra {

namespace {

// Lines that the panel's usual height has room for.
constexpr size_t fewLines = 4;

// Without words that are nothing but white space, and lines of such.
OCRText trimmed(OCRText text) {
    for (TextRecognizer::Line &line : text.lines)
        std::erase_if(line.words, [](const auto &word) { return word.text.trimmed().isEmpty(); });
    std::erase_if(text.lines, [](const auto &line) { return line.words.empty(); });
    return text;
}

} // namespace

OCRController::OCRController(OCRRecognizing &recognizer, Pasteboard &pasteboard, Scheduler &scheduler)
    : m_recognizer(recognizer), m_pasteboard(pasteboard), m_scheduler(scheduler) {}

OCRController::~OCRController() {
    cancelTask();
}

void OCRController::recognize(const OCRInput &input) {
    requireMainThread();
    cancelTask();
    enter(OCRState::Loading{});
    m_task = m_recognizer.recognize(input, [this, &scheduler = m_scheduler,
                                            ticket = m_generation.ticket()](Result<OCRRecognition> result) {
        scheduler.post([this, ticket, result = std::move(result)]() mutable {
            if (ticket.isCurrent())
                finish(std::move(result));
        });
    });
}

void OCRController::reset() {
    requireMainThread();
    cancelTask();
    enter(OCRState::Idle{});
}

void OCRController::toggleOCRSize() {
    requireMainThread();
    m_chosenSize = !m_state.isExpanded;
    setExpanded(*m_chosenSize);
}

void OCRController::setLayout(OCRTextLayout layout) {
    requireMainThread();
    if (std::exchange(m_state.layout, layout) != layout && onStateChange)
        onStateChange();
}

bool OCRController::copyOCR() {
    requireMainThread();
    return write(m_state.result());
}

bool OCRController::copyOCRSelection(const QString &selection) {
    requireMainThread();
    return !selection.isEmpty() && write(selection);
}

void OCRController::cancelTask() {
    if (m_task)
        m_task->cancel();
    m_task.reset();
    m_generation.advance();
}

void OCRController::enter(OCRState::Phase phase) {
    m_state.phase = std::move(phase);
    if (!std::holds_alternative<OCRState::Text>(m_state.phase))
        m_picture = {};
    if (onStateChange)
        onStateChange();
}

void OCRController::finish(Result<OCRRecognition> result) {
    m_task.reset();
    if (!result) {
        qWarning("No text was recognized: %s", qUtf8Printable(result.error().message));
        return enter(OCRState::Error{
            QCoreApplication::translate("OCR", "Could not read this image. Try another one.")});
    }
    OCRText text = trimmed(std::move(result->text));
    if (text.lines.empty())
        return enter(
            OCRState::Error{QCoreApplication::translate("OCR", "No text found. Try another image.")});
    m_picture = std::move(result->picture);
    const bool isLong = text.lines.size() > fewLines;
    enter(OCRState::Text{std::move(text)});
    setExpanded(m_chosenSize.value_or(m_state.isExpanded || isLong));
}

void OCRController::setPresented(bool isPresented) {
    requireMainThread();
    if (!isPresented && !std::holds_alternative<OCRState::Text>(m_state.phase))
        setExpanded(false);
}

void OCRController::setExpanded(bool isExpanded) {
    if (std::exchange(m_state.isExpanded, isExpanded) == isExpanded)
        return;
    if (onStateChange)
        onStateChange();
    if (onResize)
        onResize();
}

bool OCRController::write(const QString &text) {
    const auto written = m_pasteboard.writeObjects({{{}, Pasteboard::plainText, text.toUtf8()}});
    if (!written && onError)
        onError(written.error());
    return written.has_value();
}

} // namespace tembra

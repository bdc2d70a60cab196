#pragma once

#include "base/SerialQueue.h"
#include "recognition/model/OCRRecognizing.h"

namespace tembra {

class PictureDecoder;
class TextRecognizer;

// Reads images with the platform's recognizer, one at a time, on a queue of its own. What is handed in
// outlives it, and everything but the queue outlives the queue.
class OCRRecognizer final : public OCRRecognizing {
public:
    OCRRecognizer(const TextRecognizer &recognizer, const PictureDecoder &decoder, SerialQueue &queue);

    std::shared_ptr<OCRRecognitionTask> recognize(const OCRInput &input, Completion completion) override;

private:
    class Task;

    const TextRecognizer &m_recognizer;
    const PictureDecoder &m_decoder;
    SerialQueue &m_queue;
};

} // namespace tembra

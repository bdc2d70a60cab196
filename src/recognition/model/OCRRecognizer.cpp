#include "recognition/model/OCRRecognizer.h"

#include "base/Cancellation.h"
#include "platform/TextRecognizer.h"
#include "recognition/model/OCRPicture.h"

namespace tembra {

namespace {

QImage reduced(const QImage &image) {
    constexpr int side = OCRRecognition::longestPictureSide;
    if (std::max(image.width(), image.height()) <= side)
        return image;
    const QSize size = image.size().scaled(side, side, Qt::KeepAspectRatio).expandedTo({1, 1});
    return image.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

Result<OCRRecognition> read(const OCRInput &input, const TextRecognizer &recognizer,
                            const PictureDecoder &decoder, const Cancellation &cancellation) {
    const auto image = OCRPicture::open(input, decoder, cancellation);
    if (cancellation.isCancelled())
        return failure({TextRecognizer::errorDomain, TextRecognizer::cancelled, {}, {}});
    if (!image)
        return failure(image.error());
    auto lines = recognizer.recognize(*image, cancellation);
    if (!lines)
        return failure(lines.error());
    return OCRRecognition{{std::move(*lines)}, image->size(), reduced(*image)};
}

} // namespace

class OCRRecognizer::Task final : public OCRRecognitionTask {
public:
    void cancel() override { m_cancellation.cancel(); }
    [[nodiscard]] const Cancellation &cancellation() const { return m_cancellation; }

private:
    const Cancellation m_cancellation;
};

OCRRecognizer::OCRRecognizer(const TextRecognizer &recognizer, const PictureDecoder &decoder,
                             SerialQueue &queue)
    : m_recognizer(recognizer), m_decoder(decoder), m_queue(queue) {}

std::shared_ptr<OCRRecognitionTask> OCRRecognizer::recognize(const OCRInput &input, Completion completion) {
    auto task = std::make_shared<Task>();
    m_queue.post(
        [&recognizer = m_recognizer, &decoder = m_decoder, input, task, completion = std::move(completion)] {
            if (task->cancellation().isCancelled())
                return;
            completion(read(input, recognizer, decoder, task->cancellation()));
        });
    return task;
}

} // namespace tembra

#pragma once

#include "base/Result.h"
#include "recognition/model/OCRInput.h"
#include "recognition/model/OCRRecognition.h"
#include "recognition/model/OCRRecognitionTask.h"

#include <functional>
#include <memory>

namespace tembra {

// Reads the text of images.
class OCRRecognizing {
public:
    using Completion = std::function<void(Result<OCRRecognition>)>;

    virtual ~OCRRecognizing() = default;
    // Returns at once. The completion is called exactly once, not on the main thread; never where the task
    // was cancelled before the work began. An image without text is a success. Errors:
    // OCRPicture::errorDomain, TextRecognizer::errorDomain. Dropping the task does not cancel it.
    virtual std::shared_ptr<OCRRecognitionTask> recognize(const OCRInput &input, Completion completion) = 0;
};

} // namespace tembra

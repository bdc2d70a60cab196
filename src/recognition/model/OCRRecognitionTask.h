#pragma once

namespace tembra {

// A recognition under way. Any thread.
class OCRRecognitionTask {
public:
    virtual ~OCRRecognitionTask() = default;
    virtual void cancel() = 0;
};

} // namespace tembra

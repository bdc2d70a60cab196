#pragma once

#include "recognition/model/OCRRecognizing.h"
#include "support/RecognizedText.h"

#include <utility>
#include <vector>

namespace tembra {

// Answers when the test says so, as often as it says so.
class FakeOCRRecognizer final : public OCRRecognizing {
public:
    struct Run {
        OCRInput input;
        Completion complete;
        bool isCancelled = false;
    };

    std::shared_ptr<OCRRecognitionTask> recognize(const OCRInput &input, Completion completion) override {
        auto run = std::make_shared<Run>(Run{input, std::move(completion)});
        runs.push_back(run);
        return std::make_shared<Task>(std::move(run));
    }

    void succeed(const QStringList &lines) {
        runs.back()->complete(OCRRecognition{recognizedText(lines), {640, 480}, {}});
    }
    void fail() { runs.back()->complete(failure({.domain = TextRecognizer::errorDomain, .code = 3})); }

    std::vector<std::shared_ptr<Run>> runs;

private:
    class Task final : public OCRRecognitionTask {
    public:
        explicit Task(std::shared_ptr<Run> run) : m_run(std::move(run)) {}
        void cancel() override { m_run->isCancelled = true; }

    private:
        const std::shared_ptr<Run> m_run;
    };
};

} // namespace tembra

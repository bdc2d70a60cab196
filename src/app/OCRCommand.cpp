#include "app/OCRCommand.h"

#include "app/CommandLine.h"
#include "app/OCRReport.h"
#include "base/QtScheduler.h"
#include "base/ThreadQueue.h"
#include "platform/Platform.h"
#include "recognition/model/OCRRecognizer.h"

#include <QDir>

#include <future>

namespace tembra {

Result<QString> readText(const CommandLine &line) {
    QtScheduler scheduler;
    const Platform platform = makeHeadlessPlatform(scheduler);
    // Outlives the queue, which completes it.
    std::promise<Result<OCRRecognition>> answer;
    ThreadQueue queue(QStringLiteral("local.dova.Tembra.ocr"));
    OCRRecognizer recognizer(*platform.textRecognizer, *platform.pictureDecoder, queue);
    recognizer.recognize({OCRInput::File{QDir::current().absoluteFilePath(line.path)}},
                         [&answer](Result<OCRRecognition> result) { answer.set_value(std::move(result)); });
    return answer.get_future().get().map([&line](OCRRecognition recognition) {
        const OCRReport report{std::move(recognition.text), line.textLayout, line.words};
        return line.json ? QString::fromUtf8(report.json()) : report.plainText();
    });
}

} // namespace tembra

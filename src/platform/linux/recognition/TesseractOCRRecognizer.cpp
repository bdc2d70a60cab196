#include "platform/linux/recognition/TesseractOCRRecognizer.h"

#include "platform/linux/recognition/EngineLanguages.h"
#include "platform/linux/recognition/PictureHandover.h"
#include "platform/linux/recognition/RecognizedText.h"
#include "platform/linux/recognition/WorkerProtocol.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

namespace tembra {

namespace {

QString sentence(TextRecognizer::ErrorCode code) {
    switch (code) {
    case TextRecognizer::unavailable:
        return QCoreApplication::translate("TextRecognition",
                                           "Text can’t be recognized because a part of Tembra is missing. "
                                           "Reinstall it.");
    case TextRecognizer::noLanguage:
        return QCoreApplication::translate(
            "TextRecognition", "Text can’t be recognized because no language is installed for it. Install "
                               "the package tesseract-ocr-eng.");
    case TextRecognizer::notRecognized:
        return QCoreApplication::translate("TextRecognition", "The text of this image couldn’t be read.");
    case TextRecognizer::cancelled:
        return QCoreApplication::translate("TextRecognition", "Text recognition was cancelled.");
    }
    return {};
}

tl::unexpected<Error> recognitionFailure(TextRecognizer::ErrorCode code) {
    return failure({TextRecognizer::errorDomain, code, sentence(code), {}});
}

TextRecognizer::ErrorCode codeOf(RecognitionWorker::Fault fault) {
    switch (fault) {
    case RecognitionWorker::Fault::noLanguage:
        return TextRecognizer::noLanguage;
    case RecognitionWorker::Fault::cancelled:
        return TextRecognizer::cancelled;
    case RecognitionWorker::Fault::notStarted:
        return TextRecognizer::unavailable;
    case RecognitionWorker::Fault::gone:
    case RecognitionWorker::Fault::broken:
    case RecognitionWorker::Fault::late:
        break;
    }
    return TextRecognizer::notRecognized;
}

void report(RecognitionWorker::Fault fault, const QStringList &languages) {
    switch (fault) {
    case RecognitionWorker::Fault::noLanguage:
        qWarning("No text is recognized: Tesseract has no data for any of the languages %s",
                 qUtf8Printable(languages.join(u' ')));
        break;
    case RecognitionWorker::Fault::gone:
        qWarning("No text is recognized: the worker ended before it took the picture");
        break;
    case RecognitionWorker::Fault::broken:
        qWarning("No text is recognized: the worker ended, or its answer cannot be used");
        break;
    case RecognitionWorker::Fault::late:
        qWarning("No text is recognized: the worker took too long");
        break;
    case RecognitionWorker::Fault::notStarted:
    case RecognitionWorker::Fault::cancelled:
        break;
    }
}

} // namespace

TesseractOCRRecognizer::TesseractOCRRecognizer(RecognitionWorker::Program program,
                                               std::chrono::milliseconds limit)
    : m_program(std::move(program)), m_limit(limit) {}

// Beside the program where it is built, else where it is installed.
RecognitionWorker::Program TesseractOCRRecognizer::installedWorker() {
    RecognitionWorker::Program worker;
    worker.languages = engineLanguages(QLocale::system().uiLanguages());
    const QDir programs(QCoreApplication::applicationDirPath());
    for (const QString &folder : {QStringLiteral("."), QStringLiteral("../libexec/tembra")}) {
        const QFileInfo file(programs, folder + QStringLiteral("/tembra-recognition"));
        if (file.isExecutable()) {
            worker.file = file.absoluteFilePath();
            break;
        }
    }
    return worker;
}

Result<std::vector<TextRecognizer::Line>>
TesseractOCRRecognizer::recognize(const QImage &image, const Cancellation &cancellation) const {
    if (m_program.file.isEmpty()) {
        qWarning("No text is recognized: tembra-recognition is not installed");
        return recognitionFailure(unavailable);
    }
    if (cancellation.isCancelled())
        return recognitionFailure(cancelled);
    if (image.isNull())
        return recognitionFailure(notRecognized);
    const auto picture = pictureInMemory(image);
    if (!picture) {
        qWarning("No text is recognized: no memory for the picture (%s)",
                 qUtf8Printable(picture.error().message));
        return recognitionFailure(notRecognized);
    }
    const auto answer = read(*picture, cancellation);
    if (!answer) {
        report(answer.error(), m_program.languages);
        return recognitionFailure(codeOf(answer.error()));
    }
    auto lines = recognizedText(*answer);
    if (!lines) {
        report(Fault::broken, m_program.languages);
        return recognitionFailure(notRecognized);
    }
    return std::move(*lines);
}

RecognitionWorker::Outcome<QByteArray> TesseractOCRRecognizer::read(const Descriptor &picture,
                                                                    const Cancellation &cancellation) const {
    RecognitionWorker::Outcome<QByteArray> answer = tl::unexpected(Fault::gone);
    std::unique_ptr<RecognitionWorker> worker = takeIdleWorker();
    if (worker)
        answer = worker->read(picture, m_limit, cancellation);
    // It may have ended since.
    if (!answer && answer.error() == Fault::gone) {
        auto started = RecognitionWorker::start(m_program);
        if (!started) {
            qWarning("%s cannot be started: %s", qUtf8Printable(m_program.file),
                     qUtf8Printable(started.error().message));
            return tl::unexpected(Fault::notStarted);
        }
        worker = std::move(*started);
        answer = worker->read(picture, m_limit, cancellation);
    }
    if (answer)
        keep(std::move(worker));
    return answer;
}

std::unique_ptr<RecognitionWorker> TesseractOCRRecognizer::takeIdleWorker() const {
    const std::lock_guard lock(m_lock);
    return std::move(m_idleWorker);
}

void TesseractOCRRecognizer::keep(std::unique_ptr<RecognitionWorker> worker) const {
    const std::lock_guard lock(m_lock);
    std::swap(m_idleWorker, worker);
}

} // namespace tembra

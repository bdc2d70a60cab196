#include "platform/linux/recognition/TesseractOCRRecognizer.h"

#include "platform/linux/recognition/EngineLanguages.h"
#include "platform/linux/recognition/PictureHandover.h"
#include "platform/linux/recognition/RecognizedText.h"
#include "platform/linux/recognition/WorkerProtocol.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QProcess>

#include <algorithm>

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
    : m_usualLanguages(program.languages), m_limit(limit), m_program(std::move(program)) {}

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
    const RecognitionWorker::Program worker = program();
    if (worker.file.isEmpty()) {
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
    const auto answer = read(worker, *picture, cancellation);
    if (!answer) {
        report(answer.error(), worker.languages);
        return recognitionFailure(codeOf(answer.error()));
    }
    auto lines = recognizedText(*answer);
    if (!lines) {
        report(Fault::broken, worker.languages);
        return recognitionFailure(notRecognized);
    }
    return std::move(*lines);
}

RecognitionWorker::Outcome<QByteArray> TesseractOCRRecognizer::read(const RecognitionWorker::Program &program,
                                                                    const Descriptor &picture,
                                                                    const Cancellation &cancellation) const {
    RecognitionWorker::Outcome<QByteArray> answer = tl::unexpected(Fault::gone);
    std::unique_ptr<RecognitionWorker> worker = takeIdleWorker();
    if (worker)
        answer = worker->read(picture, m_limit, cancellation);
    // It may have ended since.
    if (!answer && answer.error() == Fault::gone) {
        auto started = RecognitionWorker::start(program);
        if (!started) {
            qWarning("%s cannot be started: %s", qUtf8Printable(program.file),
                     qUtf8Printable(started.error().message));
            return tl::unexpected(Fault::notStarted);
        }
        worker = std::move(*started);
        answer = worker->read(picture, m_limit, cancellation);
    }
    if (answer)
        keep(std::move(worker), program.languages);
    return answer;
}

std::unique_ptr<RecognitionWorker> TesseractOCRRecognizer::takeIdleWorker() const {
    const std::lock_guard lock(m_lock);
    return std::move(m_idleWorker);
}

void TesseractOCRRecognizer::keep(std::unique_ptr<RecognitionWorker> worker,
                                  const QStringList &languages) const {
    const std::lock_guard lock(m_lock);
    if (languages == m_program.languages)
        std::swap(m_idleWorker, worker);
}

RecognitionWorker::Program TesseractOCRRecognizer::program() const {
    const std::lock_guard lock(m_lock);
    return m_program;
}

void TesseractOCRRecognizer::setLanguages(const QStringList &codes) {
    std::unique_ptr<RecognitionWorker> former;
    const std::lock_guard lock(m_lock);
    const QStringList languages = codes.isEmpty() ? m_usualLanguages : inReadingOrder(codes);
    if (languages == m_program.languages)
        return;
    m_program.languages = languages;
    former = std::move(m_idleWorker);
}

Result<std::vector<TextRecognizer::Language>> TesseractOCRRecognizer::installedLanguages() const {
    constexpr int patience = 10'000;
    QProcess worker;
    worker.start(program().file, {QString::fromLatin1(recognition::languagesOption)});
    if (!worker.waitForFinished(patience) || worker.exitStatus() != QProcess::NormalExit ||
        worker.exitCode() != 0)
        return recognitionFailure(unavailable);
    std::vector<Language> languages;
    const QStringList codes =
        QString::fromUtf8(worker.readAllStandardOutput()).split(u'\n', Qt::SkipEmptyParts);
    if (codes.isEmpty())
        return recognitionFailure(noLanguage);
    for (const QString &code : codes)
        languages.push_back({code, languageName(code)});
    std::sort(languages.begin(), languages.end(), [](const Language &a, const Language &b) {
        return QString::localeAwareCompare(a.name, b.name) < 0;
    });
    return languages;
}

} // namespace tembra

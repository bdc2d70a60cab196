#include "platform/linux/recognition/TesseractRecognizer.h"

#include "platform/linux/recognition/EngineLanguages.h"
#include "platform/linux/recognition/PictureHandover.h"
#include "platform/linux/recognition/RecognizedText.h"
#include "platform/linux/recognition/WorkerProtocol.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QProcess>

#include <csignal>
#include <sys/prctl.h>
#include <unistd.h>

namespace tembra {

namespace {

using namespace std::chrono_literals;

// How long a cancelled worker may go on.
constexpr std::chrono::milliseconds cancellationInterval = 30ms;
// More than all the words of a picture take.
constexpr qsizetype longestOutput = qsizetype{16} << 20;

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

// In the child, before it becomes the worker: the picture is its input, and it does not outlive us.
void becomeWorker(int picture, pid_t parent) {
    ::dup2(picture, STDIN_FILENO);
    ::prctl(PR_SET_PDEATHSIG, SIGKILL);
    if (::getppid() != parent)
        ::_exit(recognition::unusable);
}

void prepare(QProcess &process, const TesseractRecognizer::Worker &worker, int picture) {
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("OMP_THREAD_LIMIT"), QStringLiteral("1"));
    process.setProcessEnvironment(environment);
    process.setStandardErrorFile(QProcess::nullDevice());
    process.setStandardInputFile(QProcess::nullDevice());
    process.setProgram(worker.program);
    process.setArguments({worker.languages.join(u'+')});
    process.setChildProcessModifier([picture, parent = ::getpid()] { becomeWorker(picture, parent); });
}

Result<QByteArray> outputOf(QProcess &process, std::chrono::milliseconds limit,
                            const Cancellation &cancellation) {
    QElapsedTimer time;
    time.start();
    QByteArray output;
    while (process.state() != QProcess::NotRunning) {
        process.waitForReadyRead(static_cast<int>(cancellationInterval.count()));
        output += process.readAllStandardOutput();
        if (cancellation.isCancelled())
            return recognitionFailure(TextRecognizer::cancelled);
        if (time.hasExpired(limit.count()) || output.size() > longestOutput)
            return recognitionFailure(TextRecognizer::notRecognized);
    }
    output += process.readAllStandardOutput();
    if (process.exitStatus() == QProcess::NormalExit && process.exitCode() == recognition::noLanguage)
        return recognitionFailure(TextRecognizer::noLanguage);
    if (process.exitStatus() != QProcess::NormalExit || process.exitCode() != recognition::recognized)
        return recognitionFailure(TextRecognizer::notRecognized);
    return output;
}

} // namespace

TesseractRecognizer::TesseractRecognizer(Worker worker) : m_worker(std::move(worker)) {}

// Beside the program where it is built, else where it is installed.
TesseractRecognizer::Worker TesseractRecognizer::installedWorker() {
    Worker worker;
    worker.languages = engineLanguages(QLocale::system().uiLanguages());
    const QDir programs(QCoreApplication::applicationDirPath());
    for (const QString &folder : {QStringLiteral("."), QStringLiteral("../libexec/tembra")}) {
        const QFileInfo file(programs, folder + QStringLiteral("/tembra-recognition"));
        if (file.isExecutable()) {
            worker.program = file.absoluteFilePath();
            break;
        }
    }
    return worker;
}

Result<std::vector<TextRecognizer::Line>>
TesseractRecognizer::recognize(const QImage &image, const Cancellation &cancellation) const {
    if (m_worker.program.isEmpty())
        return recognitionFailure(unavailable);
    if (cancellation.isCancelled())
        return recognitionFailure(cancelled);
    if (image.isNull())
        return recognitionFailure(notRecognized);
    const auto picture = pictureInMemory(image);
    if (!picture)
        return failure(picture.error());
    // Its destructor ends what is still running.
    QProcess process;
    prepare(process, m_worker, picture->number());
    process.start(QIODevice::ReadOnly);
    if (!process.waitForStarted())
        return recognitionFailure(unavailable);
    const auto output = outputOf(process, m_worker.limit, cancellation);
    if (!output) {
        process.kill();
        process.waitForFinished();
        return failure(output.error());
    }
    auto lines = recognizedText(*output);
    if (!lines)
        return recognitionFailure(notRecognized);
    return std::move(*lines);
}

} // namespace tembra

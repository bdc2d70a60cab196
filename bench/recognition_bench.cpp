// Reading the text of interfaces, beside the tesseract program on the same files: errors in hundredths of the
// characters, and time. With a folder as argument the pictures and what was read of them stay there. Run
// through bench/run.

#include "InterfaceTexts.h"
#include "Require.h"
#include "Row.h"
#include "Scratch.h"
#include "TextErrors.h"
#include "Timing.h"
#include "WordPictures.h"
#include "imaging/PictureDecoding.h"
#include "platform/linux/recognition/TesseractOCRRecognizer.h"

#include <QApplication>
#include <QFile>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>

#include <array>
#include <cstdlib>
#include <future>
#include <map>
#include <memory>

using namespace tembra;
using namespace tembra::bench;

namespace {

QImage pictureIn(const QString &path) {
    QFile file(path);
    require(file.open(QIODevice::ReadOnly), "cannot read");
    const auto image = decodePicture(file.readAll());
    require(image.has_value(), "not decoded");
    return *image;
}

QString textOf(const TextRecognizer &recognizer, const QImage &image) {
    const auto lines = recognizer.recognize(image, {});
    require(lines.has_value(), "not recognised");
    QStringList texts;
    for (const TextRecognizer::Line &line : *lines) {
        QStringList words;
        for (const TextRecognizer::Word &word : line.words)
            words += word.text;
        texts += words.join(u' ');
    }
    return texts.join(u'\n');
}

// Null for as many threads as it likes.
QString programsTextOf(const InterfaceText &text, const char *threads) {
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    if (threads)
        environment.insert(QStringLiteral("OMP_THREAD_LIMIT"), QString::fromLatin1(threads));
    else
        environment.remove(QStringLiteral("OMP_THREAD_LIMIT"));
    QProcess program;
    program.setProcessEnvironment(environment);
    program.setStandardErrorFile(QProcess::nullDevice());
    program.start(QStringLiteral("tesseract"),
                  {text.file, QStringLiteral("-"), QStringLiteral("-l"), text.languages.join(u'+')});
    require(program.waitForFinished(-1) && program.exitCode() == 0, "the tesseract program did not work");
    return QString::fromUtf8(program.readAllStandardOutput());
}

TextErrors errorsOf(const InterfaceText &text, const QString &read) {
    return text.hasColumns ? errorsOfWords(text.truth.simplified(), read.simplified())
                           : errorsInOrder(text.truth, read);
}

struct Sum {
    double errors = 0;
    double length = 0;
    double time = 0;

    void add(const TextErrors &more, double milliseconds) {
        errors += static_cast<double>(more.errors);
        length += static_cast<double>(more.length);
        time += milliseconds;
    }
    [[nodiscard]] double hundredths() const { return 100 * errors / length; }
};

void keep(const QString &folder, const InterfaceText &text, const QString &read) {
    QFile file(text.file + QStringLiteral(".txt"));
    if (folder.isEmpty() || !file.open(QIODevice::WriteOnly))
        return;
    file.write((text.name + u"\n--- truth\n"_qs + text.truth + u"\n--- read\n"_qs + read + u'\n').toUtf8());
}

// For whoever works on a single one. Of a picture without text there is no share of its characters: they are
// counted.
void printCase(const InterfaceText &text, const TextErrors &ours, double time, const TextErrors &program,
               double programTime) {
    const bool isShare = ours.length > 0;
    const auto figure = [&](const TextErrors &errors) {
        return static_cast<double>(errors.errors) * (isShare ? 100.0 / static_cast<double>(ours.length) : 1);
    };
    std::fprintf(stderr, "%-32s %6.1f %6.1f %-5s %8.0f %8.0f ms%s\n", qPrintable(text.name), figure(ours),
                 figure(program), isShare ? "%" : "chars", time, programTime,
                 text.hasColumns ? "  (words)" : "");
}

// From the word to the answer, in the middle of the picture.
double cancellationTime(const TextRecognizer &recognizer, const QImage &image) {
    using namespace std::chrono_literals;
    constexpr int rounds = 5;
    std::vector<double> times;
    for (int i = 0; i < rounds; ++i) {
        const Cancellation cancellation;
        auto lines =
            std::async(std::launch::async, [&] { return recognizer.recognize(image, cancellation); });
        require(lines.wait_for(300ms) == std::future_status::timeout, "read too soon to be cancelled");
        times.push_back(milliseconds([&] {
            cancellation.cancel();
            lines.wait();
        }));
    }
    return median(times);
}

// With more threads than one the program is many times slower, so a few pictures tell.
const char *bestThreads(const std::vector<InterfaceText> &texts) {
    constexpr std::array<const char *, 3> choices{"1", "2", nullptr};
    constexpr size_t pictures = 4;
    std::array<double, choices.size()> times{};
    for (size_t i = 0; i < choices.size(); ++i) {
        times[i] = milliseconds([&] {
            for (size_t k = 0; k < std::min(pictures, texts.size()); ++k)
                (void)programsTextOf(texts[k], choices[i]);
        });
    }
    std::fprintf(stderr, "%zu pictures with 1, 2, any threads of the program: %.0f, %.0f, %.0f ms\n",
                 pictures, times[0], times[1], times[2]);
    return choices[static_cast<size_t>(std::ranges::min_element(times) - times.begin())];
}

class Reading {
public:
    explicit Reading(bool hasProgram) : m_hasProgram(hasProgram) {}

    // The pictures and what was read of them stay in the folder, unless that is empty.
    void measure(const std::vector<InterfaceText> &texts, const QString &folder) {
        const char *const threads = m_hasProgram ? bestThreads(texts) : nullptr;
        std::fputs("errors and time, ours and the program's\n", stderr);
        for (const InterfaceText &text : texts) {
            const QImage image = pictureIn(text.file);
            const TextRecognizer &recognizer = warmRecognizer(text.languages, image);
            QString read;
            const double time = milliseconds([&] { read = textOf(recognizer, image); });
            const TextErrors errors = errorsOf(text, read);
            m_ours.add(errors, time);
            keep(folder, text, read);
            QString programRead;
            const double programTime =
                m_hasProgram ? milliseconds([&] { programRead = programsTextOf(text, threads); }) : 0;
            const TextErrors programErrors = errorsOf(text, programRead);
            m_program.add(programErrors, programTime);
            printCase(text, errors, time, programErrors, programTime);
        }
    }

    void print() {
        const auto peer = [this](const char *name, double value) {
            return m_hasProgram ? std::optional(Peer{name, value}) : std::nullopt;
        };
        printArea("Image to Text, pictures of interfaces");
        if (!m_hasProgram)
            printNote("tesseract is not installed");
        printRow({.what = "character errors",
                  .ours = m_ours.hundredths(),
                  .unit = "%",
                  .peer = peer("tesseract", m_program.hundredths()),
                  .goal = atMostTimes(0.5)});
        printRow({.what = "time, warm worker",
                  .ours = m_ours.time,
                  .unit = "ms",
                  .peer = peer("tesseract, its best threads", m_program.time),
                  .goal = atMostTimes(0.6)});
        printRow({.what = "the first picture, with the start of the worker", .ours = m_first, .unit = "ms"});
        const QImage screen = wordPicture(QSize(3840, 2160), 0).image;
        printRow({.what = "cancelled in the middle of a screen",
                  .ours = cancellationTime(*m_recognizers[QStringLiteral("eng")], screen),
                  .unit = "ms",
                  .goal = atMost(100)});
    }

private:
    // One that has read this picture before, or another.
    const TextRecognizer &warmRecognizer(const QStringList &languages, const QImage &image) {
        auto &recognizer = m_recognizers[languages.join(u'+')];
        if (recognizer)
            return *recognizer;
        recognizer = std::make_unique<TesseractOCRRecognizer>(RecognitionWorker::Program{
            .file = QStringLiteral(TEMBRA_RECOGNITION_WORKER), .languages = languages});
        const double time = milliseconds([&] { (void)textOf(*recognizer, image); });
        m_first = m_first == 0 ? time : m_first;
        return *recognizer;
    }

    const bool m_hasProgram;
    std::map<QString, std::unique_ptr<TesseractOCRRecognizer>> m_recognizers;
    Sum m_ours;
    Sum m_program;
    double m_first = 0;
};

} // namespace

int main(int argc, char **argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    const QTemporaryDir scratch(scratchTemplate("recognition-bench"));
    const QString folder = QApplication::arguments().value(1);
    Reading reading(!QStandardPaths::findExecutable(QStringLiteral("tesseract")).isEmpty());
    reading.measure(interfaceTexts(folder.isEmpty() ? scratch.path() : folder), folder);
    reading.print();
    return EXIT_SUCCESS;
}

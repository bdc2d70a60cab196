// Reading the text of interfaces, beside the tesseract program on the same files: errors in hundredths of the
// characters, and time. With a folder as argument the pictures and what was read of them stay there. Run
// through bench/run.

#include "InterfaceTexts.h"
#include "Row.h"
#include "Scratch.h"
#include "TextErrors.h"
#include "WordPictures.h"
#include "imaging/PictureDecoding.h"
#include "platform/linux/recognition/TesseractOCRRecognizer.h"

#include <QApplication>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <array>
#include <cstdlib>
#include <future>
#include <map>
#include <memory>

using namespace tembra;
using namespace tembra::bench;

namespace {

void require(bool condition, const char *what) {
    if (condition)
        return;
    std::fprintf(stderr, "%s\n", what);
    std::exit(1);
}

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

// Of a picture without text there is no share of its characters: they are counted.
void printCase(const InterfaceText &text, const TextErrors &ours, double time, const TextErrors &program,
               double programTime) {
    const bool isShare = ours.length > 0;
    const auto figure = [&](const TextErrors &errors) {
        return static_cast<double>(errors.errors) * (isShare ? 100.0 / static_cast<double>(ours.length) : 1);
    };
    std::printf("%-32s %6.1f %6.1f %-5s %8.0f %8.0f ms%s\n", qPrintable(text.name), figure(ours),
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
    std::printf("%zu pictures with 1, 2, any threads of the program: %.0f, %.0f, %.0f ms\n", pictures,
                times[0], times[1], times[2]);
    return choices[static_cast<size_t>(std::ranges::min_element(times) - times.begin())];
}

} // namespace

int main(int argc, char **argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    const QTemporaryDir scratch(scratchTemplate("recognition-bench"));
    const QString folder = QApplication::arguments().value(1);
    const auto texts = interfaceTexts(folder.isEmpty() ? scratch.path() : folder);
    const char *const threads = bestThreads(texts);

    std::map<QString, std::unique_ptr<TesseractOCRRecognizer>> recognizers;
    Sum ours;
    Sum program;
    double first = 0;
    std::puts("errors and time, ours and the program's");
    for (const InterfaceText &text : texts) {
        auto &recognizer = recognizers[text.languages.join(u'+')];
        const QImage image = pictureIn(text.file);
        if (!recognizer) {
            recognizer = std::make_unique<TesseractOCRRecognizer>(RecognitionWorker::Program{
                .file = QStringLiteral(TEMBRA_RECOGNITION_WORKER), .languages = text.languages});
            const double time = milliseconds([&] { (void)textOf(*recognizer, image); });
            first = first == 0 ? time : first;
        }
        QString read;
        const double time = milliseconds([&] { read = textOf(*recognizer, image); });
        const TextErrors errors = errorsOf(text, read);
        ours.add(errors, time);
        keep(folder, text, read);
        QString programRead;
        const double programTime = milliseconds([&] { programRead = programsTextOf(text, threads); });
        const TextErrors programErrors = errorsOf(text, programRead);
        program.add(programErrors, programTime);
        printCase(text, errors, time, programErrors, programTime);
    }
    std::printf("the first picture, with the start of the worker: %.0f ms\n", first);
    printRow("errors of interface texts / tesseract program", ours.hundredths(), program.hundredths(), "%",
             0.5);
    printRow("time of interface texts / its best threads", ours.time, program.time, "ms", 0.6);
    const QImage screen = wordPicture(QSize(3840, 2160), 0).image;
    printRow("cancelled in the middle of a screen",
             cancellationTime(*recognizers[QStringLiteral("eng")], screen), 100, "ms", 1);
    return 0;
}

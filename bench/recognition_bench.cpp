// The words of a screen of interface text, beside the tesseract program on the same picture as a file. Run
// through bench/run.

#include "Row.h"
#include "Scratch.h"
#include "WordPictures.h"
#include "platform/linux/recognition/TesseractRecognizer.h"

#include <QGuiApplication>
#include <QProcess>
#include <QTemporaryDir>

#include <cstdlib>

using namespace tembra;
using namespace tembra::bench;

namespace {

constexpr int rounds = 3;

void require(bool condition, const char *what) {
    if (condition)
        return;
    std::fprintf(stderr, "%s\n", what);
    std::exit(1);
}

double overlap(const QRectF &first, const QRectF &second) {
    const QRectF common = first & second;
    const double shared = common.width() * common.height();
    return shared / (first.width() * first.height() + second.width() * second.height() - shared);
}

// The share of the drawn words that a box was found for, in hundredths.
double foundShare(const WordPicture &picture, const std::vector<QRectF> &boxes) {
    const auto isFound = [&](const WordPicture::Word &word) {
        return std::ranges::any_of(boxes, [&](const QRectF &box) { return overlap(box, word.box) > 0.5; });
    };
    return 100.0 * static_cast<double>(std::ranges::count_if(picture.words, isFound)) /
           static_cast<double>(picture.words.size());
}

std::vector<QRectF> ours(const TextRecognizer &recognizer, const WordPicture &picture) {
    const auto lines = recognizer.recognize(picture.image, {});
    require(lines.has_value(), "not recognised");
    std::vector<QRectF> boxes;
    for (const TextRecognizer::Line &line : *lines) {
        for (const TextRecognizer::Word &word : line.words)
            boxes.push_back(word.box);
    }
    return boxes;
}

QByteArray runProgram(const QString &file) {
    QProcess program;
    program.setStandardErrorFile(QProcess::nullDevice());
    program.start(QStringLiteral("tesseract"), {file, QStringLiteral("-"), QStringLiteral("tsv")});
    require(program.waitForFinished(-1) && program.exitCode() == 0, "the tesseract program did not work");
    return program.readAllStandardOutput();
}

// Of the program's table: the rows of words.
std::vector<QRectF> boxesOf(const QByteArray &table) {
    std::vector<QRectF> boxes;
    for (const QByteArray &row : table.split('\n')) {
        const QList<QByteArray> fields = row.split('\t');
        if (fields.size() == 12 && fields[0] == "5" && !fields[11].trimmed().isEmpty())
            boxes.emplace_back(fields[6].toDouble(), fields[7].toDouble(), fields[8].toDouble(),
                               fields[9].toDouble());
    }
    return boxes;
}

} // namespace

int main(int argc, char **argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("OMP_THREAD_LIMIT", "1");
    const QGuiApplication application(argc, argv);
    const QTemporaryDir scratch(scratchTemplate("recognition-bench"));
    const TesseractRecognizer recognizer(
        {.file = QStringLiteral(TEMBRA_RECOGNITION_WORKER), .languages = {QStringLiteral("eng")}});
    std::vector<double> times;
    std::vector<double> programTimes;
    std::vector<double> shares;
    std::vector<double> programShares;
    for (int round = 0; round < rounds; ++round) {
        const WordPicture picture = wordPicture(QSize(1920, 1080), round);
        const QString file = scratch.filePath(QStringLiteral("screen.png"));
        require(picture.image.save(file), "cannot write");
        std::vector<QRectF> boxes;
        times.push_back(milliseconds([&] { boxes = ours(recognizer, picture); }));
        shares.push_back(foundShare(picture, boxes));
        QByteArray table;
        programTimes.push_back(milliseconds([&] { table = runProgram(file); }));
        programShares.push_back(foundShare(picture, boxesOf(table)));
    }
    printRow("the words of a screen / tesseract program", median(times), median(programTimes), "ms", 1.25);
    std::printf("words found: %.1f %%, by the program %.1f %%\n", median(shares), median(programShares));
    return 0;
}

#include "platform/linux/recognition/TesseractOCRRecognizer.h"
#include "support/ChildProgram.h"
#include "support/EventLoop.h"

#include <QFile>
#include <QPainter>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <csignal>
#include <future>

using namespace tembra;
using namespace std::chrono_literals;

namespace {

using Lines = Result<std::vector<TextRecognizer::Line>>;

QImage pictureOf(const QString &text, QSize size = QSize(220, 60)) {
    QImage image(size, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    QFont font(QStringLiteral("DejaVu Sans"));
    font.setPixelSize(16);
    painter.setFont(font);
    painter.drawText(image.rect().adjusted(20, 20, 0, 0), Qt::TextWordWrap, text);
    return image;
}

// Keeps a worker busy for seconds.
QImage longPage() {
    return pictureOf(QStringLiteral("All these words are read one after the other. ").repeated(900),
                     QSize(2560, 1440));
}

QString textOf(const Lines &lines) {
    QStringList words;
    for (const TextRecognizer::Line &line : lines.value_or(std::vector<TextRecognizer::Line>())) {
        for (const TextRecognizer::Word &word : line.words)
            words += word.text;
    }
    return words.join(u' ');
}

int errorOf(const Lines &lines) {
    return lines || lines.error().message.isEmpty() ? 0 : lines.error().code;
}

bool isOver(pid_t id) {
    return ::kill(id, 0) != 0;
}

// The fields of its state: proc(5).
QByteArrayList stateOf(pid_t id) {
    QFile file(QStringLiteral("/proc/%1/stat").arg(id));
    (void)file.open(QIODevice::ReadOnly);
    const QByteArray state = file.readAll();
    return state.sliced(state.lastIndexOf(')') + 1).trimmed().split(' ');
}

// Its languages are loaded in less.
bool isAtWork(pid_t id) {
    constexpr qsizetype userTime = 11;
    constexpr int ticks = 30;
    return stateOf(id).value(userTime).toInt() > ticks;
}

// Programs in the worker's place.
class RecognitionWorkers : public testing::Test {
protected:
    [[nodiscard]] QString program(const QByteArray &script) const {
        QFile file(folder.filePath(QStringLiteral("worker")));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write("#!/bin/sh\n" + script + "\n");
        file.setPermissions(QFile::ReadOwner | QFile::ExeOwner);
        return file.fileName();
    }
    // The real one, which leaves its number.
    [[nodiscard]] QString realWorker() const {
        return program("echo $$ >>\"$0.ids\"; exec " TEMBRA_RECOGNITION_WORKER " \"$@\"");
    }
    // Of those that were started.
    [[nodiscard]] std::vector<pid_t> ids() const {
        std::vector<pid_t> result;
        QFile file(folder.filePath(QStringLiteral("worker.ids")));
        if (!file.open(QIODevice::ReadOnly))
            return {0};
        for (const QByteArray &line : file.readAll().trimmed().split('\n'))
            result.push_back(line.toInt());
        return result;
    }
    [[nodiscard]] bool isStarted() const { return ids().back() != 0; }
    [[nodiscard]] RecognitionWorker::Program english(const QString &file) const {
        return {file, {QStringLiteral("eng")}, idleTime};
    }
    [[nodiscard]] int errorWith(const QString &file, std::chrono::milliseconds limit = 1min) const {
        return errorOf(TesseractOCRRecognizer(english(file), limit).recognize(pictureOf({}), {}));
    }

    const QTemporaryDir folder;
    const QImage hello = pictureOf(QStringLiteral("Hello world"));
    const QString helloText = QStringLiteral("Hello world");
    std::chrono::milliseconds idleTime = 1min;
};

} // namespace

TEST_F(RecognitionWorkers, failWithOneErrorWhateverTheFault) {
    EXPECT_EQ(errorWith({}), TextRecognizer::unavailable);
    EXPECT_EQ(errorWith(folder.filePath(QStringLiteral("none"))), TextRecognizer::unavailable);
    for (const char *script : {"kill -9 $$", "echo end >&0", "echo taken >&0; echo 1 2 3 4 half >&0",
                               "echo taken >&0; echo foo >&0; echo end >&0", "exec yes taken >&0"})
        EXPECT_EQ(errorWith(program(script)), TextRecognizer::notRecognized) << script;
    EXPECT_EQ(errorWith(program("exec sleep 100"), 100ms), TextRecognizer::notRecognized);
}

TEST_F(RecognitionWorkers, passOverLanguagesThatAreMissing) {
    const QString worker = QStringLiteral(TEMBRA_RECOGNITION_WORKER);
    const QString none = QStringLiteral("nolanguage");
    EXPECT_EQ(errorOf(TesseractOCRRecognizer({worker, {none}}).recognize(hello, {})),
              TextRecognizer::noLanguage);
    EXPECT_EQ(textOf(TesseractOCRRecognizer({worker, {none, QStringLiteral("eng")}}).recognize(hello, {})),
              helloText);
}

TEST_F(RecognitionWorkers, failAloneWhenTheirDataIsDamaged) {
    for (const QByteArray &data : {QByteArray(), QByteArray("not a language"), QByteArray(100'000, '\x7f')}) {
        QFile file(folder.filePath(QStringLiteral("eng.traineddata")));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(data);
        file.close();
        const QString worker = program("TESSDATA_PREFIX=${0%/*} exec " TEMBRA_RECOGNITION_WORKER " \"$@\"");
        const int error = errorOf(TesseractOCRRecognizer(english(worker)).recognize(hello, {}));
        EXPECT_TRUE(error == TextRecognizer::noLanguage || error == TextRecognizer::notRecognized) << error;
    }
}

TEST_F(RecognitionWorkers, stayForTheNextPicture) {
    const TesseractOCRRecognizer recognizer(english(realWorker()));
    EXPECT_EQ(textOf(recognizer.recognize(hello, {})), helloText);
    EXPECT_EQ(textOf(recognizer.recognize(pictureOf(QStringLiteral("Good morning")), {})),
              QStringLiteral("Good morning"));
    EXPECT_EQ(ids().size(), 1u);
    EXPECT_FALSE(isOver(ids().front()));
}

TEST_F(RecognitionWorkers, endWhenIdleOrUnneeded) {
    idleTime = 50ms;
    {
        const TesseractOCRRecognizer recognizer(english(realWorker()));
        EXPECT_EQ(textOf(recognizer.recognize(hello, {})), helloText);
        EXPECT_TRUE(eventually([&] { return isOver(ids().front()); }));
        EXPECT_EQ(textOf(recognizer.recognize(hello, {})), helloText);
    }
    EXPECT_TRUE(isOver(ids().back()));
}

TEST_F(RecognitionWorkers, areReplacedWhenTheyWereKilled) {
    const TesseractOCRRecognizer recognizer(english(realWorker()));
    auto lines = std::async([&] { return recognizer.recognize(longPage(), {}); });
    EXPECT_TRUE(eventually([&] { return isStarted() && isAtWork(ids().back()); }));
    ::kill(ids().back(), SIGKILL);
    EXPECT_EQ(errorOf(lines.get()), TextRecognizer::notRecognized);
    EXPECT_EQ(textOf(recognizer.recognize(hello, {})), helloText);
    ::kill(ids().back(), SIGKILL);
    EXPECT_TRUE(eventually([&] { return isOver(ids().back()); }));
    EXPECT_EQ(textOf(recognizer.recognize(hello, {})), helloText);
    EXPECT_EQ(ids().size(), 3u);
}

TEST_F(RecognitionWorkers, areEndedWhenCancelled) {
    const TesseractOCRRecognizer recognizer(english(realWorker()));
    const Cancellation cancellation;
    auto lines = std::async([&] { return recognizer.recognize(longPage(), cancellation); });
    EXPECT_TRUE(eventually([&] { return isStarted() && isAtWork(ids().back()); }));
    cancellation.cancel();
    EXPECT_EQ(errorOf(lines.get()), TextRecognizer::cancelled);
    EXPECT_TRUE(isOver(ids().front()));
    EXPECT_EQ(textOf(recognizer.recognize(hello, {})), helloText);
}

TEST_F(RecognitionWorkers, areTwoForTwoPicturesAtATimeAndOneAfterwards) {
    const TesseractOCRRecognizer recognizer(english(realWorker()));
    std::vector<std::future<Lines>> both;
    for (int i = 0; i < 2; ++i)
        both.push_back(std::async(std::launch::async, [&] { return recognizer.recognize(hello, {}); }));
    for (auto &each : both)
        EXPECT_EQ(textOf(each.get()), helloText);
    EXPECT_EQ(std::ranges::count_if(ids(), [](pid_t id) { return !isOver(id); }), 1);
    EXPECT_EQ(textOf(recognizer.recognize(hello, {})), helloText);
}

TEST_F(RecognitionWorkers, dieWithTheProgram) {
    {
        const ChildProgram user{TEMBRA_RECOGNITION_USER, QFile::encodeName(realWorker()).constData()};
        EXPECT_TRUE(eventually([&] { return isStarted(); }));
    }
    // Who has adopted it may never ask for its end.
    EXPECT_TRUE(eventually([&] { return isOver(ids().front()) || stateOf(ids().front()).front() == "Z"; }));
}

#include "recognition/model/OCRRecognizer.h"

#include "platform/PictureDecoder.h"
#include "recognition/model/OCRPicture.h"
#include "support/FakeTextRecognizer.h"
#include "support/Files.h"
#include "support/ManualQueue.h"
#include "support/Pictures.h"

#include <QDir>
#include <QMimeData>
#include <QTemporaryDir>
#include <QUrl>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace tembra;
using namespace Qt::StringLiterals;
using testing::ElementsAre;

namespace {

// Knows one kind of file that nobody else knows.
class OneKindOfPicture final : public PictureDecoder {
public:
    [[nodiscard]] Result<QImage> decode(const QString &path) const override {
        QImage picture(70, 50, QImage::Format_RGB32);
        picture.fill(Qt::white);
        // As lax as others are: half a picture is one.
        if (path.endsWith(u".heic") || path.contains(u"cut."))
            return picture;
        return failure({.code = 1});
    }
};

QByteArray gif(int frames) {
    QByteArray bytes = QByteArray::fromHex("4749463839610100010080000000 0000ffffff");
    for (int i = 0; i < frames; ++i)
        bytes += QByteArray::fromHex("21f904000a000000 2c000000000100010000 0202440100");
    return bytes + ';';
}

class OCRRecognizerTest : public testing::Test {
protected:
    std::shared_ptr<OCRRecognitionTask> start(const OCRInput &input) {
        return ocr.recognize(input,
                             [this](Result<OCRRecognition> result) { results.push_back(std::move(result)); });
    }
    [[nodiscard]] static OCRInput picture(const QSize &size = {64, 48}) {
        return {OCRInput::Data{pictureBytes("png", size)}};
    }
    [[nodiscard]] static TextRecognizer::Line line(const QString &text) {
        return {{{text, QRectF(0, 0, 30, 10)}}};
    }

    FakeTextRecognizer recognizer;
    OneKindOfPicture decoder;
    ManualQueue queue;
    OCRRecognizer ocr{recognizer, decoder, queue};
    std::vector<Result<OCRRecognition>> results;
};

} // namespace

TEST_F(OCRRecognizerTest, givesTheLinesOfTheImageAndTheImageSmall) {
    recognizer.answer = {{line(u"Hello"_s), line(u"world"_s)}};
    start(picture({960, 320}));
    EXPECT_TRUE(results.empty());
    queue.runAll();
    ASSERT_EQ(results.size(), 1U);
    EXPECT_EQ(results[0]->text.string(), u"Hello\nworld"_s);
    EXPECT_EQ(results[0]->size, QSize(960, 320));
    EXPECT_EQ(results[0]->picture.size(), QSize(480, 160));
    EXPECT_THAT(recognizer.sizes, ElementsAre(QSize(960, 320)));
}

TEST_F(OCRRecognizerTest, succeedsWithoutTextAndPassesFailuresOn) {
    start(picture());
    queue.runAll();
    recognizer.answer = failure({TextRecognizer::errorDomain, TextRecognizer::noLanguage, u"why"_s, {}});
    start(picture());
    queue.runAll();
    ASSERT_EQ(results.size(), 2U);
    EXPECT_EQ(results[0]->text.string(), QString());
    EXPECT_EQ(results[1].error().message, u"why"_s);
}

TEST_F(OCRRecognizerTest, neverTellsOfWorkCancelledBeforeItBegan) {
    const auto first = start(picture({10, 10}));
    start(picture({20, 20}));
    first->cancel();
    queue.runAll();
    EXPECT_EQ(results.size(), 1U);
    EXPECT_THAT(recognizer.sizes, ElementsAre(QSize(20, 20)));
}

TEST_F(OCRRecognizerTest, endsWorkThatIsCancelledInTheMiddleWithAnError) {
    const auto task = start(picture());
    recognizer.onRecognize = [&] { task->cancel(); };
    queue.runAll();
    ASSERT_EQ(results.size(), 1U);
    EXPECT_EQ(results[0].error().code, TextRecognizer::cancelled);
}

TEST_F(OCRRecognizerTest, opensImagesOfManyKindsAndRefusesTheRest) {
    const QTemporaryDir folder;
    const QString fifo = folder.filePath(u"pipe.png"_s);
    ASSERT_EQ(::mkfifo(qPrintable(fifo), 0600), 0);
    struct Row {
        QString name;
        QByteArray content;
        // 0 where it is read.
        int error = 0;
    };
    const std::vector<Row> table{
        {u"a.png"_s, pictureBytes("png")},
        {u"a.jpg"_s, pictureBytes("jpg")},
        {u"a.webp"_s, pictureBytes("webp")},
        {u"a.tiff"_s, pictureBytes("tiff")},
        {u"a.bmp"_s, pictureBytes("bmp")},
        {u"misnamed.jpg"_s, pictureBytes("png")},
        {u"still.gif"_s, gif(1)},
        {u"a.heic"_s, "only the platform knows"},
        {u"moving.gif"_s, gif(3), OCRPicture::animation},
        {u"a.pdf"_s, "%PDF-1.4\n%%EOF\n", OCRPicture::unreadable},
        {u"cut.png"_s, pictureBytes("png").chopped(40), OCRPicture::unreadable},
        {u"huge.ppm"_s, "P6 40000 40000 255\n", OCRPicture::unreadable},
        {u"cut.jpg"_s, pictureBytes("jpg", {400, 300}).chopped(2000), OCRPicture::unreadable},
        {u"empty.png"_s, {}, OCRPicture::unreadable},
        {u"text.txt"_s, "text", OCRPicture::unreadable},
    };
    for (const Row &row : table) {
        const auto opened =
            OCRPicture::open({OCRInput::File{writeFile(folder.filePath(row.name), row.content)}}, decoder);
        EXPECT_EQ(opened ? 0 : opened.error().code, row.error) << row.name.toStdString();
    }
    for (const QString &path : {fifo, folder.path(), folder.filePath(u"absent.png"_s)})
        EXPECT_EQ(OCRPicture::open({OCRInput::File{path}}, decoder).error().code, OCRPicture::missing);
}

TEST(OCRInput, isTheFirstFileElseTheImage) {
    const auto data = [](const char *format) { return OCRInput{OCRInput::Data{pictureBytes(format)}}; };
    const auto offering = [](QMimeData &pasteboard, const char *type, const char *format) -> QMimeData & {
        pasteboard.setData(QString::fromLatin1(type), pictureBytes(format));
        return pasteboard;
    };
    QMimeData nothing;
    nothing.setText(u"no path"_s);
    EXPECT_EQ(OCRInput::read(nothing), std::nullopt);
    EXPECT_FALSE(OCRInput::canRead(nothing));
    QMimeData files;
    files.setUrls({QUrl(u"https://example.org/a.png"_s), QUrl::fromLocalFile(u"/b.png"_s),
                   QUrl::fromLocalFile(u"/c.png"_s)});
    EXPECT_EQ(OCRInput::read(offering(files, "image/png", "png")), (OCRInput{OCRInput::File{u"/b.png"_s}}));
    QMimeData pathByChance;
    pathByChance.setText(u"/"_s);
    EXPECT_EQ(OCRInput::read(pathByChance), (OCRInput{OCRInput::File{u"/"_s}}));
    EXPECT_EQ(OCRInput::read(offering(pathByChance, "image/png", "png")), data("png"));
    QMimeData tiff;
    EXPECT_EQ(OCRInput::read(offering(tiff, "image/tiff", "tiff")), data("tiff"));
    EXPECT_EQ(OCRInput::read(offering(tiff, "image/png", "png")), data("png"));
    QMimeData other;
    EXPECT_EQ(OCRInput::read(offering(other, "image/jpeg", "jpg")), data("jpg"));
    QMimeData pixels;
    pixels.setImageData(QImage::fromData(pictureBytes("png")));
    ASSERT_TRUE(OCRInput::canRead(pixels));
    EXPECT_EQ(pixelsOf(std::get<OCRInput::Data>(OCRInput::read(pixels)->source).bytes),
              pixelsOf(pictureBytes("png")));
}

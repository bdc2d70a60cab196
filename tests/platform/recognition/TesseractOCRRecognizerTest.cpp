#include "platform/linux/recognition/TesseractOCRRecognizer.h"

#include "platform/linux/recognition/EngineLanguages.h"
#include "platform/linux/recognition/RecognizedText.h"

#include <QFontMetricsF>
#include <QPainter>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace tembra;
using Word = TextRecognizer::Word;

namespace {

// One for all, as in the program.
const TesseractOCRRecognizer &recognizer() {
    static const TesseractOCRRecognizer shared(
        {.file = QStringLiteral(TEMBRA_RECOGNITION_WORKER), .languages = {QStringLiteral("eng")}});
    return shared;
}

struct Look {
    int pixelSize = 13;
    QColor ink = Qt::black;
    QColor paper = Qt::white;
    double scale = 1;
};

void PrintTo(const Look &look, std::ostream *out) {
    *out << look.pixelSize << " px, " << look.ink.name().toStdString() << " on "
         << look.paper.name().toStdString() << ", scale " << look.scale;
}

// Words as they were drawn, each box around the ink.
struct Page {
    QImage image;
    std::vector<Word> words;
};

Page page(const Look &look, const QStringList &lines, QSize size = QSize(360, 130)) {
    Page result{QImage(size * look.scale, QImage::Format_RGB32), {}};
    result.image.fill(look.paper);
    QPainter painter(&result.image);
    QFont font(QStringLiteral("DejaVu Sans"));
    font.setPixelSize(qRound(look.pixelSize * look.scale));
    painter.setFont(font);
    painter.setPen(look.ink);
    const QFontMetricsF metrics(font, &result.image);
    QPointF baseline(20 * look.scale, 40 * look.scale);
    for (const QString &line : lines) {
        for (const QString &text : line.split(u' ')) {
            painter.drawText(baseline, text);
            result.words.push_back({text, metrics.tightBoundingRect(text).translated(baseline)});
            baseline.rx() += metrics.horizontalAdvance(text + u' ');
        }
        baseline = {20 * look.scale, baseline.y() + 2 * look.pixelSize * look.scale};
    }
    return result;
}

double intersectionOverUnion(const QRectF &first, const QRectF &second) {
    const QRectF common = first & second;
    const double shared = common.width() * common.height();
    return shared / (first.width() * first.height() + second.width() * second.height() - shared);
}

void expectFound(const Page &drawn, const std::vector<TextRecognizer::Line> &lines) {
    std::vector<Word> words;
    for (const TextRecognizer::Line &line : lines)
        words.insert(words.end(), line.words.begin(), line.words.end());
    ASSERT_EQ(words.size(), drawn.words.size());
    for (size_t i = 0; i < words.size(); ++i) {
        EXPECT_EQ(words[i].text, drawn.words[i].text);
        EXPECT_GE(intersectionOverUnion(words[i].box, drawn.words[i].box), 0.6)
            << words[i].text.toStdString();
    }
}

std::vector<Look> interfaceLooks() {
    std::vector<Look> looks{Look{13, QColor(150, 150, 150), Qt::white},
                            Look{13, Qt::white, QColor(30, 110, 235)}};
    for (const int pixelSize : {11, 13, 16, 20, 24}) {
        for (const double scale : {1.0, 2.0}) {
            looks.push_back({pixelSize, Qt::black, Qt::white, scale});
            looks.push_back({pixelSize, QColor(225, 225, 228), QColor(32, 33, 37), scale});
        }
    }
    return looks;
}

class ReadsText : public testing::TestWithParam<Look> {};

} // namespace

INSTANTIATE_TEST_SUITE_P(Looks, ReadsText, testing::ValuesIn(interfaceLooks()));

TEST_P(ReadsText, inTheSizesAndColoursOfInterfaces) {
    const Page drawn =
        page(GetParam(), {QStringLiteral("Move old screenshots"), QStringLiteral("to Trash after 30 days.")});
    const auto lines = recognizer().recognize(drawn.image, {});
    ASSERT_TRUE(lines) << lines.error().message.toStdString();
    EXPECT_EQ(lines->size(), 2u);
    expectFound(drawn, *lines);
}

TEST(TesseractOCRRecognizer, readsEveryLineOfATallPageOnce) {
    QStringList text;
    for (int i = 0; i < 30; ++i)
        text += QStringLiteral("Line number %1 of the list").arg(100 + i);
    const Page drawn = page({}, text, QSize(300, 840));
    const auto lines = recognizer().recognize(drawn.image, {});
    ASSERT_TRUE(lines);
    EXPECT_EQ(lines->size(), 30u);
    expectFound(drawn, *lines);
}

TEST(TesseractOCRRecognizer, findsNothingWhereNothingIsWritten) {
    QImage transparent(300, 200, QImage::Format_ARGB32_Premultiplied);
    transparent.fill(Qt::transparent);
    const auto lines = recognizer().recognize(transparent, {});
    ASSERT_TRUE(lines);
    EXPECT_TRUE(lines->empty());
    EXPECT_TRUE(recognizer().recognize(transparent.copy(0, 0, 1, 1), {}));
}

TEST(RecognizedText, takesOnlyWhatIsWhole) {
    const auto lines = recognizedText("1.0 2.0 11.5 9.0 caf\xc3\xa9\n12 2 20 9 a b\n\nend\n");
    ASSERT_TRUE(lines);
    EXPECT_EQ(*lines, (std::vector<TextRecognizer::Line>{{{{QStringLiteral("café"), QRectF(1, 2, 10.5, 7)},
                                                           {QStringLiteral("a b"), QRectF(12, 2, 8, 7)}}}}));
    EXPECT_TRUE(recognizedText("end\n"));
    for (const char *output : {"", "end", "1 2 3 4 word\nend\n", "1 2 3 4 word\n\n", "\nend\n", "end\nend\n",
                               "1 2 3 word\n\nend\n", "1 2 3 4 \n\nend\n", "1 2 3 nan word\n\nend\n",
                               "9 2 3 4 word\n\nend\n", "1 2 3 1e300 word\n\nend\n"})
        EXPECT_FALSE(recognizedText(output)) << output;
}

TEST(EngineLanguages, areTheUsersAndEnglish) {
    const auto languages = [](const char *locales) {
        return engineLanguages(QString::fromLatin1(locales).split(u' ')).join(u' ');
    };
    EXPECT_EQ(languages("de-AT de en-US"), QStringLiteral("deu eng"));
    EXPECT_EQ(languages("zh-Hant-TW nb"), QStringLiteral("nor eng chi_tra"));
    EXPECT_EQ(languages("ru"), QStringLiteral("eng rus"));
    EXPECT_EQ(languages("C"), QStringLiteral("eng"));
}

TEST(EngineLanguages, thatAreChosenAreReadInTheOrderThatConfusesLeast) {
    EXPECT_EQ(inReadingOrder({QStringLiteral("rus"), QStringLiteral("deu"), QStringLiteral("eng")}),
              (QStringList{QStringLiteral("deu"), QStringLiteral("eng"), QStringLiteral("rus")}));
    EXPECT_EQ(languageName(QStringLiteral("deu")), QStringLiteral("Deutsch"));
    EXPECT_EQ(languageName(QStringLiteral("frk")), QStringLiteral("frk"));
}

TEST(TesseractOCRRecognizer, readsTheLanguagesThatAreChosen) {
    TesseractOCRRecognizer reader(
        {.file = QStringLiteral(TEMBRA_RECOGNITION_WORKER), .languages = {QStringLiteral("eng")}});
    const auto installed = reader.installedLanguages();
    const auto isEnglish = [](const TextRecognizer::Language &language) {
        return language == TextRecognizer::Language{QStringLiteral("eng"), QStringLiteral("English")};
    };
    ASSERT_TRUE(installed);
    EXPECT_TRUE(std::any_of(installed->begin(), installed->end(), isEnglish));
    const QImage picture = page({}, {QStringLiteral("some words")}).image;
    ASSERT_TRUE(reader.recognize(picture, {}));
    reader.setLanguages({QStringLiteral("xxx")});
    const auto refused = reader.recognize(picture, {});
    ASSERT_FALSE(refused);
    EXPECT_EQ(refused.error().code, TextRecognizer::noLanguage);
    reader.setLanguages({});
    EXPECT_TRUE(reader.recognize(picture, {}));
}

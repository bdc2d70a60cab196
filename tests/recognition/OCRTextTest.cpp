#include "recognition/model/OCRText.h"

#include <QFontMetrics>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace tembra;
using namespace Qt::StringLiterals;
using enum OCRLineStart;

namespace {

// A line as it stands in an image: letters are half as wide as the line is high.
struct Row {
    QString text;
    double x = 0;
    double y = 0;
    double height = 14;
};

OCRText textOf(const std::vector<Row> &rows) {
    OCRText text;
    for (const Row &row : rows) {
        const double letter = row.height / 2;
        double x = row.x;
        text.lines.emplace_back();
        for (const QString &word : row.text.split(u' ')) {
            const double width = letter * static_cast<double>(word.size());
            text.lines.back().words.push_back({word, QRectF(x, row.y, width, row.height)});
            x += width + letter;
        }
    }
    return text;
}

struct Case {
    const char *name;
    std::vector<Row> rows;
    std::vector<OCRLineStart> starts;
    QString paragraphs;
    QString oneLine;
};

void PrintTo(const Case &row, std::ostream *out) {
    *out << row.name;
}

class OCRTextLayouts : public testing::TestWithParam<Case> {};

} // namespace

TEST_P(OCRTextLayouts, followFromWhereTheLinesStand) {
    const OCRText text = textOf(GetParam().rows);
    EXPECT_EQ(text.lineStarts(), GetParam().starts);
    EXPECT_EQ(text.string(OCRTextLayout::paragraphs), GetParam().paragraphs);
    EXPECT_EQ(text.string(OCRTextLayout::oneLine), GetParam().oneLine);
    QStringList lines;
    for (const Row &row : GetParam().rows)
        lines += row.text;
    EXPECT_EQ(text.string(), lines.join(u'\n'));
}

INSTANTIATE_TEST_SUITE_P(
    Images, OCRTextLayouts,
    testing::Values(
        Case{"nothing", {}, {}, {}, {}},
        Case{"a sentence that is broken at the edge",
             {{u"The quick brown fox jumps"_s, 10, 10}, {u"over the lazy dog."_s, 10, 30}},
             {section, continuation},
             u"The quick brown fox jumps over the lazy dog."_s,
             u"The quick brown fox jumps over the lazy dog."_s},
        Case{"lines that end on purpose",
             {{u"Dear Anna,"_s, 10, 10},
              {u"thank you very much for your letter."_s, 10, 30},
              {u"Yours"_s, 10, 50}},
             {section, paragraph, continuation},
             u"Dear Anna,\nthank you very much for your letter. Yours"_s,
             u"Dear Anna, thank you very much for your letter. Yours"_s},
        Case{"a gap",
             {{u"Quarterly report and"_s, 10, 10}, {u"its next steps"_s, 10, 50}},
             {section, section},
             u"Quarterly report and\n\nits next steps"_s,
             u"Quarterly report and its next steps"_s},
        Case{"entries far apart",
             {{u"General"_s, 10, 10}, {u"Editor"_s, 10, 45}, {u"About"_s, 10, 80}, {u"Quit"_s, 10, 150}},
             {section, paragraph, paragraph, section},
             u"General\nEditor\nAbout\n\nQuit"_s,
             u"General Editor About Quit"_s},
        Case{
            "a list",
            {{u"1. Confirm the budget with them"_s, 10, 10},
             {u"2. Publish the schedule Monday"_s, 10, 30},
             {u"• Book the room for the review"_s, 10, 50}},
            {section, paragraph, paragraph},
            u"1. Confirm the budget with them\n2. Publish the schedule Monday\n• Book the room for the review"_s,
            u"1. Confirm the budget with them 2. Publish the schedule Monday • Book the room for the review"_s},
        Case{"a title above a text",
             {{u"The title of it"_s, 10, 10, 28}, {u"begins a text that is long enough"_s, 10, 44}},
             {section, paragraph},
             u"The title of it\nbegins a text that is long enough"_s,
             u"The title of it begins a text that is long enough"_s},
        Case{"another column",
             {{u"left column text"_s, 10, 200}, {u"right column text"_s, 400, 10}},
             {section, section},
             u"left column text\n\nright column text"_s,
             u"left column text right column text"_s},
        Case{"a word that is cut",
             {{u"the text recog-"_s, 10, 10}, {u"nition works"_s, 10, 30}},
             {section, continuation},
             u"the text recog-nition works"_s,
             u"the text recog-nition works"_s},
        Case{"words without spaces between them",
             {{u"文字識別"_s, 10, 10}, {u"です。"_s, 10, 30}, {u"サーバー"_s, 10, 50}, {u"名"_s, 10, 70}},
             {section, continuation, continuation, continuation},
             u"文字識別です。サーバー名"_s,
             u"文字識別です。サーバー名"_s}));

TEST(OCRText, joinsTheWordsOfALineWithSpacesWhereTheScriptHasThem) {
    const OCRText text{{{{{u"画像"_s, QRectF(0, 0, 20, 10)},
                          {u"文字"_s, QRectF(22, 0, 20, 10)},
                          {u"OCR"_s, QRectF(44, 0, 20, 10)}}}}};
    EXPECT_EQ(text.string(), u"画像文字 OCR"_s);
    EXPECT_EQ(text.wordCount(), 3);
}

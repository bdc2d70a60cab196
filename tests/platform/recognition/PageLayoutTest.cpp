#include "platform/linux/recognition/worker/Doubt.h"
#include "platform/linux/recognition/worker/InkPicture.h"
#include "platform/linux/recognition/worker/ReadingOrder.h"
#include "platform/linux/recognition/worker/TextSegments.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace tembra::recognition;
using testing::ElementsAre;

namespace {

ReadLine line(const char *text, double left, double top, double width = 100, double height = 12) {
    return {{text, {left, top, left + width, top + height}}};
}

std::vector<std::string> texts(const std::vector<ReadLine> &lines) {
    std::vector<std::string> result;
    for (const ReadLine &each : lines)
        result.push_back(each.front().text);
    return result;
}

void draw(GreyPicture &ink, int left, int top, int width, int height) {
    for (int y = top; y < top + height; ++y)
        std::fill(ink.row(y) + left, ink.row(y) + left + width, std::uint8_t{200});
}

} // namespace

TEST(ReadingOrder, goesDownEachColumnBeneathWhatSpansThem) {
    const double prose = 260;
    const auto ordered = inReadingOrder({line("right 2", 300, 70, prose), line("left 1", 10, 50, prose),
                                         line("foot", 20, 140), line("right 1", 300, 52, prose),
                                         line("head", 10, 0, 550), line("left 2", 10, 68, prose)});
    EXPECT_THAT(texts(ordered), ElementsAre("head", "left 1", "left 2", "right 1", "right 2", "foot"));
}

TEST(ReadingOrder, readsRowsOfCellsAcross) {
    const auto ordered = inReadingOrder({line("Ctrl+O", 300, 20), line("New", 10, 0), line("Open", 10, 20),
                                         line("Ctrl+N", 300, 1), line("Quit", 10, 40)});
    ASSERT_EQ(ordered.size(), 3u);
    EXPECT_EQ(ordered[0][0].text + ordered[0][1].text, "NewCtrl+N");
    EXPECT_EQ(ordered[1][0].text + ordered[1][1].text, "OpenCtrl+O");
    EXPECT_TRUE(inReadingOrder({}).empty());
}

TEST(ReadingOrder, goesDownThroughAConversation) {
    const auto ordered =
        inReadingOrder({line("answer", 400, 30), line("question", 0, 0), line("thanks", 0, 60)});
    EXPECT_THAT(texts(ordered), ElementsAre("question", "answer", "thanks"));
}

TEST(Doubt, leavesOutUnsureSignsAtTheEndsOnly) {
    ReadLine read{{"|", {}, 50},  {"©", {}, 60}, {"a", {}, 90}, {"=", {}, 30},
                  {"42", {}, 20}, {"}", {}, 95}, {"l", {}, 10}};
    leaveOutDoubtful(read);
    std::string text;
    for (const ReadWord &word : read)
        text += word.text;
    EXPECT_EQ(text, "a=42}");
}

TEST(InkPicture, holdsEverythingAgainstThePaperAroundIt) {
    // Light on a dark badge on light paper, and a dark stroke beside it.
    GreyPicture grey(200, 60, 250);
    const auto fill = [&](int left, int top, int right, int bottom, std::uint8_t level) {
        for (int y = top; y < bottom; ++y)
            std::fill(grey.row(y) + left, grey.row(y) + right, level);
    };
    fill(20, 20, 80, 40, 40);
    fill(40, 25, 42, 35, 240);
    fill(120, 25, 122, 35, 10);
    const GreyPicture ink = inkPicture(grey);
    EXPECT_EQ(ink.row(30)[41], 200);
    EXPECT_EQ(ink.row(30)[121], 240);
    EXPECT_EQ(ink.row(30)[60], 0);
    EXPECT_EQ(ink.row(5)[5], 0);
}

TEST(TextSegments, takeDotsAlongAndKeepCellsApart) {
    GreyPicture ink(300, 60);
    for (const int left : {20, 28, 36, 120, 128, 136})
        draw(ink, left, 20, 6, 10);
    draw(ink, 22, 16, 2, 2);
    draw(ink, 44, 28, 2, 2);
    const auto segments = textSegments(ink);
    ASSERT_EQ(segments.size(), 2u);
    EXPECT_EQ(segments[0].box, (PixelBox{20, 16, 46, 30}));
    EXPECT_EQ(segments[1].box, (PixelBox{120, 20, 142, 30}));
}

TEST(TextSegments, keepBracketsDotsAndAccentsOfLargeLetters) {
    GreyPicture ink(300, 80);
    for (const int left : {20, 38, 56})
        draw(ink, left, 30, 14, 17);
    // What stands over a letter, a bracket, a colon, an exclamation mark.
    draw(ink, 38, 22, 12, 5);
    draw(ink, 74, 26, 5, 26);
    for (const int top : {32, 42})
        draw(ink, 84, top, 5, 5);
    draw(ink, 106, 26, 3, 14);
    draw(ink, 106, 43, 3, 3);
    const auto segments = textSegments(ink);
    ASSERT_EQ(segments.size(), 1u);
    EXPECT_EQ(segments[0].box, (PixelBox{20, 22, 109, 52}));
}

TEST(TextSegments, leaveOutTheSideOfAButton) {
    GreyPicture ink(200, 80);
    draw(ink, 20, 18, 7, 40);
    for (const int left : {60, 78, 96})
        draw(ink, left, 30, 14, 17);
    const auto segments = textSegments(ink);
    ASSERT_EQ(segments.size(), 1u);
    EXPECT_EQ(segments[0].box, (PixelBox{60, 30, 110, 47}));
}

#include "platform/linux/recognition/worker/ReadingOrder.h"

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

} // namespace

TEST(ReadingOrder, goesDownEachColumnBeneathWhatSpansThem) {
    const auto ordered =
        inReadingOrder({line("right 2", 300, 70), line("left 1", 10, 50), line("foot", 20, 140),
                        line("right 1", 300, 52), line("head", 10, 0, 390), line("left 2", 10, 68)});
    EXPECT_THAT(texts(ordered), ElementsAre("head", "left 1", "left 2", "right 1", "right 2", "foot"));
}

TEST(ReadingOrder, readsAcrossWhatStandsCloseTogether) {
    const auto ordered = inReadingOrder(
        {line("d", 120, 60), line("b", 115, 0), line("c", 0, 60), line("a", 0, 0), line("over a", 5, 2)});
    EXPECT_THAT(texts(ordered), ElementsAre("a", "over a", "b", "c", "d"));
    EXPECT_TRUE(inReadingOrder({}).empty());
}

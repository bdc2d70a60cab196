#include "platform/linux/recognition/worker/ReadingOrder.h"
#include "platform/linux/recognition/worker/Stripes.h"

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

TEST(Stripes, areCutWhereThereIsTheLeastInk) {
    std::vector<int> rows(1'000, 9);
    rows[530] = 2;
    EXPECT_THAT(stripes(rows, 2, 48), ElementsAre(Stripe{0, 578, 0, 530}, Stripe{482, 1'000, 530, 1'000}));
    rows[470] = 0;
    EXPECT_THAT(stripes(rows, 2, 48), ElementsAre(Stripe{0, 518, 0, 470}, Stripe{422, 1'000, 470, 1'000}));
    EXPECT_THAT(stripes(rows, 1, 48), ElementsAre(Stripe{0, 1'000, 0, 1'000}));
    for (const Stripe &stripe : stripes(std::vector<int>(7), 4, 48))
        EXPECT_TRUE(stripe.top >= 0 && stripe.top <= stripe.bottom && stripe.bottom <= 7);
}

TEST(Stripes, giveEachLineOnce) {
    const std::vector<Stripe> parts{{0, 148, 0, 100}, {52, 200, 100, 200}};
    const auto lines =
        joined(parts, {{line("above", 0, 60), line("middle", 0, 94), line("cut", 0, 142, 100, 6)},
                       {line("half", 0, 60, 100, 12), line("middle, too", 0, 94.5), line("below", 0, 130)}});
    EXPECT_THAT(texts(lines), ElementsAre("above", "middle", "below"));
}

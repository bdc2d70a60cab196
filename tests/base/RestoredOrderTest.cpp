#include "base/RestoredOrder.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>

using namespace tembra;

TEST(RestoredOrder, putsBackBeforeWhatFollowedAndLeavesTheRestInPlace) {
    const struct {
        const char *what;
        std::string present;
        std::string restored;
        std::string order;
        std::string result;
    } cases[]{
        {"all", "", "cab", "abc", "abc"},
        {"the first, one between and the last", "bd", "eca", "abcde", "abcde"},
        {"beside what came since", "xbyd", "ac", "abcd", "xabycd"},
        {"when what followed is gone too", "a", "c", "abcd", "ac"},
        {"when what is there was put in another order", "ca", "b", "abc", "bca"},
        {"what the order does not know", "a", "zb", "ab", "abz"},
        {"nothing", "ba", "", "abc", "ba"},
    };
    const auto items = [](const std::string &text) { return std::vector<char>(text.begin(), text.end()); };
    for (const auto &c : cases)
        EXPECT_EQ(inRestoredOrder(items(c.present), items(c.restored), items(c.order), std::identity()),
                  items(c.result))
            << c.what;
}

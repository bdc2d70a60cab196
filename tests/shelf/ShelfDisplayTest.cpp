#include "shelf/ShelfDisplaySelection.h"

#include <gtest/gtest.h>

using namespace tembra;

namespace {

ShelfDisplay display(std::uint32_t identifier, ScreenRect frame, double scale = 1) {
    return ShelfDisplay::of({.identifier = identifier, .frame = frame, .scale = scale});
}

} // namespace

TEST(ShelfDisplay, hangsFromTheCameraHousingOrAVirtualNotch) {
    DisplayFacts facts{.frame = {100, 50, 1000, 800}};
    EXPECT_EQ(ShelfDisplay::of(facts).activationRect(), (ScreenRect{504, 50, 192, 12}));

    facts.safeAreaTop = 32;
    facts.auxiliaryTopLeft = ScreenRect{100, 50, 400, 32};
    facts.auxiliaryTopRight = ScreenRect{700, 50, 400, 32};
    EXPECT_EQ(ShelfDisplay::of(facts).activationRect(), (ScreenRect{500, 50, 200, 32}));
    facts.safeAreaTop = 0;
    EXPECT_FALSE(ShelfDisplay::of(facts).physicalNotch) << "free areas alone are no housing";
}

TEST(ShelfDisplaySelection, opensWhereThePreferenceAndThePointerSay) {
    const std::vector<ShelfDisplay> displays{display(1, {0, 0, 1000, 800}),
                                             display(2, {1000, 100, 2000, 1000}, 2)};
    using enum DisplayPreference;
    struct Case {
        const char *name;
        DisplayPreference preference;
        ScreenPoint pointer;
        std::uint32_t chosen;
    };
    for (const Case &c : {
             Case{"main, pointer at the other's edge", main, {2000, 100}, 1},
             Case{"all, on the second", all, {2500, 900}, 2},
             Case{"all, on the first", all, {10, 10}, 1},
             Case{"all, a device pixel above the second's notch", all, {2000, 99.5}, 2},
             Case{"all, on the edge that both share", all, {1000, 500}, 2},
             Case{"all, nowhere", all, {-500, -500}, 1},
             Case{"all, between the screens' heights", all, {2000, 50}, 1},
         }) {
        const auto chosen = ShelfDisplaySelection::opening(displays, c.preference, c.pointer);
        ASSERT_TRUE(chosen) << c.name;
        EXPECT_EQ(chosen->identifier, c.chosen) << c.name;
    }
    EXPECT_FALSE(ShelfDisplaySelection::opening({}, all, {0, 0}));
    EXPECT_EQ(ShelfDisplaySelection::admitted(displays, main).size(), 1U);
    EXPECT_EQ(ShelfDisplaySelection::admitted(displays, all).size(), 2U);
}

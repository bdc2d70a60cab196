#include "platform/linux/desktop/WindowingChoice.h"

#include "support/WaylandCompositor.h"

#include <gtest/gtest.h>

using namespace tembra;

TEST(WindowingChoice, takesWaylandWhereThePanelCanBePlacedAndSaysWhatIsMissingElsewhere) {
    struct Case {
        const char *name;
        WindowingChoice::Facts facts;
        QByteArray platform;
        const char *noteHas;
    };
    const Case cases[]{
        {"layer shell",
         {.hasXServer = true, .hasCompositor = true, .hasLayerShell = true},
         "wayland;xcb",
         nullptr},
        {"no XWayland", {.hasCompositor = true, .hasLayerShell = true}, "wayland", nullptr},
        {"no layer shell", {.hasXServer = true, .hasCompositor = true}, "xcb", "XWayland"},
        {"neither", {.hasCompositor = true}, "wayland", "tembra toggle"},
        {"X11", {.hasXServer = true}, "xcb", nullptr},
        {"the user's wish",
         {.isChosenByUser = true, .hasXServer = true, .hasCompositor = true, .hasLayerShell = true},
         "",
         nullptr},
        {"a console", {}, "", nullptr}};
    for (const Case &c : cases) {
        const WindowingChoice choice = WindowingChoice::of(c.facts);
        EXPECT_EQ(choice.platform, c.platform) << c.name;
        EXPECT_EQ(choice.placesWindows, c.facts.hasLayerShell) << c.name;
        if (c.noteHas)
            EXPECT_TRUE(choice.note.contains(c.noteHas)) << c.name;
        else
            EXPECT_EQ(choice.note, "") << c.name;
    }
}

TEST(WindowingChoice, seesTheCompositorAndItsEnd) {
    WaylandCompositor compositor;
    if (!compositor.isRunning())
        GTEST_SKIP() << "sway is not installed or does not run here";
    EXPECT_TRUE(WindowingChoice::ofSession().hasLayerShell);
    EXPECT_FALSE(WindowingChoice::ofSession().hasXServer);
    compositor.end();
    EXPECT_FALSE(WindowingChoice::ofSession().hasCompositor);
}

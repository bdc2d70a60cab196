#include "screenshots/ScreenshotDestination.h"

#include "support/FakeScreenCapturePreferences.h"

#include <gtest/gtest.h>

using namespace tembra;

TEST(ScreenshotDestination, isReadFromTheToolsTargetAndLocation) {
    StandardFolders folders;
    folders.home = QStringLiteral("/home/ada");
    folders.desktop = QStringLiteral("/home/ada/Desktop");
    const auto text = [](const char *value) { return std::optional(QString::fromUtf8(value)); };
    struct Case {
        const char *name;
        std::optional<QString> target;
        std::optional<QString> location;
        ScreenshotDestination expected;
    };
    using Destination = ScreenshotDestination;
    const Case cases[]{
        {"nothing set", {}, {}, Destination::toFolder(folders.desktop)},
        {"location alone",
         {},
         text("~/Pictures/Shots/"),
         Destination::toFolder(QStringLiteral("/home/ada/Pictures/Shots"))},
        {"file", text("file"), text("~"), Destination::toFolder(folders.home)},
        {"file in another case", text("FILE"), text("Shots"), Destination::toFolder(folders.desktop)},
        {"clipboard", text("Clipboard"), text("/srv/shots"), Destination::toClipboard()},
        {"a program", text("Mail"), text("/srv/shots"), Destination::toOther(QStringLiteral("mail"))},
        {"capital I", text("IMESSAGE"), {}, Destination::toOther(QStringLiteral("imessage"))},
        {"an empty target", text(""), text("/srv/shots"), Destination::toOther(QString())},
    };
    for (const Case &c : cases) {
        FakeScreenCapturePreferences preferences;
        preferences.tool = {c.location, c.target, {}};
        EXPECT_TRUE(ScreenshotDestination::read(preferences, folders) == c.expected) << c.name;
        EXPECT_EQ(preferences.synchronizations, 1) << c.name;
    }
}

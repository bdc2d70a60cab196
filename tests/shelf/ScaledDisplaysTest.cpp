#include "controls/Palette.h"
#include "platform/linux/desktop/QtDisplays.h"
#include "shelf/ShelfSurfaces.h"
#include "support/FakeDesktop.h"
#include "support/FakeHotKeys.h"
#include "support/FakeInputMonitor.h"
#include "support/FakeOCRRecognizer.h"
#include "support/FakeWorkspace.h"
#include "support/ManualQueue.h"
#include "support/SessionServices.h"

#include <gtest/gtest.h>

using namespace tembra;

namespace {

// The shelf's windows on the displays of scaled-displays.json, side by side and each with a scale of its own.
class ScaledDisplays : public testing::Test {
protected:
    ScaledDisplays() {
        surfaces.onPointerActivity = [] {};
    }

    // The window that shows the open shelf for a pointer at that place, at rest.
    ShelfDisplayWindow *openAt(ScreenPoint pointer) {
        surfaces.reconcileDisplayWindows(DisplayPreference::all);
        if (!surfaces.activateForOpening(DisplayPreference::all, pointer))
            return nullptr;
        surfaces.active()->present(ShelfPresentation::expanded({744, 256}), false);
        return surfaces.active();
    }

    SessionServices parts;
    ManualQueue previewQueue;
    FakeWorkspace workspace;
    FakeInputMonitor input;
    QtDisplays displays{parts.scheduler};
    FakePanelWindows panelWindows;
    FakeHotZones hotZones;
    FakeHotKeys hotKeys;
    NoThumbnails thumbnails;
    FakeOCRRecognizer recognizer;
    QWidget content;
    ShelfSurfaces surfaces{{parts.scheduler, parts.scheduler.uptimeClock(), parts.now, displays, workspace,
                            input, panelWindows, hotZones, hotKeys, parts.pasteboard, thumbnails, parts.files,
                            parts.pictures, recognizer, previewQueue, [](const QString &) { return true; }},
                           [this]() -> QWidget & { return content; }};
};

} // namespace

TEST_F(ScaledDisplays, theShelfHangsFromTheMiddleOfEachAndFillsEveryPixelUpToTheEdge) {
    const auto connected = ShelfDisplay::connected(displays);
    ASSERT_EQ(connected.size(), 4U) << "started without the file that describes the displays";
    const std::map<QString, double> scales{{QStringLiteral("plain"), 1},
                                           {QStringLiteral("double"), 2},
                                           {QStringLiteral("quarter"), 1.25},
                                           {QStringLiteral("half"), 1.5}};
    for (const ShelfDisplay &display : connected) {
        SCOPED_TRACE(display.name.toStdString());
        EXPECT_EQ(display.scale, scales.at(display.name));
        const ScreenRect notch = display.activationRect();
        EXPECT_EQ(notch.width, 192);
        EXPECT_EQ(notch.height, 12);
        ShelfDisplayWindow *const window = openAt({notch.midX(), notch.y - 1 / display.scale});
        ASSERT_NE(window, nullptr);
        EXPECT_EQ(window->display().name, display.name) << "one device pixel above its notch";
        EXPECT_EQ(window->visiblePanel(), (ScreenRect{display.screenFrame.midX() - 372, 0, 744, 256}));

        const ScreenRect frame = window->panelWindow();
        EXPECT_EQ(frame.y, 0);
        EXPECT_NEAR(frame.midX(), display.screenFrame.midX(), 0.5) << "windows stand on whole points";
        EXPECT_GE(frame.x, display.screenFrame.x);
        EXPECT_LE(frame.right(), display.screenFrame.right());

        const QImage picture = content.window()->grab().toImage();
        ASSERT_EQ(picture.devicePixelRatio(), display.scale);
        const double left = window->visiblePanel().x - frame.x;
        const int first = qCeil(left * display.scale);
        const int last = qFloor((left + 744) * display.scale) - 1;
        int gaps = 0;
        for (int x = first; x <= last; ++x)
            gaps += picture.pixelColor(x, 0) == palette::panel ? 0 : 1;
        const int bottom = qRound(256 * display.scale) - 1;
        for (int y = 0; y <= bottom; ++y)
            gaps += picture.pixelColor(picture.width() / 2, y) == palette::panel ? 0 : 1;
        EXPECT_EQ(gaps, 0);
        EXPECT_NE(picture.pixelColor(picture.width() / 2, bottom + 1), palette::panel) << "and ends there";
    }
}

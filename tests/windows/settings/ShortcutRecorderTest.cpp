#include "windows/settings/ShortcutRecorder.h"

#include <QKeyEvent>
#include <QTest>

#include <gtest/gtest.h>

using namespace tembra;

namespace {

// Takes Ctrl for control and every key for the same one.
ActivationShortcut make(const QKeyEvent &event) {
    const bool isControl = event.modifiers().testFlag(Qt::ControlModifier);
    return {8, isControl ? ActivationShortcut::control : ActivationShortcut::shift, event.text()};
}

} // namespace

TEST(ShortcutRecorder, takesTheFirstValidCombinationOnce) {
    ShortcutRecorder recorder(make);
    std::vector<ActivationShortcut> recorded;
    std::vector<bool> states;
    QObject::connect(&recorder, &ShortcutRecorder::recorded, &recorder,
                     [&](const ActivationShortcut &shortcut) { recorded.push_back(shortcut); });
    QObject::connect(&recorder, &ShortcutRecorder::recordingChanged, &recorder,
                     [&](bool isRecording) { states.push_back(isRecording); });
    recorder.show();
    QTest::keyClick(&recorder, Qt::Key_C, Qt::ControlModifier);
    EXPECT_TRUE(recorded.empty());
    recorder.click();
    QTest::keyClick(&recorder, Qt::Key_A, Qt::ShiftModifier);
    EXPECT_TRUE(recorder.isRecording());
    QTest::keyClick(&recorder, Qt::Key_Tab, Qt::ControlModifier);
    QTest::keyClick(&recorder, Qt::Key_B, Qt::ControlModifier);
    EXPECT_EQ(recorded.size(), 1);
    EXPECT_EQ(states, (std::vector{true, false}));
}

TEST(ShortcutRecorder, isLeftByEscapeByGoingAwayAndByDeleting) {
    ShortcutRecorder recorder(make);
    int cleared = 0;
    QObject::connect(&recorder, &ShortcutRecorder::cleared, &recorder, [&] { ++cleared; });
    recorder.show();
    recorder.setTitle(QStringLiteral("Ctrl+C"));
    const auto leave = [&](auto step) {
        recorder.click();
        EXPECT_TRUE(recorder.isRecording());
        step();
        EXPECT_FALSE(recorder.isRecording());
        EXPECT_EQ(recorder.text(), QStringLiteral("Ctrl+C"));
    };
    leave([&] { QTest::keyClick(&recorder, Qt::Key_Escape); });
    leave([&] {
        recorder.hide();
        recorder.show();
    });
    EXPECT_EQ(cleared, 0);
    leave([&] { QTest::keyClick(&recorder, Qt::Key_Backspace); });
    EXPECT_EQ(cleared, 1);
}

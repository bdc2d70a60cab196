#include "shortcut/ShortcutRecording.h"

#include "shortcut/ShortcutTitle.h"
#include "support/FakeHotKeys.h"

#include <gtest/gtest.h>

using namespace tembra;

namespace {

constexpr auto command = ActivationShortcut::command;
constexpr auto shift = ActivationShortcut::shift;
constexpr auto option = ActivationShortcut::option;
constexpr auto control = ActivationShortcut::control;

QKeyEvent press(std::uint32_t keyCode, int key, Qt::KeyboardModifiers modifiers, const QString &text = {}) {
    return QKeyEvent(QEvent::KeyPress, key, modifiers, keyCode, 0, 0, text);
}

} // namespace

TEST(ShortcutTitle, namesModifiersInOneOrderAndKeysByTheirSigns) {
    struct Case {
        ActivationShortcut shortcut;
        const char *title;
        const char *platformTitle;
    };
    for (const Case &c : {
             Case{ActivationShortcut::standard(), "⇧⌘W", "Shift+Super+W"},
             Case{{13, command | shift | option | control, QStringLiteral("W")},
                  "⌃⌥⇧⌘W",
                  "Ctrl+Alt+Shift+Super+W"},
             Case{{96, control | option, QStringLiteral("F5")}, "⌃⌥F5", "Ctrl+Alt+F5"},
             Case{{36, option, QStringLiteral("↩")}, "⌥↩", "Alt+Enter"},
             Case{{49, command, QStringLiteral("Space")}, "⌘Space", "Super+Space"},
             Case{{123, control, QStringLiteral("←")}, "⌃←", "Ctrl+Left"},
         }) {
        EXPECT_EQ(title(c.shortcut), QString::fromUtf8(c.title));
        EXPECT_EQ(platformTitle(c.shortcut), QString::fromUtf8(c.platformTitle));
    }
}

TEST(ShortcutRecording, takesWhatThePressedKeyShows) {
    struct Case {
        QKeyEvent event;
        ActivationShortcut expected;
    };
    const Qt::KeyboardModifiers superAndShift = Qt::MetaModifier | Qt::ShiftModifier;
    for (const Case &c : {
             Case{press(13, Qt::Key_W, superAndShift, QStringLiteral("W")), ActivationShortcut::standard()},
             Case{press(13, Qt::Key_Z, Qt::AltModifier, QStringLiteral("z")),
                  {13, option, QStringLiteral("Z")}},
             Case{press(41, 0x0416, Qt::MetaModifier, QStringLiteral("ж")),
                  {41, command, QStringLiteral("Ж")}},
             Case{press(0, Qt::Key_A, Qt::ControlModifier, QStringLiteral("\x01")),
                  {0, control, QStringLiteral("A")}},
             Case{press(96, Qt::Key_F5, Qt::ControlModifier | Qt::AltModifier),
                  {96, control | option, QStringLiteral("F5")}},
             Case{press(49, Qt::Key_Space, Qt::MetaModifier, QStringLiteral(" ")),
                  {49, command, QStringLiteral("Space")}},
             Case{press(51, Qt::Key_Backspace, Qt::MetaModifier | Qt::KeypadModifier, QStringLiteral("\b")),
                  {51, command, QStringLiteral("⌫")}},
             Case{press(115, Qt::Key_Home, Qt::MetaModifier), {115, command, QStringLiteral("HOME")}},
         }) {
        const auto recorded = recordedShortcut(c.event, FakeHotKeys());
        ASSERT_TRUE(recorded);
        EXPECT_EQ(*recorded, c.expected) << qPrintable(recorded->keyLabel);
        EXPECT_TRUE(recorded->isValid());
    }
}

TEST(ShortcutRecording, whatIsNoShortcutIsNotTakenForOne) {
    const auto shifted =
        recordedShortcut(press(0, Qt::Key_A, Qt::ShiftModifier, QStringLiteral("A")), FakeHotKeys());
    ASSERT_TRUE(shifted);
    EXPECT_FALSE(shifted->isValid());
    EXPECT_FALSE(recordedShortcut(press(200, Qt::Key_Control, Qt::ControlModifier), FakeHotKeys()));
}

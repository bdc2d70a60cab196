#include "shortcut/ShortcutRecording.h"

#include "platform/HotKeys.h"
#include "shortcut/ShortcutTitle.h"

#include <QKeyEvent>
#include <QKeySequence>

namespace tembra {

namespace {

std::uint32_t carbonModifiers(Qt::KeyboardModifiers held) {
    std::uint32_t modifiers = 0;
    if (held & Qt::MetaModifier)
        modifiers |= ActivationShortcut::command;
    if (held & Qt::ShiftModifier)
        modifiers |= ActivationShortcut::shift;
    if (held & Qt::AltModifier)
        modifiers |= ActivationShortcut::option;
    if (held & Qt::ControlModifier)
        modifiers |= ActivationShortcut::control;
    return modifiers;
}

// The character of the key in the keyboard's layout. With Ctrl the text is a control character, and the key
// tells instead; keys without a character have a name.
QString keyLabel(const QKeyEvent &event) {
    const QString text = event.text();
    if (!text.isEmpty() && text.front().isPrint() && !text.front().isSpace())
        return text.toUpper();
    return QKeySequence(event.key()).toString(QKeySequence::NativeText).toUpper();
}

} // namespace

std::optional<ActivationShortcut> recordedShortcut(const QKeyEvent &event, const HotKeys &hotKeys) {
    const auto keyCode = hotKeys.virtualKeyCode(event);
    if (!keyCode)
        return std::nullopt;
    const QString special = specialKeyLabel(*keyCode);
    return ActivationShortcut{.keyCode = *keyCode,
                              .modifiers = carbonModifiers(event.modifiers()),
                              .keyLabel = special.isEmpty() ? keyLabel(event) : special};
}

} // namespace tembra

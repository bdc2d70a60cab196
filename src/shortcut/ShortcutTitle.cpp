#include "shortcut/ShortcutTitle.h"

#include "settings/ActivationShortcut.h"

#include <QCoreApplication>
#include <QStringList>

#include <algorithm>
#include <array>

namespace tembra {

namespace {

struct SpecialKey {
    std::uint32_t keyCode;
    const char16_t *label;
    // Where the label is a sign.
    const char *word = nullptr;
};

constexpr std::array specialKeys{
    SpecialKey{36, u"↩", QT_TRANSLATE_NOOP("ActivationShortcut", "Enter")},
    SpecialKey{48, u"⇥", QT_TRANSLATE_NOOP("ActivationShortcut", "Tab")},
    SpecialKey{49, u"Space", QT_TRANSLATE_NOOP("ActivationShortcut", "Space")},
    SpecialKey{51, u"⌫", QT_TRANSLATE_NOOP("ActivationShortcut", "Backspace")},
    SpecialKey{117, u"⌦", QT_TRANSLATE_NOOP("ActivationShortcut", "Delete")},
    SpecialKey{123, u"←", QT_TRANSLATE_NOOP("ActivationShortcut", "Left")},
    SpecialKey{124, u"→", QT_TRANSLATE_NOOP("ActivationShortcut", "Right")},
    SpecialKey{125, u"↓", QT_TRANSLATE_NOOP("ActivationShortcut", "Down")},
    SpecialKey{126, u"↑", QT_TRANSLATE_NOOP("ActivationShortcut", "Up")},
    SpecialKey{122, u"F1"},
    SpecialKey{120, u"F2"},
    SpecialKey{99, u"F3"},
    SpecialKey{118, u"F4"},
    SpecialKey{96, u"F5"},
    SpecialKey{97, u"F6"},
    SpecialKey{98, u"F7"},
    SpecialKey{100, u"F8"},
    SpecialKey{101, u"F9"},
    SpecialKey{109, u"F10"},
    SpecialKey{103, u"F11"},
    SpecialKey{111, u"F12"},
};

struct Modifier {
    std::uint32_t bit;
    char16_t symbol;
    const char *word;
};

constexpr std::array modifiers{
    Modifier{ActivationShortcut::control, u'⌃', QT_TRANSLATE_NOOP("ActivationShortcut", "Ctrl")},
    Modifier{ActivationShortcut::option, u'⌥', QT_TRANSLATE_NOOP("ActivationShortcut", "Alt")},
    Modifier{ActivationShortcut::shift, u'⇧', QT_TRANSLATE_NOOP("ActivationShortcut", "Shift")},
    Modifier{ActivationShortcut::command, u'⌘', QT_TRANSLATE_NOOP("ActivationShortcut", "Super")},
};

const SpecialKey *specialKey(std::uint32_t keyCode) {
    const auto *const found = std::ranges::find(specialKeys, keyCode, &SpecialKey::keyCode);
    return found == specialKeys.end() ? nullptr : found;
}

QString translated(const char *text) {
    return QCoreApplication::translate("ActivationShortcut", text);
}

} // namespace

QString title(const ActivationShortcut &shortcut) {
    QString title;
    for (const Modifier &modifier : modifiers) {
        if (shortcut.modifiers & modifier.bit)
            title += modifier.symbol;
    }
    return title + shortcut.keyLabel;
}

QString platformTitle(const ActivationShortcut &shortcut) {
    QStringList parts;
    for (const Modifier &modifier : modifiers) {
        if (shortcut.modifiers & modifier.bit)
            parts.append(translated(modifier.word));
    }
    const SpecialKey *const special = specialKey(shortcut.keyCode);
    parts.append(special && special->word ? translated(special->word) : shortcut.keyLabel);
    return parts.join(u'+');
}

QString specialKeyLabel(std::uint32_t keyCode) {
    const SpecialKey *const special = specialKey(keyCode);
    return special ? QString::fromUtf16(special->label) : QString();
}

} // namespace tembra

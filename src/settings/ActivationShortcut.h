#pragma once

#include <QByteArray>
#include <QString>

#include <cstdint>
#include <optional>

namespace tembra {

// A global shortcut: a virtual key code of macOS (the position of a key), a modifier mask of its Carbon
// interface, and the label that the key shows. Stored as a JSON object with the fields' names as keys.
struct ActivationShortcut {
    enum Modifier : std::uint32_t { command = 0x0100, shift = 0x0200, option = 0x0800, control = 0x1000 };

    std::uint32_t keyCode = 0;
    std::uint32_t modifiers = 0;
    QString keyLabel;

    // Command + Shift + W.
    [[nodiscard]] static ActivationShortcut standard();
    // A key code below 128, at least one of command, option and control, no modifier beyond those four, and a
    // label.
    [[nodiscard]] bool isValid() const;
    [[nodiscard]] QByteArray toJson() const;
    // Nothing when the bytes are not such an object, or the shortcut in them is not valid.
    [[nodiscard]] static std::optional<ActivationShortcut> fromJson(const QByteArray &json);

    bool operator==(const ActivationShortcut &) const = default;
};

} // namespace tembra

#pragma once

#include "base/Result.h"

#include <QString>

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>

QT_BEGIN_NAMESPACE
class QKeyEvent;
QT_END_NAMESPACE

namespace tembra {

// Keys that reach the program whichever program has the keyboard. Keys are told by their place on the
// keyboard, as virtual key codes of macOS, and modifiers by the mask of its Carbon interface: command 0x0100
// (Super here), shift 0x0200, option 0x0800 (Alt here), control 0x1000. Main thread.
class HotKeys {
public:
    struct HotKey {
        std::uint32_t keyCode = 0;
        std::uint32_t modifiers = 0;
        // What the key shows, for desktops that know keys by that.
        QString keyLabel;

        bool operator==(const HotKey &) const = default;
    };
    struct Callbacks {
        // Once for each press, however long it lasts.
        std::function<void()> onPressed;
        // The key was refused later, or taken away: some desktops ask the user. The last call.
        std::function<void(const Error &)> onLost;
    };
    // Dropping it ends it, also from within its callbacks.
    class Registration {
    public:
        virtual ~Registration() = default;
    };

    static inline const QString errorDomain = QStringLiteral("Tembra.HotKeys");
    enum ErrorCode {
        // Another program has it, or there is no such key.
        taken = 1,
        // Programs cannot have such keys on this desktop.
        unavailable,
        // The desktop gave the key and took it back, or did not answer.
        lost,
    };

    virtual ~HotKeys() = default;
    // Whether programs can have such keys on this desktop.
    [[nodiscard]] virtual bool areAvailable() const = 0;
    // A key that is registered already may be registered once more; each registration then gets its presses.
    [[nodiscard]] virtual Result<std::unique_ptr<Registration>> registerHotKey(const HotKey &key,
                                                                               Callbacks callbacks) = 0;
    // Of the key that was pressed; nothing for one that has none, such as a modifier.
    [[nodiscard]] virtual std::optional<std::uint32_t> virtualKeyCode(const QKeyEvent &event) const = 0;
};

} // namespace tembra

#pragma once

#include "platform/HotKeys.h"
#include "settings/ActivationShortcut.h"

#include <functional>
#include <memory>
#include <optional>

namespace tembra {

// The one hot key that opens the shelf from every program. Main thread; owned by ActivationShortcutControl.
class GlobalActivationShortcut {
public:
    static inline const QString errorDomain = QStringLiteral("Tembra.GlobalActivationShortcut");

    explicit GlobalActivationShortcut(HotKeys &hotKeys) : m_hotKeys(hotKeys) {}
    GlobalActivationShortcut(const GlobalActivationShortcut &) = delete;
    GlobalActivationShortcut &operator=(const GlobalActivationShortcut &) = delete;

    std::function<void()> onPressed;
    // The key is not registered any more, or the desktop refused it later.
    std::function<void(const Error &)> onLost;

    // Registers the shortcut in place of the one before; with none that one goes. When it fails everything
    // stays as it was.
    Result<void> configure(const std::optional<ActivationShortcut> &shortcut);

private:
    [[nodiscard]] HotKeys::Callbacks callbacks();

    HotKeys &m_hotKeys;
    std::unique_ptr<HotKeys::Registration> m_registration;
    std::optional<ActivationShortcut> m_shortcut;
};

} // namespace tembra

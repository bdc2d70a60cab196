#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <vector>

using GSettingsBackend = struct _GSettingsBackend;

namespace tembra {

class X11Connection;

// Whether the user wants things to change without moving, as the first of some sources states it. Main
// thread.
class MotionSetting {
public:
    // Whether motion is reduced; nothing where nobody has said.
    using Source = std::function<std::optional<bool>()>;

    explicit MotionSetting(std::vector<Source> sources) : m_sources(std::move(sources)) {}
    // On X11 what the desktop tells all programs, then its own settings. Without a connection, only those.
    [[nodiscard]] static MotionSetting ofDesktop(std::shared_ptr<X11Connection> connection);

    // What the settings of GNOME and its relatives state; without a backend, the session's own database.
    [[nodiscard]] static Source gnome(GSettingsBackend *backend = nullptr);
    // What KDE's settings state.
    [[nodiscard]] static Source kde();

    // As it is now.
    [[nodiscard]] bool isReduced() const;

private:
    std::vector<Source> m_sources;
};

} // namespace tembra

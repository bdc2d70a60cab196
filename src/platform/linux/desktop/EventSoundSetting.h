#pragma once

#include <QString>

#include <functional>
#include <memory>
#include <optional>
#include <vector>

using GSettingsBackend = struct _GSettingsBackend;

namespace tembra {

class X11Connection;

// Whether the user wants the desktop's event sounds, and of which sound theme. Each of the two is as the
// first of some sources states it. Main thread.
class EventSoundSetting {
public:
    struct Statement {
        std::optional<bool> isEnabled;
        std::optional<QString> theme;

        bool operator==(const Statement &) const = default;
    };
    using Source = std::function<Statement()>;

    struct Value {
        bool isEnabled = true;
        QString theme = QStringLiteral("freedesktop");

        bool operator==(const Value &) const = default;
    };

    explicit EventSoundSetting(std::vector<Source> sources) : m_sources(std::move(sources)) {}
    // As the desktop keeps it: on X11 what it tells all programs, then its own settings. Without a
    // connection, only those.
    [[nodiscard]] static EventSoundSetting ofDesktop(std::shared_ptr<X11Connection> connection);

    // What the settings of GNOME and its relatives state; without a backend, the session's own database.
    [[nodiscard]] static Source gnome(GSettingsBackend *backend = nullptr);
    // What KDE's settings state.
    [[nodiscard]] static Source kde();

    // As it is now.
    [[nodiscard]] Value read() const;

private:
    std::vector<Source> m_sources;
};

} // namespace tembra

#include "shortcut/ActivationShortcutControl.h"

#include "base/MainThread.h"
#include "settings/AppSettings.h"

#include <utility>

namespace tembra {

ActivationShortcutControl::ActivationShortcutControl(AppSettings &settings, HotKeys &hotKeys,
                                                     std::function<void()> onPressed)
    : m_settings(settings), m_hotKeys(hotKeys), m_shortcut(hotKeys) {
    m_shortcut.onPressed = std::move(onPressed);
    m_shortcut.onLost = [this](const Error &error) { tell(error.message, m_refusal); };
}

void ActivationShortcutControl::start() {
    requireMainThread();
    if (std::exchange(m_isStarted, true))
        return;
    connect(&m_settings, &AppSettings::updates, this, &ActivationShortcutControl::apply);
    apply();
}

void ActivationShortcutControl::stop() {
    requireMainThread();
    m_isStarted = false;
    disconnect(&m_settings, nullptr, this, nullptr);
    apply();
}

Result<void> ActivationShortcutControl::change(const ActivationShortcut &shortcut) {
    requireMainThread();
    if (!shortcut.isValid()) {
        return failure({GlobalActivationShortcut::errorDomain, 0,
                        tr("A shortcut needs Ctrl, Alt or Super, and another key."), QString()});
    }
    if (isOn()) {
        if (auto configured = m_shortcut.configure(shortcut); !configured) {
            tell(m_failure, configured.error().message);
            return configured;
        }
        m_wanted = shortcut;
    }
    tell(std::nullopt, std::nullopt);
    m_settings.setActivationShortcut(shortcut);
    // Also where nothing changed: it may be recorded still.
    apply();
    return {};
}

void ActivationShortcutControl::setRecording(bool isRecording) {
    requireMainThread();
    if (isRecording)
        tell(m_failure, std::nullopt);
    m_isRecording = isRecording;
    apply();
}

bool ActivationShortcutControl::isOn() const {
    return m_isStarted && m_settings.state().shortcutEnabled;
}

// What failed is not tried again whenever anything changes: some desktops ask the user each time.
void ActivationShortcutControl::apply() {
    const bool isWanted = isOn() && !m_isRecording;
    auto wanted = isWanted ? std::optional(m_settings.state().activationShortcut) : std::nullopt;
    if (wanted == m_wanted)
        return;
    m_wanted = std::move(wanted);
    const auto configured = m_shortcut.configure(m_wanted);
    tell(configured ? std::nullopt : std::optional(configured.error().message),
         isOn() ? m_refusal : std::nullopt);
}

void ActivationShortcutControl::tell(std::optional<QString> failure, std::optional<QString> refusal) {
    const auto before = error();
    m_failure = std::move(failure);
    m_refusal = std::move(refusal);
    if (error() != before)
        Q_EMIT errorChanged();
}

} // namespace tembra

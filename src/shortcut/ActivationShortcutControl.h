#pragma once

#include "shortcut/GlobalActivationShortcut.h"

#include <QObject>

namespace tembra {

class AppSettings;

// Keeps the hot key as the settings have it, and lets the user choose another. Main thread; owned by
// ShelfController.
class ActivationShortcutControl final : public QObject {
    Q_OBJECT

public:
    ActivationShortcutControl(AppSettings &settings, HotKeys &hotKeys, std::function<void()> onPressed);

    void start();
    void stop();

    // Whether this desktop has such keys at all.
    [[nodiscard]] bool isAvailable() const { return m_hotKeys.areAvailable(); }
    // Why the shortcut does not work, or the last choice was refused.
    [[nodiscard]] std::optional<QString> error() const { return m_refusal ? m_refusal : m_failure; }
    // Makes it the stored one. While the shortcut is on it has to be free, else that of before stays, stored
    // and working.
    Result<void> change(const ActivationShortcut &shortcut);
    // While a new one is pressed the old one must reach the window like every other key.
    void setRecording(bool isRecording);

Q_SIGNALS:
    void errorChanged();

private:
    [[nodiscard]] bool isOn() const;
    void apply();
    void tell(std::optional<QString> failure, std::optional<QString> refusal);

    AppSettings &m_settings;
    HotKeys &m_hotKeys;
    GlobalActivationShortcut m_shortcut;
    // What was configured last, whether that succeeded or not.
    std::optional<ActivationShortcut> m_wanted;
    bool m_isStarted = false;
    bool m_isRecording = false;
    std::optional<QString> m_failure;
    std::optional<QString> m_refusal;
};

} // namespace tembra

#pragma once

#include "windows/settings/SettingsPage.h"

namespace tembra {

class ActivationShortcutControl;
class HotKeys;
class ShortcutRecorder;

// The key that opens the shelf from every program.
class ShortcutSettingsPage final : public SettingsPage {
    Q_OBJECT

public:
    // Both outlive the page.
    ShortcutSettingsPage(AppSettings &settings, ActivationShortcutControl &control, const HotKeys &hotKeys,
                         QWidget *parent = nullptr);

private:
    void addShortcut(const HotKeys &hotKeys);
    void addCommand();
    void change(const ActivationShortcut &shortcut);

    ActivationShortcutControl &m_control;
    ShortcutRecorder *m_recorder = nullptr;
    TembraSettingsRow *m_shortcutRow = nullptr;
};

} // namespace tembra

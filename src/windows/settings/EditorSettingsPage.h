#pragma once

#include "platform/UserDefaults.h"
#include "windows/settings/SettingsPage.h"

namespace tembra {

struct EditorColor;

// What the editor draws with at first.
class EditorSettingsPage final : public SettingsPage {
    Q_OBJECT

public:
    // The defaults, where the editor keeps its colour, outlive the page.
    EditorSettingsPage(AppSettings &settings, UserDefaults &defaults, QWidget *parent = nullptr);

private:
    void setColor(const QColor &color);
    void chooseCustomColor();

    UserDefaults &m_defaults;
};

} // namespace tembra

#pragma once

#include <QStringList>
#include <QWidget>

#include <memory>

namespace tembra::bench {

// A window of real widgets and the texts on it, in the order of reading. Needs an application with widgets.
struct InterfaceScene {
    std::unique_ptr<QWidget> window;
    QStringList texts;
};

enum class SceneLanguage { english, german, russian };

[[nodiscard]] InterfaceScene messageBox(SceneLanguage language);
[[nodiscard]] InterfaceScene settingsDialog(SceneLanguage language);
[[nodiscard]] InterfaceScene menus();
[[nodiscard]] InterfaceScene sourceCode(bool isDark);
[[nodiscard]] InterfaceScene invoiceTable();
[[nodiscard]] InterfaceScene fileTree();
[[nodiscard]] InterfaceScene terminal();
[[nodiscard]] InterfaceScene article(SceneLanguage language);
// Pale hints, coloured badges, light on dark beside dark on light.
[[nodiscard]] InterfaceScene issueList();
[[nodiscard]] InterfaceScene paleForm();
[[nodiscard]] InterfaceScene chat();
[[nodiscard]] InterfaceScene label();

} // namespace tembra::bench

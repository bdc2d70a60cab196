#include "windows/settings/EditorSettingsPage.h"

#include "editor/chrome/EditorSwatches.h"
#include "editor/model/EditorDrawingPreferences.h"

#include <QColorDialog>

namespace tembra {

EditorSettingsPage::EditorSettingsPage(AppSettings &settings, UserDefaults &defaults, QWidget *parent)
    : SettingsPage(tr("Editor"), settings, parent), m_defaults(defaults) {
    addSection(tr("Drawing"));
    auto *colors = new EditorSwatches;
    addRow(tr("Drawing color"), colors, tr("The editor remembers the last color that you drew with."));
    connect(colors, &EditorSwatches::chosen, this,
            [this](const EditorColor &color) { setColor(color.toColor()); });
    connect(colors, &EditorSwatches::customRequested, this, &EditorSettingsPage::chooseCustomColor);
    onRefresh([this, colors] { colors->setColor(EditorDrawingPreferences::color(m_defaults)); });
    refresh();
}

void EditorSettingsPage::setColor(const QColor &color) {
    EditorDrawingPreferences::setColor(m_defaults, color);
    refresh();
}

void EditorSettingsPage::chooseCustomColor() {
    auto *dialog = new QColorDialog(EditorDrawingPreferences::color(m_defaults).toColor(), window());
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setOption(QColorDialog::ShowAlphaChannel);
    connect(dialog, &QColorDialog::colorSelected, this, &EditorSettingsPage::setColor);
    dialog->open();
}

} // namespace tembra

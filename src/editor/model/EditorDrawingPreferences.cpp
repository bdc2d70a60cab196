#include "editor/model/EditorDrawingPreferences.h"

namespace tembra {

namespace {

const QString colorKey = QStringLiteral("editor.lastDrawingColor");

} // namespace

EditorColor EditorDrawingPreferences::color(const UserDefaults &defaults) {
    const auto numbers = defaults.numberArray(colorKey);
    if (!numbers || numbers->size() != 4)
        return defaultColor;
    const EditorColor kept{numbers->at(0), numbers->at(1), numbers->at(2), numbers->at(3)};
    return kept.isValid() ? kept : defaultColor;
}

void EditorDrawingPreferences::setColor(UserDefaults &defaults, const QColor &color) {
    const EditorColor chosen = EditorColor::from(color);
    defaults.setNumberArray(colorKey, {chosen.r, chosen.g, chosen.b, chosen.a});
}

} // namespace tembra

#include "editor/chrome/EditorPalette.h"

#include <QCoreApplication>

namespace tembra {

std::vector<EditorPaletteColor> editorPalette() {
    const auto entry = [](const char *name, QRgb color) {
        return EditorPaletteColor{QCoreApplication::translate("EditorPalette", name),
                                  EditorColor::from(QColor(color))};
    };
    return {entry(QT_TRANSLATE_NOOP("EditorPalette", "Red"), 0xFF4F57),
            entry(QT_TRANSLATE_NOOP("EditorPalette", "Orange"), 0xF7922E),
            entry(QT_TRANSLATE_NOOP("EditorPalette", "Green"), 0x22C55E),
            entry(QT_TRANSLATE_NOOP("EditorPalette", "Blue"), 0x3B82F6),
            entry(QT_TRANSLATE_NOOP("EditorPalette", "Purple"), 0xA855F7),
            entry(QT_TRANSLATE_NOOP("EditorPalette", "Black"), 0x111111),
            entry(QT_TRANSLATE_NOOP("EditorPalette", "White"), 0xFFFFFF)};
}

} // namespace tembra

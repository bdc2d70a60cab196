#include "shelf/ShelfTab.h"

namespace tembra {

QString commandName(ShelfTab tab) {
    switch (tab) {
    case ShelfTab::screenshots:
        return QStringLiteral("screenshots");
    case ShelfTab::imageToText:
        return QStringLiteral("text");
    case ShelfTab::fileTray:
        return QStringLiteral("tray");
    }
    return {};
}

std::optional<ShelfTab> shelfTabNamed(const QString &name) {
    for (const ShelfTab tab : {ShelfTab::screenshots, ShelfTab::imageToText, ShelfTab::fileTray}) {
        if (commandName(tab) == name)
            return tab;
    }
    return std::nullopt;
}

} // namespace tembra

#include "windows/settings/SettingsPageId.h"

#include <QCoreApplication>

namespace tembra {

namespace {

struct Names {
    const char *title;
    const char *name;
};

Names namesOf(SettingsPageId page) {
    switch (page) {
    case SettingsPageId::general:
        return {QT_TRANSLATE_NOOP("SettingsPage", "General"), "general"};
    case SettingsPageId::screenshots:
        return {QT_TRANSLATE_NOOP("SettingsPage", "Screenshots"), "screenshots"};
    case SettingsPageId::editor:
        return {QT_TRANSLATE_NOOP("SettingsPage", "Editor"), "editor"};
    case SettingsPageId::fileTray:
        return {QT_TRANSLATE_NOOP("SettingsPage", "File Tray"), "tray"};
    case SettingsPageId::imageToText:
        return {QT_TRANSLATE_NOOP("SettingsPage", "Image to Text"), "text"};
    case SettingsPageId::shortcut:
        return {QT_TRANSLATE_NOOP("SettingsPage", "Shortcut"), "shortcut"};
    case SettingsPageId::doctor:
        return {QT_TRANSLATE_NOOP("SettingsPage", "Doctor"), "doctor"};
    case SettingsPageId::about:
        break;
    }
    return {QT_TRANSLATE_NOOP("SettingsPage", "About"), "about"};
}

} // namespace

QString title(SettingsPageId page) {
    return QCoreApplication::translate("SettingsPage", namesOf(page).title);
}

QString name(SettingsPageId page) {
    return QString::fromLatin1(namesOf(page).name);
}

std::optional<SettingsPageId> settingsPageNamed(const QString &wanted) {
    for (const SettingsPageId page : allSettingsPages) {
        if (name(page) == wanted)
            return page;
    }
    return std::nullopt;
}

} // namespace tembra

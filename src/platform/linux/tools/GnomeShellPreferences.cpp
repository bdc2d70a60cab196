#include "platform/linux/tools/GnomeShellPreferences.h"

#include "platform/linux/tools/SettingsText.h"

#include <QFileInfo>

namespace tembra {

namespace {

constexpr char catalogue[] = "gnome-shell";

} // namespace

std::optional<QString> GnomeShellPreferences::location() const {
    const QString inPictures = folders().pictures + u'/';
    const QString translated = inPictures + m_translations(catalogue, "Screenshots");
    const QString english = inPictures + QStringLiteral("Screenshots");
    return !QFileInfo(translated).isDir() && QFileInfo(english).isDir() ? english : translated;
}

std::optional<QString> GnomeShellPreferences::name() const {
    // The wording has changed once.
    for (const char *text : {"Screenshot From %s", "Screenshot from %s"}) {
        const QString translated = m_translations(catalogue, text);
        if (translated != QLatin1StringView(text))
            return fixedBeginning(translated, u'%');
    }
    return std::nullopt;
}

} // namespace tembra

#include "settings/DisplayPreference.h"

namespace tembra {

QString rawValue(DisplayPreference preference) {
    return preference == DisplayPreference::all ? QStringLiteral("all") : QStringLiteral("main");
}

DisplayPreference displayPreferenceFromRaw(const QString &raw) {
    return raw == u"all" || raw == u"pointer" ? DisplayPreference::all : DisplayPreference::main;
}

} // namespace tembra

#include "updates/SettingsUpdateState.h"

#include <QCoreApplication>

namespace tembra {

namespace {

QString text(const char *source) {
    return QCoreApplication::translate("Updates", source);
}

} // namespace

QString updateText(const SettingsUpdateState &state) {
    using Kind = SettingsUpdateState::Kind;
    switch (state.kind) {
    case Kind::notConfigured:
        return text(QT_TRANSLATE_NOOP("Updates", "This copy of Tembra does not look for updates."));
    case Kind::managedBySystem:
        return text(QT_TRANSLATE_NOOP("Updates", "Updates come with your system’s software updates."));
    case Kind::idle:
        return text(QT_TRANSLATE_NOOP("Updates", "Tembra has not looked for updates since it was started."));
    case Kind::checking:
        return text(QT_TRANSLATE_NOOP("Updates", "Looking for updates…"));
    case Kind::upToDate:
        return text(QT_TRANSLATE_NOOP("Updates", "Tembra is up to date."));
    case Kind::available:
        return text(QT_TRANSLATE_NOOP("Updates", "Tembra %1 is available.")).arg(state.version);
    case Kind::downloading:
        return text(QT_TRANSLATE_NOOP("Updates", "Downloading Tembra %1…")).arg(state.version);
    case Kind::ready:
        return text(QT_TRANSLATE_NOOP("Updates", "Tembra %1 is ready to be installed.")).arg(state.version);
    case Kind::failed:
        return state.failure;
    }
    return {};
}

QString updateStateName(SettingsUpdateState::Kind kind) {
    using Kind = SettingsUpdateState::Kind;
    switch (kind) {
    case Kind::notConfigured:
        return QStringLiteral("notConfigured");
    case Kind::managedBySystem:
        return QStringLiteral("managedBySystem");
    case Kind::idle:
        return QStringLiteral("idle");
    case Kind::checking:
        return QStringLiteral("checking");
    case Kind::upToDate:
        return QStringLiteral("upToDate");
    case Kind::available:
        return QStringLiteral("available");
    case Kind::downloading:
        return QStringLiteral("downloading");
    case Kind::ready:
        return QStringLiteral("ready");
    case Kind::failed:
        return QStringLiteral("failed");
    }
    return {};
}

} // namespace tembra

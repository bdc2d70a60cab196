#include "platform/linux/desktop/PortalHotKeys.h"

#include "platform/linux/desktop/HotKeyErrors.h"
#include "platform/linux/desktop/KeyPositions.h"
#include "platform/linux/desktop/PortalShortcutSession.h"

#include <QDBusConnection>
#include <QDBusMessage>

namespace tembra {

namespace {

QDBusMessage portalCall(const QString &interface, const QString &method) {
    return QDBusMessage::createMethodCall(QStringLiteral("org.freedesktop.portal.Desktop"),
                                          QStringLiteral("/org/freedesktop/portal/desktop"), interface,
                                          method);
}

// A program that is in no sandbox says which one it is before it asks for anything else, so that the desktop
// knows whose keys they are (xdg-desktop-portal 1.20 and later; earlier ones refuse, and guess).
void tellApplication() {
    QDBusMessage call =
        portalCall(QStringLiteral("org.freedesktop.host.portal.Registry"), QStringLiteral("Register"));
    call << QStringLiteral("app.tembra.Tembra") << QVariantMap();
    QDBusConnection::sessionBus().asyncCall(call);
}

QDBusPendingCall askForVersion() {
    QDBusMessage call = portalCall(QStringLiteral("org.freedesktop.DBus.Properties"), QStringLiteral("Get"));
    call << QStringLiteral("org.freedesktop.portal.GlobalShortcuts") << QStringLiteral("version");
    constexpr int patienceMilliseconds = 3000;
    return QDBusConnection::sessionBus().asyncCall(call, patienceMilliseconds);
}

} // namespace

PortalHotKeys::PortalHotKeys()
    : m_version([] {
          tellApplication();
          return askForVersion();
      }()) {}

// A portal that is only just starting is asked again.
bool PortalHotKeys::areAvailable() const {
    m_version.waitForFinished();
    if (!m_version.isError())
        return true;
    const QDBusError::ErrorType error = m_version.error().type();
    if (error == QDBusError::NoReply || error == QDBusError::TimedOut || error == QDBusError::Timeout) {
        m_version = askForVersion();
        m_version.waitForFinished();
    }
    return !m_version.isError();
}

Result<std::unique_ptr<HotKeys::Registration>> PortalHotKeys::registerHotKey(const HotKey &key,
                                                                             Callbacks callbacks) {
    // Else it is found out by asking for the key.
    if (m_version.isFinished() && m_version.isError())
        return failure(hotKeysUnavailable());
    return std::make_unique<PortalShortcutSession>(key, std::move(callbacks));
}

std::optional<std::uint32_t> PortalHotKeys::virtualKeyCode(const QKeyEvent &event) const {
    return virtualKeyOf(event);
}

} // namespace tembra

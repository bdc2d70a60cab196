#include "platform/linux/DBusSingleInstance.h"

#include "platform/linux/ApplicationAdaptor.h"
#include "platform/linux/TembraAdaptor.h"

#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusError>
#include <QDBusMessage>

namespace tembra {

namespace {

const QString serviceName = QStringLiteral("app.tembra.Tembra");
const QString objectPath = QStringLiteral("/app/tembra/Tembra");
const QString interfaceName = QStringLiteral("app.tembra.Tembra");

QString translated(const char *text) {
    return QCoreApplication::translate("SingleInstance", text);
}

tl::unexpected<Error> instanceFailure(SingleInstance::ErrorCode code, const QString &message) {
    return failure({QStringLiteral("Tembra.SingleInstance"), code, message, {}});
}

tl::unexpected<Error> noBus() {
    return instanceFailure(SingleInstance::noSessionBus,
                           translated(QT_TRANSLATE_NOOP(
                               "SingleInstance", "There is no D-Bus session to reach Tembra through.")));
}

} // namespace

DBusSingleInstance::DBusSingleInstance() = default;

DBusSingleInstance::~DBusSingleInstance() {
    release();
    if (m_object)
        QDBusConnection::sessionBus().unregisterObject(objectPath);
}

Result<void> DBusSingleInstance::claim(Handler handler) {
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected())
        return noBus();
    // The object is there before the name is, so that a call that waited for the name finds it.
    m_object = std::make_unique<QObject>();
    m_adaptor = new TembraAdaptor(m_object.get(), handler);
    new ApplicationAdaptor(m_object.get(), std::move(handler));
    bus.registerObject(objectPath, m_object.get());
    if (bus.registerService(serviceName))
        return {};
    bus.unregisterObject(objectPath);
    m_adaptor = nullptr;
    m_object.reset();
    return instanceFailure(alreadyRunning,
                           translated(QT_TRANSLATE_NOOP("SingleInstance", "Tembra is already running.")));
}

void DBusSingleInstance::release() {
    if (m_object)
        QDBusConnection::sessionBus().unregisterService(serviceName);
}

void DBusSingleInstance::announceCapture(const QString &path) {
    if (m_adaptor)
        Q_EMIT m_adaptor->CaptureArrived(path);
}

Result<QString> DBusSingleInstance::send(const QString &command, const QStringList &arguments,
                                         bool startIfNeeded) {
    const QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected())
        return noBus();
    QDBusMessage call =
        QDBusMessage::createMethodCall(serviceName, objectPath, interfaceName, QStringLiteral("Command"));
    call.setAutoStartService(startIfNeeded);
    call << command << arguments;
    const QDBusMessage reply = bus.call(call);
    if (reply.type() == QDBusMessage::ReplyMessage)
        return reply.arguments().value(0).toString();
    const QString &error = reply.errorName();
    if (error == u"org.freedesktop.DBus.Error.ServiceUnknown" ||
        error == u"org.freedesktop.DBus.Error.NameHasNoOwner")
        return instanceFailure(notRunning,
                               translated(QT_TRANSLATE_NOOP("SingleInstance", "Tembra is not running.")));
    return instanceFailure(refused, reply.errorMessage());
}

} // namespace tembra

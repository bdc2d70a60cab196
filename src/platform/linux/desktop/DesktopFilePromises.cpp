#include "platform/linux/desktop/DesktopFilePromises.h"

#include "platform/linux/desktop/X11Connection.h"
#include "platform/linux/desktop/X11DirectSave.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>

#include <utility>

namespace tembra {

namespace {

QDBusMessage retrieveFilesCall(const QString &key) {
    QDBusMessage call = QDBusMessage::createMethodCall(QStringLiteral("org.freedesktop.portal.Documents"),
                                                       QStringLiteral("/org/freedesktop/portal/documents"),
                                                       QStringLiteral("org.freedesktop.portal.FileTransfer"),
                                                       QStringLiteral("RetrieveFiles"));
    call << key << QVariantMap();
    return call;
}

} // namespace

DesktopFilePromises::DesktopFilePromises(std::shared_ptr<X11Connection> connection)
    : m_connection(std::move(connection)) {
    if (m_connection)
        watchDrags();
}

void DesktopFilePromises::watchDrags() {
    const xcb_atom_t enter = m_connection->atom(QByteArrayLiteral("XdndEnter"));
    m_drags = m_connection->subscribe([this, enter](const xcb_generic_event_t &event) {
        constexpr std::uint8_t eventNumberMask = 0x7f;
        if ((event.response_type & eventNumberMask) != XCB_CLIENT_MESSAGE)
            return;
        const auto &message = reinterpret_cast<const xcb_client_message_event_t &>(event);
        if (message.type == enter)
            m_dragSource = message.data.data32[0];
    });
}

void DesktopFilePromises::receive(const QMimeData &pasteboard, const QString &folder,
                                  std::function<void(Result<Delivery>)> onDone) {
    if (m_connection && pasteboard.hasFormat(directSave))
        return onDone(receiveDirectSave(*m_connection, m_dragSource, pasteboard, folder));
    // Some end the key with a zero byte.
    askPortal(QString::fromUtf8(pasteboard.data(portalTransfer).constData()), std::move(onDone));
}

void DesktopFilePromises::askPortal(const QString &key, std::function<void(Result<Delivery>)> onDone) {
    auto *const answer = new QDBusPendingCallWatcher(
        QDBusConnection::sessionBus().asyncCall(retrieveFilesCall(key)), &m_context);
    QObject::connect(
        answer, &QDBusPendingCallWatcher::finished, &m_context, [answer, onDone = std::move(onDone)] {
            answer->deleteLater();
            const QDBusPendingReply<QStringList> reply = *answer;
            if (reply.isError() || reply.value().isEmpty())
                return onDone(failure({errorDomain, notDelivered, reply.error().message(), QString()}));
            onDone(Delivery{.paths = reply.value()});
        });
}

} // namespace tembra

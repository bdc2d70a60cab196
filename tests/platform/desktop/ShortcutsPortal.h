#pragma once

#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDBusVariant>
#include <QDBusVirtualObject>
#include <QVariantMap>

namespace tembra {

// The desktop's portal for shortcuts, with a user who agrees to everything or to nothing. It keeps what was
// asked last.
class ShortcutsPortal final : public QDBusVirtualObject {
public:
    ShortcutsPortal() {
        m_bus.registerVirtualObject(portalPath, this, QDBusConnection::SubPath);
        m_bus.registerService(name);
    }
    ~ShortcutsPortal() override { QDBusConnection::disconnectFromBus(name); }

    bool agrees = true;
    // The program that said who it is, before it asked for anything.
    QString application;
    // Somebody has asked whether it is there.
    bool wasFound = false;
    // The object that is the session; empty when there is none.
    QString session;
    QString shortcut;
    QVariantMap properties;

    void press(const QString &inSession, const QString &which) {
        QDBusMessage signal = QDBusMessage::createSignal(portalPath, interface, QStringLiteral("Activated"));
        signal << QVariant::fromValue(QDBusObjectPath(inSession)) << which << qulonglong(7) << QVariantMap();
        m_bus.send(signal);
    }
    void closeSession() {
        m_bus.send(QDBusMessage::createSignal(session, QStringLiteral("org.freedesktop.portal.Session"),
                                              QStringLiteral("Closed")));
    }

    QString introspect(const QString &) const override { return {}; }
    bool handleMessage(const QDBusMessage &message, const QDBusConnection &bus) override {
        const QString member = message.member();
        if (member == u"Register" && !wasFound) {
            application = message.arguments().value(0).toString();
            bus.send(message.createReply());
        } else if (member == u"Get") {
            wasFound = bus.send(message.createReply(QVariant::fromValue(QDBusVariant(1U))));
        } else if (member == u"CreateSession") {
            createSession(message);
        } else if (member == u"BindShortcuts") {
            bind(message);
        } else if (member == u"Close") {
            if (message.path() == session)
                session.clear();
            bus.send(message.createReply());
        } else {
            bus.send(message.createErrorReply(QDBusError::UnknownMethod, member));
        }
        return true;
    }

private:
    static inline const QString name = QStringLiteral("org.freedesktop.portal.Desktop");
    static inline const QString portalPath = QStringLiteral("/org/freedesktop/portal/desktop");
    static inline const QString interface = QStringLiteral("org.freedesktop.portal.GlobalShortcuts");

    static QString path(const QDBusMessage &message, const char *kind, const QVariant &token) {
        QString sender = message.service().mid(1);
        sender.replace(u'.', u'_');
        return QStringLiteral("%1/%2/%3/%4")
            .arg(portalPath, QString::fromLatin1(kind), sender, token.toString());
    }
    void answer(const QDBusMessage &message, const QVariantMap &options, const QVariantMap &results) {
        const QString request = path(message, "request", options[QStringLiteral("handle_token")]);
        m_bus.send(message.createReply(QVariant::fromValue(QDBusObjectPath(request))));
        QDBusMessage signal = QDBusMessage::createTargetedSignal(
            message.service(), request, QStringLiteral("org.freedesktop.portal.Request"),
            QStringLiteral("Response"));
        signal << (agrees || message.member() == u"CreateSession" ? 0U : 1U) << results;
        m_bus.send(signal);
    }
    void createSession(const QDBusMessage &message) {
        const auto options = qdbus_cast<QVariantMap>(message.arguments().value(0));
        session = path(message, "session", options[QStringLiteral("session_handle_token")]);
        answer(message, options, {{QStringLiteral("session_handle"), session}});
    }
    void bind(const QDBusMessage &message) {
        const auto list = message.arguments().value(1).value<QDBusArgument>();
        list.beginArray();
        list.beginStructure();
        list >> shortcut >> properties;
        list.endStructure();
        list.endArray();
        answer(message, qdbus_cast<QVariantMap>(message.arguments().value(3)),
               {{QStringLiteral("shortcuts"), message.arguments().value(1)}});
    }

    QDBusConnection m_bus = QDBusConnection::connectToBus(QDBusConnection::SessionBus, name);
};

} // namespace tembra

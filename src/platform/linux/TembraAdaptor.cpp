#include "platform/linux/TembraAdaptor.h"

#include <QDBusConnection>

namespace tembra {

TembraAdaptor::TembraAdaptor(QObject *parent, SingleInstance::Handler handler)
    : QDBusAbstractAdaptor(parent), m_handler(std::move(handler)) {}

QString TembraAdaptor::Command(const QString &command, const QStringList &arguments,
                               const QDBusMessage &message) {
    const Result<QString> answer = m_handler(command, arguments);
    if (answer)
        return *answer;
    message.setDelayedReply(true);
    QDBusConnection::sessionBus().send(
        message.createErrorReply(QStringLiteral("app.tembra.Tembra.Error"), answer.error().message));
    return {};
}

} // namespace tembra

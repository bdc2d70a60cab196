#include "platform/linux/TembraAdaptor.h"

#include <QDBusConnection>

namespace tembra {

namespace {

QStringList unlessEmpty(const QString &argument) {
    return argument.isEmpty() ? QStringList() : QStringList{argument};
}

} // namespace

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

void TembraAdaptor::OpenShelf(const QString &tab, const QDBusMessage &message) {
    Command(QStringLiteral("open"), unlessEmpty(tab), message);
}

void TembraAdaptor::CloseShelf(const QDBusMessage &message) {
    Command(QStringLiteral("close"), {}, message);
}

void TembraAdaptor::ToggleShelf(const QDBusMessage &message) {
    Command(QStringLiteral("toggle"), {}, message);
}

void TembraAdaptor::AddFiles(const QStringList &files, const QDBusMessage &message) {
    Command(QStringLiteral("add"), files, message);
}

void TembraAdaptor::EditFile(const QString &file, const QDBusMessage &message) {
    Command(QStringLiteral("edit"), {file}, message);
}

void TembraAdaptor::ShowSettings(const QString &page, const QDBusMessage &message) {
    Command(QStringLiteral("settings"), unlessEmpty(page), message);
}

QString TembraAdaptor::Status(const QDBusMessage &message) {
    return Command(QStringLiteral("status"), {QStringLiteral("--json")}, message);
}

void TembraAdaptor::Quit(const QDBusMessage &message) {
    Command(QStringLiteral("quit"), {}, message);
}

} // namespace tembra

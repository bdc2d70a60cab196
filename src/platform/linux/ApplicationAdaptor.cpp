#include "platform/linux/ApplicationAdaptor.h"

#include <QHash>

namespace tembra {

namespace {

struct Command {
    QString name;
    QStringList arguments;
};

// What the actions of the desktop file are on the command line, where that is not the same word.
Command commandOfAction(const QString &action) {
    static const QHash<QString, Command> commands{
        {QStringLiteral("open-tray"), {QStringLiteral("open"), {QStringLiteral("tray")}}},
        {QStringLiteral("open-text"), {QStringLiteral("open"), {QStringLiteral("text")}}}};
    return commands.value(action, {action, {}});
}

} // namespace

ApplicationAdaptor::ApplicationAdaptor(QObject *parent, SingleInstance::Handler handler)
    : QDBusAbstractAdaptor(parent), m_handler(std::move(handler)) {}

void ApplicationAdaptor::Activate(const QVariantMap &) {
    perform(QStringLiteral("reopen"), {});
}

// What is dropped on the program's icon goes where files dropped on the shelf go.
void ApplicationAdaptor::Open(const QStringList &uris, const QVariantMap &) {
    perform(QStringLiteral("add"), uris);
    perform(QStringLiteral("open"), {QStringLiteral("tray")});
}

void ApplicationAdaptor::ActivateAction(const QString &name, const QVariantList &, const QVariantMap &) {
    const Command command = commandOfAction(name);
    perform(command.name, command.arguments);
}

// Desktops do not show what an answer says.
void ApplicationAdaptor::perform(const QString &command, const QStringList &arguments) {
    if (const auto answer = m_handler(command, arguments); !answer)
        qWarning("%s", qUtf8Printable(answer.error().message));
}

} // namespace tembra

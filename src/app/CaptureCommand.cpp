#include "app/CaptureCommand.h"

#include <QCoreApplication>
#include <QProcess>

namespace tembra {

QStringList CaptureCommand::arguments(const QStringList &command, const QString &file) {
    QStringList arguments = command.mid(1);
    const QString place = QStringLiteral("{}");
    if (!arguments.contains(place))
        return arguments << file;
    for (QString &argument : arguments)
        argument = argument == place ? file : argument;
    return arguments;
}

void CaptureCommand::run(const QStringList &command, const QString &file) {
    if (command.isEmpty())
        return;
    if (QProcess::startDetached(command.constFirst(), arguments(command, file))) {
        m_failed.clear();
        return;
    }
    if (m_failed == command)
        return;
    m_failed = command;
    if (onFailed)
        onFailed(QCoreApplication::translate(
                     "CaptureCommand", "“%1”, which is to be run for new screenshots, could not be started.")
                     .arg(command.constFirst()));
}

} // namespace tembra

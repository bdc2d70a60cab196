#include "app/CaptureCommand.h"

#include "platform/Platform.h"

#include <QCoreApplication>

namespace tembra {

CaptureCommand::~CaptureCommand() {
    // A process that is destroyed is killed.
    if (m_running)
        m_running->disconnect(this);
}

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
    m_waiting.enqueue({command, file});
    if (!m_running)
        startNext();
}

void CaptureCommand::startNext() {
    if (m_waiting.isEmpty())
        return;
    const auto [command, file] = m_waiting.dequeue();
    m_running = new QProcess;
    m_running->setProcessEnvironment(environmentForPrograms());
    m_running->setProcessChannelMode(QProcess::ForwardedChannels);
    m_running->setStandardInputFile(QProcess::nullDevice());
    connect(m_running, &QProcess::finished, this, &CaptureCommand::ended);
    connect(m_running, &QProcess::errorOccurred, this,
            [this, command = command](QProcess::ProcessError error) {
                if (error != QProcess::FailedToStart)
                    return;
                failed(command);
                ended();
            });
    connect(m_running, &QProcess::started, this, [this] { m_failed.clear(); });
    m_running->start(command.constFirst(), arguments(command, file));
}

void CaptureCommand::ended() {
    std::exchange(m_running, nullptr)->deleteLater();
    startNext();
}

void CaptureCommand::failed(const QStringList &command) {
    if (std::exchange(m_failed, command) == command || !onFailed)
        return;
    onFailed(QCoreApplication::translate(
                 "CaptureCommand", "“%1”, which is to be run for new screenshots, could not be started.")
                 .arg(command.constFirst()));
}

} // namespace tembra

#pragma once

#include <QProcess>
#include <QQueue>
#include <QString>
#include <QStringList>

#include <functional>

namespace tembra {

// Runs the user's own command for new captures: a program with its arguments, which no shell gets to see; one
// after the other, however many come at once. Main thread.
class CaptureCommand final : public QObject {
    Q_OBJECT

public:
    CaptureCommand() = default;
    // The command that runs goes on.
    ~CaptureCommand() override;

    // Called once for a command that cannot be run, until there is another one.
    std::function<void(const QString &sentence)> onFailed;

    // Starts it, at once or when those before have ended, and waits for nothing. An argument "{}" stands for
    // the file; without one the file is the last argument. Nothing happens without a command.
    void run(const QStringList &command, const QString &file);

    // A command has not ended, or waits for its turn.
    [[nodiscard]] bool isBusy() const { return m_running != nullptr; }

    [[nodiscard]] static QStringList arguments(const QStringList &command, const QString &file);

private:
    void startNext();
    void ended();
    void failed(const QStringList &command);

    QQueue<std::pair<QStringList, QString>> m_waiting;
    QProcess *m_running = nullptr;
    QStringList m_failed;
};

} // namespace tembra

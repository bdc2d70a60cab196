#pragma once

#include <QString>
#include <QStringList>

#include <functional>

namespace tembra {

// Runs the user's own command for new captures: a program with its arguments, which no shell gets to see.
// Main thread.
class CaptureCommand {
public:
    // Called once for a command that cannot be run, until there is another one.
    std::function<void(const QString &sentence)> onFailed;

    // Starts it and waits for nothing. An argument "{}" stands for the file; without one the file is the last
    // argument. Nothing happens without a command.
    void run(const QStringList &command, const QString &file);

    [[nodiscard]] static QStringList arguments(const QStringList &command, const QString &file);

private:
    QStringList m_failed;
};

} // namespace tembra

#pragma once

#include "base/Result.h"

#include <QString>
#include <QStringList>

#include <functional>

namespace tembra {

// One running program per session, and the way to talk to it. Main thread. Errors have the domain
// "Tembra.SingleInstance".
class SingleInstance {
public:
    enum ErrorCode { alreadyRunning = 1, notRunning = 2, noSessionBus = 3, refused = 4 };

    // Answers a command of the command line with what it prints, or with the sentence that says why not.
    using Handler = std::function<Result<QString>(const QString &command, const QStringList &arguments)>;

    virtual ~SingleInstance() = default;
    // Makes this process the running one and answers commands from now on.
    [[nodiscard]] virtual Result<void> claim(Handler handler) = 0;
    // Lets the next one claim; what was asked before is still answered.
    virtual void release() = 0;
    // Tells every program that listens that there is a new capture.
    virtual void announceCapture(const QString &path) = 0;
    // Sends a command to the running program; with `startIfNeeded` the session may start it first, where it
    // knows how.
    [[nodiscard]] virtual Result<QString> send(const QString &command, const QStringList &arguments,
                                               bool startIfNeeded) = 0;
};

} // namespace tembra

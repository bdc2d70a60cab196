#pragma once

#include <QByteArray>
#include <QByteArrayList>
#include <QString>
#include <QStringList>

#include <functional>

namespace tembra {

// Runs a program again and again, and each time lets another of the calls with which it changes a folder go
// wrong (see support/fault/FaultHook.cpp): first the first one, then the second, until it ends undisturbed.
// Needs no application object.
struct FaultWalk {
    // One run and what was to go wrong in it.
    struct Run {
        // Without links on the way to it.
        QString folder;
        QByteArray kind;
        int step = 0;
        // The calls it made, "number name path"; the one that went wrong has the number `step`.
        QByteArrayList calls;
        bool wasKilled = false;
        // Of a program that was not killed.
        int exitCode = 0;

        // The step was reached.
        [[nodiscard]] bool wentWrong() const { return calls.size() >= step; }
        // Calls after the one that went wrong could put things right.
        [[nodiscard]] bool canTidy() const { return !wasKilled && !kind.endsWith("-always"); }
        // For messages.
        [[nodiscard]] QByteArray description() const;
    };

    static inline const QByteArrayList everyKind{
        "kill-before", "kill-after",    "ENOSPC",     "EIO",
        "EACCES",      "ENOSPC-always", "EIO-always", "EACCES-always",
    };

    QString program;
    // Fills an empty folder; gives the program's arguments.
    std::function<QStringList(const QString &folder)> prepare;
    // Looks at the folder after each run.
    std::function<void(const Run &)> check;

    // Gives the number of calls that the program makes undisturbed.
    int walk(const QByteArrayList &kinds = everyKind) const;

private:
    [[nodiscard]] Run run(const QByteArray &kind, int step, const QString &folder) const;
};

} // namespace tembra

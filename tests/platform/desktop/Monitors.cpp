#include "Monitors.h"

#include <QProcess>

namespace tembra {

void runXrandr(const QStringList &arguments) {
    QProcess process;
    process.start(QStringLiteral("xrandr"), arguments);
    if (!process.waitForFinished() || process.exitCode() != 0)
        qFatal("xrandr: %s", process.readAllStandardError().constData());
}

void splitScreen() {
    runXrandr({QStringLiteral("--setmonitor"), QStringLiteral("left"), QStringLiteral("640/169x800/211+0+0"),
               QStringLiteral("screen")});
    runXrandr({QStringLiteral("--setmonitor"), QStringLiteral("right"),
               QStringLiteral("640/169x800/211+640+0"), QStringLiteral("none")});
}

void joinScreen() {
    runXrandr({QStringLiteral("--delmonitor"), QStringLiteral("right")});
    runXrandr({QStringLiteral("--delmonitor"), QStringLiteral("left")});
}

} // namespace tembra

#include "Memory.h"

#include <QFile>

namespace tembra::bench {

Memory memory() {
    Memory memory;
    QFile status(QStringLiteral("/proc/self/status"));
    if (!status.open(QIODevice::ReadOnly))
        return memory;
    for (const QByteArray &line : status.readAll().split('\n')) {
        const auto value = [&line] { return line.simplified().split(' ').value(1).toDouble() / 1'024; };
        if (line.startsWith("VmRSS:"))
            memory.now = value();
        if (line.startsWith("VmHWM:"))
            memory.most = value();
    }
    QFile peaks(QStringLiteral("/proc/self/clear_refs"));
    if (peaks.open(QIODevice::WriteOnly))
        peaks.write("5");
    return memory;
}

} // namespace tembra::bench

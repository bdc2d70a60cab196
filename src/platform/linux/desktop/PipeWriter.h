#pragma once

#include "platform/linux/Descriptor.h"

#include <QObject>
#include <QSocketNotifier>

namespace tembra {

// Writes bytes to another program at the speed at which it reads them, closes the pipe and deletes itself; it
// gives up when that program is gone. Main thread, which never waits; ends with its parent at the latest.
class PipeWriter final : public QObject {
public:
    PipeWriter(Descriptor pipe, QByteArray bytes, QObject *parent);

private:
    void write();
    void end();

    Descriptor m_pipe;
    QByteArray m_bytes;
    qsizetype m_written = 0;
    QSocketNotifier m_writable;
};

} // namespace tembra

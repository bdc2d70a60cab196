#include "platform/linux/desktop/PipeWriter.h"

#include <cerrno>
#include <csignal>
#include <fcntl.h>

namespace tembra {

namespace {

// A reader that is gone would end the process otherwise. Child processes that Qt starts get the default back.
void ignorePipeSignals() {
    static const auto previous = std::signal(SIGPIPE, SIG_IGN);
    static_cast<void>(previous);
}

} // namespace

PipeWriter::PipeWriter(Descriptor pipe, QByteArray bytes, QObject *parent)
    : QObject(parent),
      m_pipe(std::move(pipe)),
      m_bytes(std::move(bytes)),
      m_writable(m_pipe.number(), QSocketNotifier::Write) {
    ignorePipeSignals();
    ::fcntl(m_pipe.number(), F_SETFL, ::fcntl(m_pipe.number(), F_GETFL) | O_NONBLOCK);
    connect(&m_writable, &QSocketNotifier::activated, this, [this] { write(); });
}

void PipeWriter::write() {
    while (m_written < m_bytes.size()) {
        const auto count = ::write(m_pipe.number(), m_bytes.constData() + m_written,
                                   static_cast<std::size_t>(m_bytes.size() - m_written));
        if (count < 0 && errno == EINTR)
            continue;
        if (count < 0 && errno == EAGAIN)
            return;
        if (count < 0)
            break;
        m_written += count;
    }
    end();
}

void PipeWriter::end() {
    m_writable.setEnabled(false);
    m_pipe = Descriptor();
    deleteLater();
}

} // namespace tembra

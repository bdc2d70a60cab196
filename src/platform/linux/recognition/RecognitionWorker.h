#pragma once

#include "base/Cancellation.h"
#include "base/Result.h"
#include "platform/linux/Descriptor.h"

#include <QByteArray>
#include <QStringList>

#include <chrono>
#include <memory>
#include <thread>

namespace tembra {

// One worker process, which reads one picture after the other (WorkerProtocol.h). It ends by itself when it
// is idle for long, with this object at once, and with the program. One thread at a time, any one.
class RecognitionWorker {
public:
    struct Program {
        // Its file; empty where it is not installed.
        QString file;
        // As Tesseract names them.
        QStringList languages;
        std::chrono::milliseconds idleTime = std::chrono::minutes(1);
    };
    enum class Fault {
        notStarted,
        // It was not there any more when the picture came.
        gone,
        noLanguage,
        // It ended, or said what it should not.
        broken,
        late,
        cancelled,
    };
    template <class T>
    using Outcome = tl::expected<T, Fault>;

    // Error: "POSIX" with the errno.
    [[nodiscard]] static Result<std::unique_ptr<RecognitionWorker>> start(const Program &program);
    ~RecognitionWorker();
    RecognitionWorker(const RecognitionWorker &) = delete;
    RecognitionWorker &operator=(const RecognitionWorker &) = delete;

    // What it says of the picture, up to the end mark. After a fault it is of no use any more.
    [[nodiscard]] Outcome<QByteArray> read(const Descriptor &picture, std::chrono::milliseconds limit,
                                           const Cancellation &cancellation) const;

private:
    RecognitionWorker() = default;

    Descriptor m_socket;
    Descriptor m_process;
    // Starts the process and waits for its end: the system ends a process with the thread that started it.
    std::jthread m_keeper;
};

} // namespace tembra

#pragma once

#include "base/SerialQueue.h"

#include <QString>

#include <condition_variable>
#include <deque>
#include <mutex>
#include <thread>

namespace tembra {

// SerialQueue on a thread of its own, which is started by the first job and sleeps without waking while there
// is nothing to do. Destruction finishes the job that is running and drops those that have not begun.
class ThreadQueue final : public SerialQueue {
public:
    explicit ThreadQueue(QString name);
    ~ThreadQueue() override;
    ThreadQueue(const ThreadQueue &) = delete;
    ThreadQueue &operator=(const ThreadQueue &) = delete;

    void post(std::function<void()> job) override;

private:
    void run();
    // The next job, or an empty function when the queue ends.
    std::function<void()> take();

    const QString m_name;
    std::mutex m_mutex;
    std::condition_variable m_wake;
    std::deque<std::function<void()>> m_jobs;
    bool m_ending = false;
    std::thread m_thread;
};

} // namespace tembra

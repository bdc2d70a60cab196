#include "base/ThreadQueue.h"

#include <QThread>

namespace tembra {

ThreadQueue::ThreadQueue(QString name) : m_name(std::move(name)) {}

ThreadQueue::~ThreadQueue() {
    {
        const std::lock_guard lock(m_mutex);
        m_ending = true;
        m_jobs.clear();
    }
    m_wake.notify_one();
    if (m_thread.joinable())
        m_thread.join();
}

void ThreadQueue::post(std::function<void()> job) {
    {
        const std::lock_guard lock(m_mutex);
        m_jobs.push_back(std::move(job));
        if (!m_thread.joinable())
            m_thread = std::thread([this] { run(); });
    }
    m_wake.notify_one();
}

void ThreadQueue::run() {
    QThread::currentThread()->setObjectName(m_name);
    while (const std::function<void()> job = take())
        job();
}

std::function<void()> ThreadQueue::take() {
    std::unique_lock lock(m_mutex);
    m_wake.wait(lock, [this] { return m_ending || !m_jobs.empty(); });
    if (m_ending)
        return {};
    std::function<void()> job = std::move(m_jobs.front());
    m_jobs.pop_front();
    return job;
}

} // namespace tembra

// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "history/SerialQueue.h"

#include <utility>

namespace quillmark::history {

void SerialQueue::finish()
{
    {
        const std::lock_guard lock(m_mutex);
        m_isEnding = true;
    }
    m_changed.notify_all();
    if (m_thread.joinable())
        m_thread.join();
}

void SerialQueue::post(Job job)
{
    {
        const std::lock_guard lock(m_mutex);
        m_jobs.push_back(std::move(job));
        if (!m_thread.joinable())
            m_thread = std::thread([this] { work(); });
    }
    m_changed.notify_all();
}

void SerialQueue::wait(const Job &job)
{
    bool isDone = false;
    post([this, &job, &isDone] {
        job();
        // Notified under the lock: once the waiting thread has seen that it is done, the queue may be gone.
        const std::lock_guard lock(m_mutex);
        isDone = true;
        m_changed.notify_all();
    });
    std::unique_lock lock(m_mutex);
    m_changed.wait(lock, [&isDone] { return isDone; });
}

void SerialQueue::work()
{
    std::unique_lock lock(m_mutex);
    for (;;) {
        m_changed.wait(lock, [this] { return m_isEnding || !m_jobs.empty(); });
        if (m_jobs.empty())
            return;
        const auto job = std::move(m_jobs.front());
        m_jobs.pop_front();
        lock.unlock();
        job();
        lock.lock();
    }
}

} // namespace quillmark::history

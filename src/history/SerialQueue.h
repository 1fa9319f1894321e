// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <condition_variable>
#include <deque>
#include <functional>
#include <mutex>
#include <thread>

namespace quillmark::history {

/// Runs jobs one after the other, in the order in which they were given, on a thread of its own, which begins
/// with the first. Jobs throw nothing.
class SerialQueue
{
public:
    using Job = std::function<void()>;

    SerialQueue() = default;
    SerialQueue(const SerialQueue &) = delete;
    SerialQueue &operator=(const SerialQueue &) = delete;
    ~SerialQueue() { finish(); }

    void post(Job job);
    /// Runs the job after all that were given before, and waits for its end.
    void wait(const Job &job);
    /// Waits for the end of all jobs, and of the thread. Takes no more.
    void finish();

private:
    void work();

    std::mutex m_mutex;
    std::condition_variable m_changed;
    std::deque<Job> m_jobs;
    bool m_isEnding = false;
    std::thread m_thread;
};

} // namespace quillmark::history

// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "update/network/NetworkFeedSource.h"

#include "update/network/Download.h"

#include <utility>

namespace quillmark::update {

namespace {

/// How long the program may have to wait for a question that it gives up at its end.
constexpr std::chrono::milliseconds patience{500};

} // namespace

NetworkFeedSource::NetworkFeedSource(const FetchLimits &limits)
    : m_limits(limits)
{
    m_timer.setSingleShot(true);
    m_timer.callOnTimeout(&m_timer, [this] {
        end({.answer = std::unexpected(FetchError{FetchError::Reason::TimedOut, {}})});
    });
}

NetworkFeedSource::~NetworkFeedSource()
{
    cancel();
    for (const auto &thread : m_threads) {
        // One that the system keeps, looking for a proxy, is left to end with the process.
        if (thread && thread->wait(QDeadlineTimer(patience)))
            delete thread;
    }
}

void NetworkFeedSource::fetch(const FeedQuestion &question, const Done &done)
{
    cancel();
    m_done = done;
    m_threads.removeAll(nullptr);
    auto *thread = new QThread;
    m_threads.append(thread);
    auto *download = new Download(question, m_limits);
    download->moveToThread(thread);
    QObject::connect(thread, &QThread::started, download, &Download::start);
    QObject::connect(thread, &QThread::finished, download, &QObject::deleteLater);
    QObject::connect(thread, &QThread::finished, thread, &QObject::deleteLater);
    QObject::connect(download, &Download::finished, &m_timer, [this, thread](const FetchOutcome &outcome) {
        // What was given up, or asked before that, may still arrive.
        if (m_done && thread == m_threads.last())
            end(outcome);
    });
    m_timer.start(m_limits.time);
    thread->start();
}

void NetworkFeedSource::cancel()
{
    m_timer.stop();
    m_done = nullptr;
    if (!m_threads.isEmpty() && m_threads.last())
        m_threads.last()->quit();
}

void NetworkFeedSource::end(const FetchOutcome &outcome)
{
    const auto done = std::exchange(m_done, nullptr);
    cancel();
    if (done)
        done(outcome);
}

} // namespace quillmark::update

// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "app/QuitSignals.h"

#include <QSocketNotifier>

#include <array>
#include <atomic>
#include <cerrno>
#include <csignal>

#include <fcntl.h>
#include <unistd.h>

namespace quillmark::app {

namespace {

constexpr std::array quitSignals = {SIGTERM, SIGHUP, SIGINT};

std::atomic<int> waking = -1;

/// Writing is all that may be done while the program stands wherever it stood.
void wake(int)
{
    const int before = errno;
    [[maybe_unused]] const auto written = ::write(waking, "", 1);
    errno = before;
}

void handle(int signal, void (*handler)(int))
{
    struct sigaction action = {};
    if (::sigaction(signal, nullptr, &action) != 0 || action.sa_handler == SIG_IGN)
        return;
    action = {};
    action.sa_handler = handler;
    action.sa_flags = SA_RESTART | SA_RESETHAND;
    ::sigaction(signal, &action, nullptr);
}

} // namespace

QuitSignals::QuitSignals(QObject *parent)
    : QObject(parent)
    , m_pipe(platform::makePipe())
{
    if (!m_pipe.writingEnd)
        return; // the signals end the program as they would by themselves
    ::fcntl(m_pipe.writingEnd.number(), F_SETFL, O_NONBLOCK);
    auto *notifier = new QSocketNotifier(m_pipe.readingEnd.number(), QSocketNotifier::Read, this);
    connect(notifier, &QSocketNotifier::activated, this, [this, notifier] {
        notifier->setEnabled(false); // once is enough
        Q_EMIT quitAsked();
    });
    waking = m_pipe.writingEnd.number();
    for (const int signal : quitSignals)
        handle(signal, wake);
}

QuitSignals::~QuitSignals()
{
    for (const int signal : quitSignals)
        handle(signal, SIG_DFL);
    waking = -1;
}

} // namespace quillmark::app

// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "platform/linux/LinuxPathWatch.h"

#include "platform/linux/LinuxNetwork.h"

#include <array>
#include <cerrno>
#include <csignal>
#include <cstdint>
#include <optional>
#include <system_error>
#include <thread>
#include <utility>
#include <vector>

#include <linux/netlink.h>
#include <linux/rtnetlink.h>
#include <poll.h>
#include <sys/eventfd.h>
#include <sys/socket.h>
#include <unistd.h>

namespace quillmark::platform {

namespace {

/// One change of the network comes as a burst of notices; a router's table may change without a pause.
constexpr int settlingMilliseconds = 50;

/// A socket that gets notices of the kernel and sends nothing.
FileDescriptor noticeSocket()
{
    FileDescriptor socket(::socket(AF_NETLINK, SOCK_RAW | SOCK_CLOEXEC | SOCK_NONBLOCK, NETLINK_ROUTE));
    sockaddr_nl address = {};
    address.nl_family = AF_NETLINK;
    address.nl_groups =
        RTMGRP_LINK | RTMGRP_IPV4_IFADDR | RTMGRP_IPV6_IFADDR | RTMGRP_IPV4_ROUTE | RTMGRP_IPV6_ROUTE;
    if (!socket || ::bind(socket.number(), reinterpret_cast<const sockaddr *>(&address), sizeof address) != 0)
        return {};
    return socket;
}

/// Everything whose change is reported.
struct Situation
{
    std::optional<PathReading> path;
    std::vector<InterfaceEntry> interfaces; ///< without counters, which always change

    bool operator==(const Situation &) const = default;
};

Situation readSituation(const Files &files)
{
    Situation situation = {readPath(files), readInterfaces()};
    for (InterfaceEntry &entry : situation.interfaces) {
        entry.receivedBytes.reset();
        entry.sentBytes.reset();
    }
    return situation;
}

class LinuxPathWatch final : public PathWatch
{
public:
    LinuxPathWatch(const Files &files, Network::PathHandler handler, FileDescriptor notices,
                   FileDescriptor stop)
        : m_files(files)
        , m_handler(std::move(handler))
        , m_notices(std::move(notices))
        , m_stop(std::move(stop))
        , m_thread([this] { run(); })
    {}

    ~LinuxPathWatch() override
    {
        const std::uint64_t one = 1;
        while (::write(m_stop.number(), &one, sizeof one) < 0 && errno == EINTR) {
        }
        m_thread.join();
    }

    LinuxPathWatch(const LinuxPathWatch &) = delete;
    LinuxPathWatch &operator=(const LinuxPathWatch &) = delete;

private:
    void run()
    {
        Situation last = readSituation(m_files);
        report(last);
        while (waitForNotice()) {
            Situation now = readSituation(m_files);
            if (now == last)
                continue;
            last = std::move(now);
            report(last);
        }
    }

    void report(const Situation &situation)
    {
        m_handler(situation.path ? situation.path->path : NetworkPath());
    }

    /// Sleeps until something may have changed; false when the watch is to end.
    bool waitForNotice()
    {
        std::array<pollfd, 2> files = {{{m_stop.number(), POLLIN, 0}, {m_notices.number(), POLLIN, 0}}};
        while (::poll(files.data(), files.size(), -1) < 0 && errno == EINTR) {
        }
        if (files[0].revents != 0 || isStopped(settlingMilliseconds))
            return false;
        discardNotices();
        return true;
    }

    bool isStopped(int milliseconds) const
    {
        pollfd file = {m_stop.number(), POLLIN, 0};
        return ::poll(&file, 1, milliseconds) > 0;
    }

    /// What the notices say does not matter, as all is read again; nor that some were lost (ENOBUFS).
    void discardNotices()
    {
        std::array<char, 256> beginning; // NOLINT(cppcoreguidelines-pro-type-member-init): never looked at
        for (;;) {
            if (::recv(m_notices.number(), beginning.data(), beginning.size(), 0) >= 0 || errno == EINTR ||
                errno == ENOBUFS)
                continue;
            // poll() passes over a missing descriptor: a broken socket must not keep the thread busy.
            if (errno != EAGAIN)
                m_notices = FileDescriptor();
            return;
        }
    }

    Files m_files;
    Network::PathHandler m_handler;
    FileDescriptor m_notices;
    FileDescriptor m_stop;
    std::thread m_thread; ///< last: it uses all of the above
};

} // namespace

std::unique_ptr<PathWatch> startPathWatch(const Files &files, Network::PathHandler handler)
{
    FileDescriptor notices = noticeSocket();
    FileDescriptor stop(::eventfd(0, EFD_CLOEXEC));
    if (!notices || !stop)
        return nullptr;
    // The program's signals are for its own threads; a new thread inherits the mask.
    sigset_t all;
    sigset_t previous;
    ::sigfillset(&all);
    ::pthread_sigmask(SIG_SETMASK, &all, &previous);
    std::unique_ptr<PathWatch> watch;
    try {
        watch =
            std::make_unique<LinuxPathWatch>(files, std::move(handler), std::move(notices), std::move(stop));
    } catch (const std::system_error &) {
        watch.reset(); // there is no thread to be had
    }
    ::pthread_sigmask(SIG_SETMASK, &previous, nullptr);
    return watch;
}

} // namespace quillmark::platform

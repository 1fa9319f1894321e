// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "monitor/SystemSampler.h"
#include "platform/Machine.h"

#include <QCoreApplication>
#include <QProcess>
#include <QTest>

#include <algorithm>
#include <array>
#include <thread>

#include <linux/if_ether.h>
#include <linux/if_packet.h>
#include <net/if.h>
#include <sched.h>
#include <sys/socket.h>
#include <unistd.h>

using namespace quillmark;
using namespace Qt::StringLiterals;

namespace {

/// Whether this process has a network of its own, in which it may make interfaces.
bool hasOwnNetwork = false;

bool run(const QString &command)
{
    return QProcess::execute(u"/bin/sh"_s, {u"-c"_s, u"PATH=$PATH:/usr/sbin:/sbin; "_s + command}) == 0;
}

constexpr std::size_t frameBytes = 1000;

/// Sends whole frames over an interface.
void sendFrames(const char *interfaceName, int count)
{
    const int socket = ::socket(AF_PACKET, SOCK_RAW | SOCK_CLOEXEC, 0);
    sockaddr_ll target = {};
    target.sll_family = AF_PACKET;
    target.sll_ifindex = static_cast<int>(::if_nametoindex(interfaceName));
    std::array<char, frameBytes> frame = {};
    std::fill_n(frame.begin(), 6, '\xff'); // to everybody
    for (int i = 0; i < count; ++i)
        QCOMPARE(::sendto(socket, frame.data(), frame.size(), 0, reinterpret_cast<sockaddr *>(&target),
                          sizeof target),
                 ssize_t(frame.size()));
    ::close(socket);
}

/// The rates as bytes since the sample before.
std::pair<double, double> bytesSince(const monitor::MonitorSample &before, const monitor::MonitorSample &now)
{
    const double seconds = monitor::secondsBetween(before.date, now.date);
    return {now.networkInPerSecond * seconds, now.networkOutPerSecond * seconds};
}

} // namespace

/// What the kernel of this machine says while something happens on it.
class LiveCountersTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void busyCoreShows();
    void network();
};

void LiveCountersTest::busyCoreShows()
{
    const auto machine = platform::thisMachine();
    monitor::SystemSampler sampler(*machine);
    sampler.prime();
    const auto start = std::chrono::system_clock::now();
    // By its own clock, so that it takes as many ticks as are waited for, however busy the machine is.
    std::thread load([&] {
        timespec used = {};
        while (used.tv_sec < 1)
            ::clock_gettime(CLOCK_THREAD_CPUTIME_ID, &used);
    });
    load.join();
    const auto sample = sampler.sample();
    const double seconds = std::chrono::duration<double>(sample.date - start).count();
    const auto cores = static_cast<double>(sample.perCoreUsage.size());
    QVERIFY(cores >= 1);
    // A second of one core at least, but for the ticks at both ends.
    QVERIFY2(sample.cpuUsage * cores * seconds > 0.8, qPrintable(QString::number(sample.cpuUsage)));
    QVERIFY(std::ranges::max(sample.perCoreUsage) >= sample.cpuUsage);
}

void LiveCountersTest::network()
{
    if (!hasOwnNetwork)
        QSKIP("this user may not make a network namespace");
    if (!run(u"ip link set lo up && ip link add cable0 type veth peer name cable1 && "
             "sysctl -qw net.ipv6.conf.all.disable_ipv6=1; ip link set cable0 up && ip link set cable1 up"_s))
        QSKIP("no ip(8) that makes a pair of interfaces");
    const auto machine = platform::thisMachine();
    monitor::SystemSampler sampler(*machine);
    QTest::qSleep(250);
    sampler.prime();
    QTest::qSleep(250);
    const auto quiet = sampler.sample();

    sendFrames("lo", 1000);
    QTest::qSleep(250);
    const auto afterLoopback = sampler.sample();
    // Some words of the kernel's own may pass over the cable at any time.
    QVERIFY(bytesSince(quiet, afterLoopback).first < 100 * frameBytes);

    sendFrames("cable0", 1000);
    QTest::qSleep(250);
    const auto afterCable = sampler.sample();
    const auto [in, out] = bytesSince(afterLoopback, afterCable);
    for (const double bytes : {in, out})
        QVERIFY2(bytes > 990.0 * frameBytes && bytes < 1100.0 * frameBytes,
                 qPrintable(QString::number(bytes)));

    // One end is taken down, and another cable comes.
    QVERIFY(
        run(u"ip link set cable1 down && ip link add late0 type veth peer name late1 && ip link set late0 up "
            "&& ip link set late1 up"_s));
    QTest::qSleep(250);
    const auto afterChange = sampler.sample();
    sendFrames("late0", 500);
    QTest::qSleep(250);
    const auto last = sampler.sample();
    QVERIFY(bytesSince(afterChange, last).first > 495.0 * frameBytes);
}

int main(int argc, char **argv)
{
    // Before there is any other thread: each has its namespaces for itself.
    hasOwnNetwork = ::unshare(CLONE_NEWNET) == 0 || ::unshare(CLONE_NEWUSER | CLONE_NEWNET) == 0;
    const QCoreApplication application(argc, argv);
    LiveCountersTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "LiveCountersTest.moc"

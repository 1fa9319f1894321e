// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "platform/macos/MacNetwork.h"

#include "check.h"
#include "kernel.h"
#include "platform/macos/wifi.h"

#include <cstring>
#include <set>

#include <Network/Network.h>
#include <netinet/in.h>

namespace quillmark::platform {

WifiReading readWifi()
{
    return {};
}

} // namespace quillmark::platform

// One queue that is always idle, one monitor, and a path of which a test sets everything.
struct nw_path
{
    int status = 1;
    bool isExpensive = true;
    bool isConstrained = false;
    bool hasIPv4 = true;
    bool hasIPv6 = false;
    bool hasDNS = true;
    std::set<int> types;
};

namespace {

nw_path path;
bool isReported = true;
bool isSignalled = false;
nw_path_monitor_update_handler_t update;
long objects = 0; ///< not given back

void (^copied(void (^block)(nw_path_t)))(nw_path_t);

} // namespace

extern "C" {

nw_path_monitor_t nw_path_monitor_create()
{
    ++objects;
    return reinterpret_cast<nw_path_monitor_t>(&objects);
}
void nw_path_monitor_set_queue(nw_path_monitor_t, dispatch_queue_t) {}
void nw_path_monitor_set_update_handler(nw_path_monitor_t, nw_path_monitor_update_handler_t handler)
{
    update = copied(handler);
}
void nw_path_monitor_start(nw_path_monitor_t)
{
    if (isReported)
        update(&path);
}
void nw_path_monitor_cancel(nw_path_monitor_t) {}
void nw_release(void *)
{
    --objects;
}
nw_path_status_t nw_path_get_status(nw_path_t path)
{
    return static_cast<nw_path_status_t>(path->status);
}
bool nw_path_is_expensive(nw_path_t path)
{
    return path->isExpensive;
}
bool nw_path_is_constrained(nw_path_t path)
{
    return path->isConstrained;
}
bool nw_path_has_ipv4(nw_path_t path)
{
    return path->hasIPv4;
}
bool nw_path_has_ipv6(nw_path_t path)
{
    return path->hasIPv6;
}
bool nw_path_has_dns(nw_path_t path)
{
    return path->hasDNS;
}
bool nw_path_uses_interface_type(nw_path_t path, nw_interface_type_t type)
{
    return path->types.contains(type);
}

dispatch_queue_t dispatch_queue_create(const char *, dispatch_queue_attr_t)
{
    ++objects;
    return reinterpret_cast<dispatch_queue_t>(&objects);
}
dispatch_semaphore_t dispatch_semaphore_create(intptr_t)
{
    ++objects;
    isSignalled = false;
    return reinterpret_cast<dispatch_semaphore_t>(&objects);
}
void dispatch_release(dispatch_object_t)
{
    --objects;
}
void dispatch_sync(dispatch_queue_t, DISPATCH_NOESCAPE dispatch_block_t block)
{
    block();
}
dispatch_time_t dispatch_time(dispatch_time_t, int64_t delta)
{
    return static_cast<dispatch_time_t>(delta);
}
intptr_t dispatch_semaphore_signal(dispatch_semaphore_t)
{
    isSignalled = true;
    return 0;
}
intptr_t dispatch_semaphore_wait(dispatch_semaphore_t, dispatch_time_t limit)
{
    CHECK(limit == NSEC_PER_SEC);
    return !isSignalled;
}
int _NSConcreteStackBlock[32];
int _NSConcreteGlobalBlock[32];
}

namespace {

/// What the blocks' runtime does: the literal's bytes, then its own helper for what it captured.
void (^copied(void (^block)(nw_path_t)))(nw_path_t)
{
    struct Descriptor
    {
        unsigned long reserved;
        unsigned long size;
        void (*copy)(void *, const void *);
    };
    const auto *literal = reinterpret_cast<const std::uint64_t *>((const void *)block);
    const auto *descriptor = reinterpret_cast<const Descriptor *>(literal[3]);
    void *copy = std::malloc(descriptor->size);
    std::memcpy(copy, literal, descriptor->size);
    descriptor->copy(copy, literal);
    return (void (^)(nw_path_t))copy;
}

} // namespace

using namespace quillmark::platform;

namespace {

void currentPath()
{
    path.types = {nw_interface_type_other, nw_interface_type_wifi, nw_interface_type_wired};
    CHECK(MacNetwork().currentPath() ==
          NetworkPath{.status = NetworkPath::Status::Satisfied,
                      .isExpensive = true,
                      .interfaceTypes = {InterfaceType::Wifi, InterfaceType::Wired, InterfaceType::Other},
                      .supportsIPv4 = true,
                      .supportsDNS = true});
    path = {.status = 2, .hasIPv6 = true, .types = {nw_interface_type_cellular, nw_interface_type_loopback}};
    const auto read = MacNetwork().currentPath();
    CHECK(read->status == NetworkPath::Status::Unsatisfied && read->supportsIPv6);
    CHECK(read->interfaceTypes == std::vector{InterfaceType::Cellular, InterfaceType::Loopback});
    path.status = 3;
    CHECK(MacNetwork().currentPath()->status == NetworkPath::Status::Satisfiable);
    path.status = 9;
    CHECK(MacNetwork().currentPath()->status == NetworkPath::Status::Invalid);
    isReported = false;
    CHECK(!MacNetwork().currentPath());
    CHECK(objects == 0);
}

void watch()
{
    int reports = 0;
    auto watch = MacNetwork().watchPath([&reports](const NetworkPath &) { ++reports; });
    update(&path);
    update(&path);
    CHECK(reports == 2);
    // One that was on its way when the watch ended.
    watch.reset();
    update(&path);
    CHECK(reports == 2 && objects == 0);
}

void interfaces()
{
    sockaddr_in internet = {.sin_len = sizeof internet, .sin_family = 2, .sin_addr = {0x110200c0}};
    sockaddr_in6 internet6 = {.sin6_len = sizeof internet6, .sin6_family = 30};
    internet6.sin6_addr.s6_addr[15] = 1;
    sockaddr link = {.sa_len = sizeof link, .sa_family = 18};
    sockaddr other = {.sa_len = sizeof other, .sa_family = 10};
    char name[] = "en0";
    char loopback[] = "lo0";
    standin::interfaces = {
        {.ifa_name = name, .ifa_flags = 1, .ifa_addr = &link},
        {.ifa_name = name, .ifa_flags = 1, .ifa_addr = nullptr},
        {.ifa_name = name, .ifa_flags = 1, .ifa_addr = &other},
        {.ifa_name = name, .ifa_addr = reinterpret_cast<sockaddr *>(&internet)},
        {.ifa_name = loopback, .ifa_flags = 9, .ifa_addr = reinterpret_cast<sockaddr *>(&internet6)}};
    const std::vector<InterfaceEntry> expected = {
        {.name = "en0", .up = true},
        {.name = "en0", .family = AddressFamily::IPv4, .address = "192.0.2.17"},
        {.name = "lo0",
         .family = AddressFamily::IPv6,
         .up = true,
         .loopback = true,
         .address = "0.0.0.0.0.0.0.0.0.0.0.0.0.0.0.1"}};
    CHECK(MacNetwork().interfaces() == expected);
    CHECK(standin::interfaceLists == 0);
    standin::interfacesAreTold = false;
    CHECK(MacNetwork().interfaces().empty());
}

} // namespace

int main()
{
    currentPath();
    watch();
    interfaces();
    return standin::result();
}

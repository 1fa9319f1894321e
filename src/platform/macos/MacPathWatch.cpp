// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "platform/macos/MacPathWatch.h"

#include <algorithm>
#include <array>
#include <utility>

#include <Network/Network.h>
#include <dispatch/dispatch.h>

namespace quillmark::platform {

namespace {

NetworkPath::Status statusOf(nw_path_t path)
{
    switch (::nw_path_get_status(path)) {
    case nw_path_status_satisfied:
        return NetworkPath::Status::Satisfied;
    case nw_path_status_unsatisfied:
        return NetworkPath::Status::Unsatisfied;
    case nw_path_status_satisfiable:
        return NetworkPath::Status::Satisfiable;
    case nw_path_status_invalid:
        break;
    }
    return NetworkPath::Status::Invalid;
}

NetworkPath describe(nw_path_t path)
{
    constexpr std::array<std::pair<nw_interface_type_t, InterfaceType>, 5> types = {
        {{nw_interface_type_wifi, InterfaceType::Wifi},
         {nw_interface_type_wired, InterfaceType::Wired},
         {nw_interface_type_cellular, InterfaceType::Cellular},
         {nw_interface_type_loopback, InterfaceType::Loopback},
         {nw_interface_type_other, InterfaceType::Other}}};
    NetworkPath description = {.status = statusOf(path),
                               .isExpensive = ::nw_path_is_expensive(path),
                               .isConstrained = ::nw_path_is_constrained(path),
                               .supportsIPv4 = ::nw_path_has_ipv4(path),
                               .supportsIPv6 = ::nw_path_has_ipv6(path),
                               .supportsDNS = ::nw_path_has_dns(path)};
    for (const auto &[theirs, ours] : types) {
        if (::nw_path_uses_interface_type(path, theirs))
            description.interfaceTypes.push_back(ours);
    }
    return description;
}

class MacPathWatch final : public PathWatch
{
public:
    MacPathWatch(nw_path_monitor_t monitor, Network::PathHandler handler)
        : m_monitor(monitor)
        , m_queue(::dispatch_queue_create("com.tarnwick.Quillmark.PathWatch", DISPATCH_QUEUE_SERIAL))
        , m_state(std::make_shared<State>(std::move(handler)))
    {
        // The monitor keeps the block, and may call it once more after it was cancelled.
        const auto state = m_state;
        ::nw_path_monitor_set_queue(m_monitor, m_queue);
        ::nw_path_monitor_set_update_handler(m_monitor, ^(nw_path_t path) {
          if (!state->isEnded)
              state->handler(describe(path));
        });
        ::nw_path_monitor_start(m_monitor);
    }

    ~MacPathWatch() override
    {
        ::nw_path_monitor_cancel(m_monitor);
        // The queue calls one at a time: after this no call runs and none will do anything.
        const auto state = m_state;
        ::dispatch_sync(m_queue, ^{
          state->isEnded = true;
        });
        ::nw_release(m_monitor);
        ::dispatch_release(m_queue);
    }

    MacPathWatch(const MacPathWatch &) = delete;
    MacPathWatch &operator=(const MacPathWatch &) = delete;

private:
    /// Touched on the queue alone.
    struct State
    {
        explicit State(Network::PathHandler called)
            : handler(std::move(called))
        {}

        Network::PathHandler handler;
        bool isEnded = false;
    };

    nw_path_monitor_t m_monitor;
    dispatch_queue_t m_queue;
    std::shared_ptr<State> m_state;
};

} // namespace

std::unique_ptr<PathWatch> startPathWatch(Network::PathHandler handler)
{
    const nw_path_monitor_t monitor = ::nw_path_monitor_create();
    return monitor ? std::make_unique<MacPathWatch>(monitor, std::move(handler)) : nullptr;
}

} // namespace quillmark::platform

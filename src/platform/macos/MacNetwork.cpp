// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "platform/macos/MacNetwork.h"

#include "platform/macos/MacPathWatch.h"
#include "platform/macos/interfaces.h"
#include "platform/macos/wifi.h"

#include <utility>

#include <dispatch/dispatch.h>

namespace quillmark::platform {

std::vector<InterfaceEntry> MacNetwork::interfaces() const
{
    return readInterfaces(InterfaceEntries::All);
}

std::optional<NetworkPath> MacNetwork::currentPath() const
{
    const dispatch_semaphore_t reported = ::dispatch_semaphore_create(0);
    std::optional<NetworkPath> first;
    {
        const auto watch = startPathWatch([&first, reported](const NetworkPath &path) {
            if (!first) {
                first = path;
                ::dispatch_semaphore_signal(reported);
            }
        });
        const auto second = static_cast<std::int64_t>(NSEC_PER_SEC);
        if (watch)
            ::dispatch_semaphore_wait(reported, ::dispatch_time(DISPATCH_TIME_NOW, second));
    }
    // The watch has ended: nothing else touches the path or the semaphore.
    ::dispatch_release(reported);
    return first;
}

std::optional<WifiReading> MacNetwork::wifi() const
{
    return readWifi();
}

std::unique_ptr<PathWatch> MacNetwork::watchPath(PathHandler handler) const
{
    return startPathWatch(std::move(handler));
}

} // namespace quillmark::platform

// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace quillmark::platform {

enum class AddressFamily { Link, IPv4, IPv6 };

/// One entry of getifaddrs(3): an interface has one of family Link and any number of addresses.
struct InterfaceEntry
{
    std::string name;
    AddressFamily family = AddressFamily::Link;
    bool up = false;
    bool loopback = false;
    std::optional<std::string> address;         ///< numeric; none for Link
    std::optional<std::uint32_t> receivedBytes; ///< Link only; wraps at 2³²
    std::optional<std::uint32_t> sentBytes;     ///< Link only; wraps at 2³²

    bool operator==(const InterfaceEntry &) const = default;
};

enum class InterfaceType { Other, Wifi, Cellular, Wired, Loopback };

/// The way out of this machine that the system would take now (nw_path_t).
struct NetworkPath
{
    enum class Status { Invalid, Satisfied, Unsatisfied, Satisfiable };

    Status status = Status::Invalid;
    bool isExpensive = false;
    bool isConstrained = false;
    std::vector<InterfaceType> interfaceTypes; ///< those that the path uses
    bool supportsIPv4 = false;
    bool supportsIPv6 = false;
    bool supportsDNS = false;

    bool operator==(const NetworkPath &) const = default;
};

/// Watches the path for as long as it lives. After its destructor has returned, the handler is not called any more.
class PathWatch
{
public:
    virtual ~PathWatch() = default;
};

class Network
{
public:
    /// Called on a thread of the system's choosing, one call at a time; must not end its own watch.
    using PathHandler = std::function<void(const NetworkPath &)>;

    virtual ~Network() = default;

    /// In the system's order. Empty when the list cannot be had.
    virtual std::vector<InterfaceEntry> interfaces() const = 0;

    /// The path at this moment; none when the system does not tell within a second.
    virtual std::optional<NetworkPath> currentPath() const = 0;

    /// Reports the path once soon after the call, then each time it changes. Sends no packet. Null when the system offers
    /// no such thing.
    virtual std::unique_ptr<PathWatch> watchPath(PathHandler handler) const = 0;
};

} // namespace quillmark::platform

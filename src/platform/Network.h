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

/// A Wi-Fi interface, without the names of networks.
struct WifiReading
{
    bool isPresent = false; ///< the machine has Wi-Fi
    std::optional<bool> powerOn;
    std::optional<int> activePHYMode; ///< CoreWLAN's number: 4 for 802.11n, 5 ac, 6 ax, 7 be; 1 to 3 a, b, g
    std::optional<int> channelBand;   ///< 1 for 2.4 GHz, 2 for 5, 3 for 6
    std::optional<int> rssi;          ///< dBm; 0 when there is no signal
    std::optional<double> transmitRate; ///< Mbit/s

    bool operator==(const WifiReading &) const = default;
};

/// A wired interface that is linked.
struct LinkReading
{
    std::string name;
    std::optional<std::int64_t> speed; ///< Mbit/s
    std::optional<std::string> duplex; ///< "full", "half"

    bool operator==(const LinkReading &) const = default;
};

struct BluetoothReading
{
    bool isPresent = false;
    bool isBlocked = false; ///< switched off by software or a key

    bool operator==(const BluetoothReading &) const = default;
};

/// Watches the path for as long as it lives. After its destructor has returned, the handler is not called any
/// more.
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

    /// None when it cannot be told whether there is Wi-Fi.
    virtual std::optional<WifiReading> wifi() const = 0;

    /// Linux alone: the wired interfaces of real hardware.
    virtual std::vector<LinkReading> ethernetLinks() const = 0;

    /// Linux alone: on a Mac asking would prompt.
    virtual std::optional<BluetoothReading> bluetooth() const = 0;

    /// Reports the path once soon after the call, then each time it changes. Sends no packet. Null when the
    /// system offers no such thing.
    virtual std::unique_ptr<PathWatch> watchPath(PathHandler handler) const = 0;
};

} // namespace quillmark::platform

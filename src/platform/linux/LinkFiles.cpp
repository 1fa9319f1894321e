// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "platform/linux/LinkFiles.h"

#include "platform/linux/TextFields.h"

#include <algorithm>
#include <cstdint>

#include <net/if_arp.h>

namespace quillmark::platform {

namespace {

constexpr std::string_view interfaceFolder = "/sys/class/net/";

/// The switches of one kind of radio: of the adapters themselves, and of the machine's keys for them.
struct RadioSwitches
{
    std::size_t count = 0;
    std::size_t blocked = 0;
    std::size_t unknown = 0;
};

RadioSwitches readSwitches(const Files &files, std::string_view radio)
{
    constexpr std::string_view folder = "/sys/class/rfkill/";
    RadioSwitches switches;
    for (const std::string &name : files.names(folder)) {
        const std::string path = std::string(folder) + name;
        if (files.value(path + "/type") != radio)
            continue;
        ++switches.count;
        const auto soft = files.number(path + "/soft");
        const auto hard = files.number(path + "/hard");
        if (soft == 1 || hard == 1)
            ++switches.blocked;
        else if (!soft || !hard)
            ++switches.unknown;
    }
    return switches;
}

/// One adapter may be switched off to use another, so that only all of them together are off.
std::optional<bool> isBlocked(const RadioSwitches &switches)
{
    if (switches.count > 0 && switches.blocked == switches.count)
        return true;
    return switches.unknown > 0 ? std::nullopt : std::optional(false);
}

/// A cable is in, and something answers at its other end.
bool isLinked(const Files &files, const std::string &folder)
{
    return files.number(folder + "carrier") == 1;
}

} // namespace

std::string interfaceLabel(std::string_view interfaceName)
{
    constexpr std::size_t letters = 3; // the kind of network and an x
    constexpr std::size_t digits = 12;
    const bool hasAddress = interfaceName.size() == letters + digits && interfaceName[letters - 1] == 'x' &&
                            parseNumber<std::uint64_t>(interfaceName.substr(letters), 16).has_value();
    return std::string(hasAddress ? interfaceName.substr(0, letters) : interfaceName);
}

InterfaceType interfaceType(const Files &files, const std::string &interfaceName)
{
    const std::string folder = std::string(interfaceFolder) + interfaceName + "/";
    const std::string uevent = files.value(folder + "uevent").value_or(std::string());
    const auto deviceType = assignedValue(uevent, "DEVTYPE");
    if (deviceType == "wlan" || files.exists(folder + "phy80211"))
        return InterfaceType::Wifi;
    if (deviceType == "wwan")
        return InterfaceType::Cellular;
    const auto hardware = files.number(folder + "type");
    if (hardware == ARPHRD_LOOPBACK)
        return InterfaceType::Loopback;
    // A tunnel of whole frames and a bridge call themselves Ethernet too.
    if (hardware == ARPHRD_ETHER && !files.exists(folder + "tun_flags") && !files.exists(folder + "bridge"))
        return InterfaceType::Wired;
    return InterfaceType::Other;
}

std::optional<int> parseSignal(std::string_view text)
{
    // What a level of 0 becomes, which stands for none.
    constexpr int noLevel = -256;
    std::optional<int> strongest;
    while (!text.empty()) {
        // Interface, status, quality of the link, level, noise, …; a dot marks a fresh figure.
        std::string_view line = takeUntil(text, '\n');
        const bool isInterface = takeWord(line).ends_with(':');
        takeWord(line);
        takeWord(line);
        std::string_view word = takeWord(line);
        const auto level = parseNumber<int>(takeUntil(word, '.'));
        if (isInterface && level && *level < 0 && *level > noLevel)
            strongest = std::max(strongest.value_or(*level), *level);
    }
    return strongest;
}

std::optional<WifiReading> readWifi(const Files &files)
{
    const auto names = files.names(interfaceFolder);
    if (names.empty())
        return std::nullopt;
    const auto isWifi = [&files](const std::string &name) {
        return files.exists(std::string(interfaceFolder) + name + "/phy80211");
    };
    WifiReading wifi;
    const bool hasInterface = std::ranges::any_of(names, isWifi);
    const auto blocked = isBlocked(readSwitches(files, "wlan"));
    // A key of the machine may take the adapter off its bus; its switch stays.
    wifi.isPresent = hasInterface || blocked == true;
    if (wifi.isPresent && blocked)
        wifi.powerOn = !*blocked;
    if (hasInterface)
        wifi.rssi = parseSignal(files.text("/proc/net/wireless").value_or(std::string()));
    return wifi;
}

std::vector<LinkReading> readEthernetLinks(const Files &files)
{
    auto names = files.names(interfaceFolder);
    std::ranges::sort(names);
    std::vector<LinkReading> links;
    for (const std::string &name : names) {
        const std::string folder = std::string(interfaceFolder) + name + "/";
        if (files.exists(folder + "device") && isLinked(files, folder) &&
            interfaceType(files, name) == InterfaceType::Wired)
            links.push_back(
                {interfaceLabel(name), files.number(folder + "speed"), files.value(folder + "duplex")});
    }
    return links;
}

std::optional<BluetoothReading> readBluetooth(const Files &files)
{
    if (!files.exists("/sys/class"))
        return std::nullopt;
    const bool hasAdapter = !files.names("/sys/class/bluetooth", "hci").empty();
    const auto blocked = isBlocked(readSwitches(files, "bluetooth"));
    if (hasAdapter && !blocked)
        return std::nullopt;
    return BluetoothReading{.isPresent = hasAdapter || blocked == true, .isBlocked = blocked == true};
}

} // namespace quillmark::platform

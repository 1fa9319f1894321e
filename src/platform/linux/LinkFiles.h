// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/Network.h"
#include "platform/linux/Files.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quillmark::platform {

/// The name as it may be told. One that was made of the adapter's hardware address ("enx001122334455") is cut
/// down to the letters before it.
std::string interfaceLabel(std::string_view interfaceName);

InterfaceType interfaceType(const Files &files, const std::string &interfaceName);

/// The strongest signal in /proc/net/wireless, in dBm. None where nothing is received, or where the driver
/// tells it in a unit of its own.
std::optional<int> parseSignal(std::string_view text);

/// Whether there is Wi-Fi, switched on or off, and the signal. None when the kernel does not list interfaces.
std::optional<WifiReading> readWifi(const Files &files);

/// By name.
std::vector<LinkReading> readEthernetLinks(const Files &files);

/// None when the kernel does not list its devices.
std::optional<BluetoothReading> readBluetooth(const Files &files);

} // namespace quillmark::platform

// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/Network.h"
#include "platform/linux/Files.h"

#include <string>
#include <vector>

namespace quillmark::platform {

/// The interfaces of this machine and their addresses.
std::vector<InterfaceEntry> readInterfaces();

/// The path with what it goes over.
struct PathReading
{
    NetworkPath path;
    std::vector<std::string> interfaceNames;

    bool operator==(const PathReading &) const = default;
};

/// None when there is no table of routes to read.
std::optional<PathReading> readPath(const Files &files);

class LinuxNetwork final : public Network
{
public:
    explicit LinuxNetwork(const Files &files);

    std::vector<InterfaceEntry> interfaces() const override;
    std::optional<NetworkPath> currentPath() const override;
    std::optional<WifiReading> wifi() const override;
    std::vector<LinkReading> ethernetLinks() const override;
    std::optional<BluetoothReading> bluetooth() const override;
    std::unique_ptr<PathWatch> watchPath(PathHandler handler) const override;

private:
    Files m_files;
};

} // namespace quillmark::platform

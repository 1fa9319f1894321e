// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/Network.h"

namespace quillmark::platform {

class MacNetwork final : public Network
{
public:
    std::vector<InterfaceEntry> interfaces() const override;
    std::optional<NetworkPath> currentPath() const override;
    std::optional<WifiReading> wifi() const override;
    std::vector<LinkReading> ethernetLinks() const override { return {}; }
    std::optional<BluetoothReading> bluetooth() const override { return std::nullopt; }
    std::unique_ptr<PathWatch> watchPath(PathHandler handler) const override;
};

} // namespace quillmark::platform

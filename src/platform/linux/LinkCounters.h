// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/Network.h"
#include "platform/linux/Files.h"

#include <string>
#include <string_view>
#include <vector>

namespace quillmark::platform {

/// A line of /proc/net/dev.
struct LinkBytes
{
    std::string_view name;      ///< refers to the text
    std::uint32_t received = 0; ///< cut from the kernel's 64 bits
    std::uint32_t sent = 0;
};

/// Lines of another form are left out.
std::vector<LinkBytes> parseLinkTable(std::string_view text);

/// The byte counters of the network interfaces, again and again at little cost: getifaddrs(3) has the kernel
/// write out all that it knows of every interface and of every address.
///
/// The interfaces are those of the network namespace that the process was in when this was made.
class LinkCounters
{
public:
    explicit LinkCounters(const Files &files);

    /// One entry of family Link for each, with its whole name. One that has gone meanwhile is not up.
    std::vector<InterfaceEntry> read();

private:
    HeldFile m_table;
    FileDescriptor m_socket; ///< for questions about an interface; bound to nothing
};

} // namespace quillmark::platform

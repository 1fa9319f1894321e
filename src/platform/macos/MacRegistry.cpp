// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "platform/macos/MacRegistry.h"

#include "platform/macos/ioRegistry.h"

#include <string>

namespace quillmark::platform {

std::vector<PropertyMap> MacRegistry::services(std::string_view classOrPath) const
{
    const std::string name(classOrPath);
    std::vector<PropertyMap> found;
    // A path begins with its plane; no class has a colon in its name.
    if (name.find(':') != std::string::npos) {
        if (const io::Object entry = io::entryAtPath(name))
            found.push_back(io::properties(entry));
        return found;
    }
    for (const io::Object &service : io::servicesOfClass(name))
        found.push_back(io::properties(service));
    return found;
}

} // namespace quillmark::platform

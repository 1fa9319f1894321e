// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "platform/macos/powerSources.h"

#include "platform/macos/cf.h"

#include <IOKit/ps/IOPowerSources.h>

namespace quillmark::platform {

std::optional<std::vector<PropertyMap>> readPowerSources()
{
    const cf::Owner information(::IOPSCopyPowerSourcesInfo());
    if (!information)
        return std::nullopt;
    const cf::Owner list(::IOPSCopyPowerSourcesList(information.get()));
    if (!list)
        return std::nullopt;
    std::vector<PropertyMap> sources;
    for (CFIndex i = 0; i < ::CFArrayGetCount(list.get()); ++i) {
        // Belongs to the information.
        const CFDictionaryRef source =
            ::IOPSGetPowerSourceDescription(information.get(), ::CFArrayGetValueAtIndex(list.get(), i));
        if (source)
            sources.push_back(cf::propertyMap(source));
    }
    return sources;
}

} // namespace quillmark::platform

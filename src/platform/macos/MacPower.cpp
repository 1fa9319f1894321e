// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "platform/macos/MacPower.h"

#include "platform/macos/cf.h"
#include "platform/macos/powerReport.h"
#include "platform/macos/powerSources.h"
#include "platform/macos/processInformation.h"

#include <IOKit/ps/IOPowerSources.h>

namespace quillmark::platform {

std::optional<std::vector<PropertyMap>> MacPower::powerSources() const
{
    return readPowerSources();
}

PowerSettings MacPower::settings() const
{
    PowerSettings settings = {.lowPowerModeEnabled = isLowPowerModeEnabled()};
    // The word belongs to the information.
    if (const cf::Owner information(::IOPSCopyPowerSourcesInfo()); information)
        settings.providingSource = cf::text(::IOPSGetProvidingPowerSourceType(information.get()));
    if (const cf::Owner adapter(::IOPSCopyExternalPowerAdapterDetails()); adapter)
        settings.externalAdapter = cf::propertyMap(adapter.get());
    return settings;
}

std::optional<PropertyMap> MacPower::powerReport() const
{
    return readPowerReport();
}

} // namespace quillmark::platform

// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "platform/macos/MacRegistry.h"

#include "check.h"
#include "ioKit.h"
#include "platform/macos/MacPower.h"
#include "platform/macos/powerReport.h"
#include "platform/macos/processInformation.h"

#include <IOKit/ps/IOPowerSources.h>

namespace quillmark::platform {

bool isLowPowerModeEnabled()
{
    return true;
}

std::optional<PropertyMap> readPowerReport()
{
    return std::nullopt;
}

} // namespace quillmark::platform

namespace {

std::map<std::string, CFTypeRef> (*describeAdapter)() = nullptr;
bool sourcesAreTold = true;
std::vector<std::map<std::string, CFTypeRef> (*)()> sources;

/// The information owns the descriptions that it hands out.
CFArrayRef information = nullptr;

} // namespace

extern "C" {

CFTypeRef IOPSCopyPowerSourcesInfo()
{
    if (!sourcesAreTold)
        return nullptr;
    std::vector<CFTypeRef> descriptions;
    for (const auto &source : sources)
        descriptions.push_back(standin::dictionary(source()));
    return information = standin::array(std::move(descriptions));
}
CFArrayRef IOPSCopyPowerSourcesList(CFTypeRef)
{
    std::vector<CFTypeRef> names;
    for (std::size_t i = 0; i <= sources.size(); ++i)
        names.push_back(standin::number(static_cast<long long>(i)));
    return standin::array(std::move(names));
}
CFDictionaryRef IOPSGetPowerSourceDescription(CFTypeRef, CFTypeRef source)
{
    long long number = 0;
    CFNumberGetValue(static_cast<CFNumberRef>(source), kCFNumberSInt64Type, &number);
    // The last of the list has been unplugged since.
    if (number == static_cast<long long>(sources.size()))
        return nullptr;
    return static_cast<CFDictionaryRef>(CFArrayGetValueAtIndex(information, number));
}
CFStringRef IOPSGetProvidingPowerSourceType(CFTypeRef)
{
    return CFSTR("AC Power");
}
CFDictionaryRef IOPSCopyExternalPowerAdapterDetails()
{
    return describeAdapter ? standin::dictionary(describeAdapter()) : nullptr;
}
}

using namespace quillmark::platform;
using standin::boolean;
using standin::number;
using standin::text;

namespace {

std::map<std::string, CFTypeRef> battery()
{
    return {
        {"Amperage", number(-2878)},
        {"BatteryData", standin::dictionary({{"CycleCount", number(112)}, {"Voltage", standin::real(12.5)}})},
        {"FullyCharged", boolean(false)},
        {"IsCharging", number(1)},
        {"Role", standin::array({text("System"), standin::other(), boolean(true)})},
        {"Serial", text("C0FFEE")},
        {"UpdateTime", standin::other()},
        {"Variable", standin::data(std::string("\x02\0", 2))}};
}

std::map<std::string, CFTypeRef> none()
{
    return {};
}

void registry()
{
    standin::entries = {{.className = "AppleSmartBattery", .properties = battery},
                        {.className = "AppleSEPManager", .properties = none},
                        {.className = "AppleSEPManager"},
                        {.className = "Options", .path = "IODeviceTree:/options", .properties = battery}};
    const MacRegistry registry;
    const auto found = registry.services("AppleSmartBattery");
    CHECK(found.size() == 1);
    const PropertyMap &service = found.front();
    CHECK(service.size() == 8);
    CHECK(get<std::int64_t>(service, "Amperage") == -2878);
    CHECK(get<bool>(service, "FullyCharged") == false);
    // Each is what it is, and nothing that it could be taken for.
    CHECK(!get<bool>(service, "IsCharging") && !get<std::int64_t>(service, "FullyCharged"));
    CHECK(get<std::int64_t>(service, "IsCharging") == 1);
    CHECK(get<Bytes>(service, "Variable") == Bytes{std::byte{2}, std::byte{0}});
    CHECK(std::holds_alternative<std::nullptr_t>(service.at("UpdateTime").value));
    const auto *data = find<PropertyMap>(service, "BatteryData");
    CHECK(data && get<std::int64_t>(*data, "CycleCount") == 112 && get<double>(*data, "Voltage") == 12.5);
    const auto *roles = find<PropertyList>(service, "Role");
    CHECK(roles && roles->size() == 3 && std::get<std::string>(roles->front().value) == "System");

    // A service without properties is one all the same.
    CHECK(registry.services("AppleSEPManager") == std::vector<PropertyMap>(2));
    CHECK(registry.services("AGXAccelerator").empty());
    CHECK(registry.services("IODeviceTree:/options").size() == 1);
    CHECK(registry.services("IODeviceTree:/efi/platform").empty());
    CHECK(registry.services("IODeviceTree:/" + std::string(600, 'x')).empty());
}

void power()
{
    const MacPower power;
    CHECK(power.powerSources() == std::vector<PropertyMap>());
    sources = {[] -> std::map<std::string, CFTypeRef> {
                   return {{"Type", text("UPS")}};
               },
               [] -> std::map<std::string, CFTypeRef> {
                   return {{"Type", text("InternalBattery")}, {"Current Capacity", number(80)}};
               }};
    const auto read = power.powerSources();
    CHECK(read && read->size() == 2 && get<std::string>(read->front(), "Type") == "UPS");
    CHECK(get<std::int64_t>(read->back(), "Current Capacity") == 80);

    CHECK(!power.settings().externalAdapter && power.settings().lowPowerModeEnabled == true);
    describeAdapter = [] -> std::map<std::string, CFTypeRef> { return {{"Watts", number(70)}}; };
    const PowerSettings settings = power.settings();
    CHECK(settings.providingSource == "AC Power");
    CHECK(settings.externalAdapter && get<std::int64_t>(*settings.externalAdapter, "Watts") == 70);

    sourcesAreTold = false;
    CHECK(!power.powerSources() && !power.settings().providingSource);
}

} // namespace

int main()
{
    registry();
    power();
    CHECK(standin::references == 0);
    CHECK(standin::kernelObjects == 0);
    return standin::result();
}

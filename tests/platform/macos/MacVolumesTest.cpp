// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "platform/macos/MacVolumes.h"

#include "check.h"
#include "ioKit.h"
#include "kernel.h"

#include <cstring>

namespace {

std::map<std::string, CFTypeRef> (*rootProperties)() = nullptr;

} // namespace

extern "C" {

const CFStringRef kCFURLVolumeLocalizedNameKey = CFSTR("name");
const CFStringRef kCFURLVolumeTotalCapacityKey = CFSTR("total");
const CFStringRef kCFURLVolumeAvailableCapacityKey = CFSTR("available");
const CFStringRef kCFURLVolumeAvailableCapacityForImportantUsageKey = CFSTR("important");
const CFStringRef kCFURLVolumeSupportsFileCloningKey = CFSTR("cloning");
const CFStringRef kCFURLVolumeSupportsCaseSensitiveNamesKey = CFSTR("case");

CFURLRef CFURLCreateWithFileSystemPath(CFAllocatorRef, CFStringRef path, CFURLPathStyle, Boolean)
{
    return static_cast<CFURLRef>(standin::text(standin::characters(path)));
}
CFDictionaryRef CFURLCopyResourcePropertiesForKeys(CFURLRef url, CFArrayRef, CFErrorRef *)
{
    CHECK(standin::characters(url) == "/");
    return rootProperties ? standin::dictionary(rootProperties()) : nullptr;
}
}

using namespace quillmark::platform;
using standin::boolean;
using standin::number;
using standin::text;

namespace {

struct statfs mounted(const char *place, const char *source, std::uint32_t flags)
{
    struct statfs found = {
        .f_bsize = 4096, .f_blocks = 488'378'642, .f_bavail = 300'000'000, .f_flags = flags};
    std::strcpy(found.f_mntonname, place);
    std::strcpy(found.f_mntfromname, source);
    std::strcpy(found.f_fstypename, "apfs");
    return found;
}

/// Of a disk's driver, for the place of the disk.
std::map<std::string, CFTypeRef> device(const char *name, const char *place)
{
    return {
        {"Device Characteristics",
         standin::dictionary({{"Product Name", text(name)}, {"Medium Type", text("Solid State")}})},
        {"Protocol Characteristics", standin::dictionary({{"Physical Interconnect", text("USB")},
                                                          {"Physical Interconnect Location", text(place)}})},
        {"IOStorageFeatures", standin::dictionary({{"Unmap", boolean(true)}})}};
}

std::map<std::string, CFTypeRef> media(const char *name, long long unit, bool isWhole)
{
    return {{"BSD Name", text(name)},
            {"BSD Unit", number(unit)},
            {"Whole", boolean(isWhole)},
            {"Removable", boolean(true)},
            {"Size", number(500277792768)}};
}

void fillRegistry()
{
    using Properties = std::map<std::string, CFTypeRef>;
    constexpr auto driver = "IOBlockStorageDriver";
    standin::entries = {
        {driver, "", [] -> Properties { return device("Stick", "External"); }},
        {"IOMedia", "", [] -> Properties { return media("disk4", 4, true); }, 1},
        {"IOMedia", "", [] -> Properties { return media("disk4s2", 4, false); }, 2},
        {driver, "", [] -> Properties { return device("APPLE SSD", "Internal"); }},
        {"IOMedia", "", [] -> Properties { return media("disk0", 0, true); }, 4},
        {driver, "", [] -> Properties { return device("Disk Image", "File"); }},
        {"IOMedia", "", [] -> Properties { return media("disk5", 5, true); }, 6},
        // What APFS makes of disk0, and a disk that tells nothing.
        {"AppleAPFSContainerScheme", "", nullptr, 5},
        {"IOMedia", "", [] -> Properties { return media("disk3", 3, true); }, 8},
        {driver, "", nullptr},
        {"IOMedia", "",
         [] -> Properties {
             return {{"Whole", boolean(true)}, {"Size", text("big")}};
         },
         10},
        {"IOMedia", "", nullptr, 10},
    };
}

void disks()
{
    CHECK(!MacVolumes().disks());
    fillRegistry();
    const auto read = MacVolumes().disks();
    CHECK(read && read->size() == 4);
    CHECK(read->at(0) == DiskReading{.productName = "APPLE SSD",
                                     .size = 500277792768,
                                     .mediumType = "Solid State",
                                     .interconnect = "USB",
                                     .interconnectLocation = "Internal",
                                     .removable = true,
                                     .unmap = true});
    CHECK(read->at(1).productName == "Stick" && read->at(2).interconnectLocation == "File");
    CHECK(read->at(3) == DiskReading());
}

void startupVolume()
{
    standin::mounts = {mounted("/", "/dev/disk3s1s1", MNT_LOCAL | MNT_RDONLY)};
    CHECK(!MacVolumes().startupVolume());
    rootProperties = [] -> std::map<std::string, CFTypeRef> {
        return {{"name", text("Macintosh HD")},
                {"total", number(994662584320)},
                {"available", text("?")},
                {"important", number(0)},
                {"cloning", boolean(true)}};
    };
    CHECK(MacVolumes().startupVolume() == StartupVolume{.name = "Macintosh HD",
                                                        .total = 994662584320,
                                                        .availableForImportantUsage = 0,
                                                        .fileSystem = "apfs",
                                                        .supportsFileCloning = true});
}

void otherVolumes()
{
    standin::mounts = {mounted("/", "/dev/disk3s1s1", MNT_LOCAL | MNT_RDONLY),
                       mounted("/System/Volumes/Data", "/dev/disk3s5", MNT_LOCAL | MNT_DONTBROWSE),
                       mounted("/Volumes/Second", "/dev/disk3s7", MNT_LOCAL),
                       mounted("/Volumes/Backup", "/dev/disk4s2", MNT_LOCAL | MNT_RDONLY),
                       mounted("/Volumes/Installer", "/dev/disk5", MNT_LOCAL),
                       mounted("/Volumes/Odd", "/dev/disk31s1", MNT_LOCAL),
                       mounted("/Volumes/share", "//ada@server/share", 0),
                       mounted("/dev", "devfs", MNT_LOCAL)};
    const auto read = MacVolumes().otherVolumes();
    CHECK(read && read->size() == 2);
    // More than 4 GiB of blocks, each of which counts 4096 bytes.
    CHECK(read->at(0) == VolumeReading{.name = "Backup",
                                       .fileSystem = "apfs",
                                       .total = 2'000'398'917'632,
                                       .available = 1'228'800'000'000,
                                       .isReadOnly = true,
                                       .isInternal = false});
    CHECK(read->at(1).name == "Odd" && !read->at(1).isInternal);
    CHECK(standin::mountFlags == MNT_NOWAIT);
}

} // namespace

int main()
{
    disks();
    startupVolume();
    otherVolumes();
    CHECK(standin::references == 0);
    CHECK(standin::kernelObjects == 0);
    return standin::result();
}

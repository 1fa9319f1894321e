// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <vector>

#include <ifaddrs.h>
#include <sys/mount.h>

/// The calls of libSystem that the Mac's sources make, answered by what a test sets.
namespace standin {

extern std::map<std::string, std::string> kernelValues; ///< bytes by name
extern int kernelValueGrows; ///< how many more reads find a value longer than its size

extern std::vector<std::uint32_t> ticks; ///< four a core: user, system, idle, nice
extern bool ticksAreTold;
extern std::vector<std::int32_t>
    memoryWords; ///< of the record of virtual memory, as many as the kernel knows
extern bool memoryIsTold;
extern std::uint64_t kernelPage;

extern long hostReferences; ///< rights to the host not given back
extern long mappedBytes;    ///< laid into the process and not given back
extern long interfaceLists; ///< not given back

extern std::vector<ifaddrs> interfaces; ///< their links are set when asked
extern bool interfacesAreTold;

extern std::vector<struct statfs> mounts;
extern int mountFlags; ///< that the last list was asked for with

} // namespace standin

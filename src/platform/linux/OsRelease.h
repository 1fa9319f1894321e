// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/SystemInformation.h"

#include <map>
#include <string>
#include <string_view>

namespace quillmark::platform {

/// The assignments of a file in os-release's form, a small part of the shell's: values may stand in quotes
/// and hold escaped characters. Lines that assign nothing are skipped, and the last assignment of a name
/// counts.
std::map<std::string, std::string, std::less<>> parseOsRelease(std::string_view text);

/// The value, or the fallback where it is missing or empty.
std::string assigned(const std::map<std::string, std::string, std::less<>> &assignments,
                     std::string_view name, std::string_view fallback = {});

/// Name and version; what VERSION_ID does not tell as a number is 0.
OperatingSystem operatingSystemOf(const std::map<std::string, std::string, std::less<>> &osRelease);

} // namespace quillmark::platform

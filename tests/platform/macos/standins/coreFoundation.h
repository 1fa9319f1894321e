// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <map>
#include <string>
#include <vector>

#include <CoreFoundation/CoreFoundation.h>

/// A Core Foundation that counts. Each function gives an object with one reference, which a container takes
/// over.
namespace standin {

CFTypeRef text(std::string utf8);
CFTypeRef number(long long value);
CFTypeRef real(double value);
CFTypeRef boolean(bool value);
CFTypeRef data(std::string bytes);
CFArrayRef array(std::vector<CFTypeRef> elements);
CFMutableDictionaryRef dictionary(std::map<std::string, CFTypeRef> entries);
/// Of a type that nobody expects, such as a date.
CFTypeRef other();

/// One more reference, as a function with Copy in its name gives.
CFTypeRef retain(CFTypeRef object);

/// Of a constant of the compiler's too.
std::string characters(CFTypeRef string);

/// References that somebody has still to give back.
extern long references;

} // namespace standin

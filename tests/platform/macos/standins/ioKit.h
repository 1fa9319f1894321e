// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "coreFoundation.h"

#include <IOKit/IOKitLib.h>

/// An I/O registry of entries that a test lists. A name is a place in the list, counted from 1.
namespace standin {

struct Entry
{
    std::string className;
    std::string path;
    std::map<std::string, CFTypeRef> (*properties)() = nullptr; ///< null: they cannot be read
    io_object_t parent = IO_OBJECT_NULL;
};

extern std::vector<Entry> entries;

/// References to entries and iterators that somebody has still to give back.
extern long kernelObjects;

} // namespace standin

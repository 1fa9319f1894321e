// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

// A recorded machine from a stranger: it is refused by name, or can be inspected.

#include "fuzzing.h"
#include "inspectAll.h"

#include <string_view>

using namespace quillmark;

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const std::string_view text(reinterpret_cast<const char *>(data), size);
    const auto machine = platform::parseRecording(text, "input");
    if (machine)
        fuzzing::inspectAll(**machine);
    else
        fuzzing::require(machine.error().text.starts_with("input: "), "an error names the file");
    return 0;
}

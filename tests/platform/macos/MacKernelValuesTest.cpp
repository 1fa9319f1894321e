// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "platform/macos/MacKernelValues.h"

#include "check.h"
#include "kernel.h"

#include <string>

using namespace quillmark::platform;

namespace {

std::optional<std::string> read(const char *name)
{
    const auto bytes = MacKernelValues().read(name);
    if (!bytes)
        return std::nullopt;
    return std::string(reinterpret_cast<const char *>(bytes->data()), bytes->size());
}

} // namespace

int main()
{
    using namespace std::string_literals;
    standin::kernelValues = {{"hw.model", "Mac15,9\0"s}, {"hw.ncpu", "\x0e\0\0\0"s}, {"empty", ""}};
    CHECK(read("hw.model") == "Mac15,9\0"s);
    CHECK(read("hw.ncpu") == "\x0e\0\0\0"s);
    CHECK(read("empty") == "");
    CHECK(!read("hw.cpufrequency_max"));

    // A value that grew between the two calls is read again, one that always grows is given up.
    standin::kernelValueGrows = 1;
    CHECK(read("hw.model") == "Mac15,9\0+"s);
    standin::kernelValueGrows = 100;
    CHECK(!read("hw.model"));
    return standin::result();
}

// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "platform/dataFolder.h"

#include <cstdlib>

namespace quillmark::platform {

namespace {

std::filesystem::path pathFromEnvironment(const char *name)
{
    const char *value = std::getenv(name);
    return value ? value : "";
}

} // namespace

/// As XDG has it, which ignores a relative path. The folder is everybody's, so
/// the program has one of its own in it.
std::filesystem::path dataFolder()
{
    auto folder = pathFromEnvironment("XDG_DATA_HOME");
    if (!folder.is_absolute())
        folder = "/" / pathFromEnvironment("HOME") / ".local/share";
    return folder / "Quillmark";
}

} // namespace quillmark::platform

// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "platform/dataFolder.h"

#include <cstdlib>

#include <pwd.h>
#include <unistd.h>

namespace quillmark::platform {

namespace {

std::filesystem::path pathFromEnvironment(const char *name)
{
    const char *value = std::getenv(name);
    return value ? value : "";
}

/// What a service is started without HOME for stands in the list of users.
std::filesystem::path homeFolder()
{
    auto folder = pathFromEnvironment("HOME");
    if (const auto *user = folder.is_absolute() ? nullptr : ::getpwuid(::geteuid()))
        folder = user->pw_dir;
    return "/" / folder;
}

} // namespace

/// As XDG has it, which ignores a relative path. The folder is everybody's, so
/// the program has one of its own in it.
std::filesystem::path dataFolder()
{
    auto folder = pathFromEnvironment("XDG_DATA_HOME");
    if (!folder.is_absolute())
        folder = homeFolder() / ".local/share";
    return folder / "Quillmark";
}

} // namespace quillmark::platform

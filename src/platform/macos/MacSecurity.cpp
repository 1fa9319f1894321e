// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "platform/macos/MacSecurity.h"

#include "platform/macos/biometry.h"
#include "platform/macos/cf.h"
#include "platform/posix/ChildProcess.h"

#include <chrono>

namespace quillmark::platform {

namespace {

std::optional<std::string> xprotectVersion()
{
    const cf::Owner bundle(::CFURLCreateWithFileSystemPath(
        kCFAllocatorDefault, CFSTR("/Library/Apple/System/Library/CoreServices/XProtect.bundle"),
        kCFURLPOSIXPathStyle, true));
    const cf::Owner information(bundle ? ::CFBundleCopyInfoDictionaryInDirectory(bundle.get()) : nullptr);
    return cf::text(cf::find(information.get(), CFSTR("CFBundleShortVersionString")));
}

/// A preference that is there only once it was touched.
std::optional<bool> lockdownMode()
{
    const cf::Owner setting(
        ::CFPreferencesCopyAppValue(CFSTR("LDMGlobalEnabled"), kCFPreferencesAnyApplication));
    return setting ? cf::boolean(setting.get()) : std::optional(false);
}

} // namespace

SecurityState MacSecurity::read() const
{
    constexpr std::chrono::seconds timeLimit(2);
    const auto deadline = ChildProcess::Clock::now() + timeLimit;
    ChildProcess fdesetup({"/usr/bin/fdesetup", "status"});
    ChildProcess csrutil({"/usr/bin/csrutil", "status"});
    ChildProcess spctl({"/usr/sbin/spctl", "--status"});
    ChildProcess socketfilterfw({"/usr/libexec/ApplicationFirewall/socketfilterfw", "--getglobalstate"});
    // While they run.
    SecurityState state = {
        .biometry = readBiometry(), .xprotectVersion = xprotectVersion(), .lockdownMode = lockdownMode()};
    state.fdesetup = fdesetup.answer(deadline);
    state.csrutil = csrutil.answer(deadline);
    state.spctl = spctl.answer(deadline);
    state.socketfilterfw = socketfilterfw.answer(deadline);
    return state;
}

} // namespace quillmark::platform

// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "platform/macos/MacSecurity.h"

#include "check.h"
#include "coreFoundation.h"
#include "platform/macos/biometry.h"
#include "platform/posix/ChildProcess.h"

#include <algorithm>
#include <map>

namespace {

std::map<std::string, quillmark::platform::CommandAnswer> helpers; ///< by the command line
int running = 0;
int mostRunning = 0;
CFTypeRef (*lockdown)() = nullptr;
CFTypeRef (*xprotect)() = nullptr;

} // namespace

// A clock that stands still.
std::chrono::steady_clock::time_point std::chrono::steady_clock::now() noexcept
{
    return {};
}

namespace quillmark::platform {

Biometry readBiometry()
{
    return {.canEvaluate = true, .biometryType = 1};
}

FileDescriptor::~FileDescriptor() = default;

ChildProcess::ChildProcess(const std::vector<std::string> &command, const std::vector<std::string> &)
{
    for (const std::string &word : command)
        m_texts[0] += (m_texts[0].empty() ? "" : " ") + word;
    mostRunning = std::max(mostRunning, ++running);
}

ChildProcess::~ChildProcess()
{
    --running;
}

std::optional<CommandAnswer> ChildProcess::answer(Clock::time_point deadline)
{
    CHECK(deadline - Clock::now() == std::chrono::seconds(2));
    const auto found = helpers.find(m_texts[0]);
    return found == helpers.end() ? std::nullopt : std::optional(found->second);
}

} // namespace quillmark::platform

extern "C" {

const CFStringRef kCFPreferencesAnyApplication = CFSTR("any");

CFTypeRef CFPreferencesCopyAppValue(CFStringRef key, CFStringRef application)
{
    CHECK(standin::characters(key) == "LDMGlobalEnabled" && standin::characters(application) == "any");
    return lockdown ? lockdown() : nullptr;
}
CFURLRef CFURLCreateWithFileSystemPath(CFAllocatorRef, CFStringRef path, CFURLPathStyle, Boolean isFolder)
{
    CHECK(isFolder);
    return static_cast<CFURLRef>(standin::text(standin::characters(path)));
}
CFDictionaryRef CFBundleCopyInfoDictionaryInDirectory(CFURLRef)
{
    return xprotect ? standin::dictionary({{"CFBundleShortVersionString", xprotect()}}) : nullptr;
}
}

using namespace quillmark::platform;

int main()
{
    // Nothing answers: nothing is off but what is off until it was touched.
    const MacSecurity security;
    const Biometry biometry = {.canEvaluate = true, .biometryType = 1};
    CHECK(security.read() == SecurityState{.biometry = biometry, .lockdownMode = false});
    CHECK(mostRunning == 4 && running == 0);

    helpers = {{"/usr/bin/fdesetup status", {0, "FileVault is On.\n"}},
               {"/usr/bin/csrutil status", {0, "System Integrity Protection status: enabled.\n"}},
               {"/usr/sbin/spctl --status", {1, "assessments disabled\n"}},
               {"/usr/libexec/ApplicationFirewall/socketfilterfw --getglobalstate", {0, "(State = 1)\n"}}};
    lockdown = [] { return standin::boolean(true); };
    xprotect = [] { return standin::text("5287"); };
    const SecurityState state = security.read();
    CHECK(state.fdesetup && state.fdesetup->output == "FileVault is On.\n");
    CHECK(state.csrutil && state.spctl && state.spctl->exitStatus == 1);
    CHECK(state.socketfilterfw && state.lockdownMode == true && state.xprotectVersion == "5287");

    // Of another type than it should be.
    lockdown = [] { return standin::text("on"); };
    xprotect = [] { return standin::number(5287); };
    CHECK(!security.read().lockdownMode && !security.read().xprotectVersion);
    CHECK(standin::references == 0);
    return standin::result();
}

// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "check.h"
#include "coreFoundation.h"
#include "objectiveC.h"
#include "platform/macos/MacSecurity.h"
#include "platform/macos/biometry.h"
#include "platform/macos/powerReport.h"
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
    CHECK(deadline - Clock::now() == std::chrono::seconds(m_texts[0].contains("profiler") ? 10 : 2));
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

CLASS(NSData);
CLASS(NSJSONSerialization);

using namespace quillmark::platform;

namespace {

void security()
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
}

std::string parsedJson;
CFTypeRef (*parse)() = nullptr;

void powerReport()
{
    using namespace standin;
    static std::size_t length;
    NSData.methods["dataWithBytes:length:"] = [](const std::uint64_t *arguments) {
        parsedJson.assign(reinterpret_cast<const char *>(arguments[0]), arguments[1]);
        return objc::pointer(&length);
    };
    NSJSONSerialization.methods["JSONObjectWithData:options:error:"] = [](const std::uint64_t *) {
        return objc::pointer(parse ? parse() : nullptr);
    };
    const std::string command = "/usr/sbin/system_profiler SPPowerDataType -json";
    CHECK(!readPowerReport());
    helpers[command] = {0, "{\n  \"SPPowerDataType\" : [ ]\n}\n2026-11-23 system_profiler: a complaint\n"};
    CHECK(!readPowerReport());
    CHECK(parsedJson == "{\n  \"SPPowerDataType\" : [ ]\n}");
    parse = [] -> CFTypeRef {
        return dictionary(
            {{"SPPowerDataType",
              array({text("odd"), dictionary({{"sppower_battery_health_info", text("odd")}}),
                     dictionary({{"sppower_battery_health_info",
                                  dictionary({{"sppower_battery_health", text("Good")}})}})})}});
    };
    const auto report = readPowerReport();
    CHECK(report && get<std::string>(*report, "sppower_battery_health") == "Good");
    parse = [] -> CFTypeRef { return array({}); };
    CHECK(!readPowerReport());
    helpers[command].exitStatus = 1;
    parsedJson.clear();
    CHECK(!readPowerReport() && parsedJson.empty());
    CHECK(standin::objc::unanswered.empty());
}

} // namespace

int main()
{
    security();
    powerReport();
    CHECK(standin::references == 0);
    return standin::result();
}

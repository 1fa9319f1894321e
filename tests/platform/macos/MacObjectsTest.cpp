// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "check.h"
#include "objectiveC.h"
#include "platform/macos/MacCapture.h"
#include "platform/macos/MacGraphics.h"
#include "platform/macos/MacIntelligence.h"
#include "platform/macos/MacSystemInformation.h"
#include "platform/macos/audioDevices.h"
#include "platform/macos/biometry.h"
#include "platform/macos/processInformation.h"
#include "platform/macos/wifi.h"

#include <cstring>

namespace quillmark::platform {

std::optional<std::vector<AudioDevice>> readAudioDevices()
{
    return std::nullopt;
}

std::optional<AudioDefaults> readAudioDefaults()
{
    return std::nullopt;
}

} // namespace quillmark::platform

CLASS(AVCaptureDevice);
CLASS(AVCaptureDeviceDiscoverySession);
CLASS(CWWiFiClient);
CLASS(LAContext);
CLASS(MLCPUComputeDevice);
CLASS(MLGPUComputeDevice);
CLASS(MLNeuralEngineComputeDevice);
CLASS(NSArray);
CLASS(NSHost);
CLASS(NSProcessInfo);

using namespace quillmark::platform;
using namespace standin::objc;

namespace {

Thing *defaultDevice = nullptr;
Thing *allDevices = array({});
Thing *computeDevices = array({});

Method yes = answers(word(1));
Method no = answers(word(0));

} // namespace

extern "C" {

const void *AVMediaTypeVideo = string("vide");
const void *AVMediaTypeAudio = string("soun");
const void *AVCaptureDeviceTypeBuiltInWideAngleCamera = string("AVCaptureDeviceTypeBuiltInWideAngleCamera");
const void *AVCaptureDeviceTypeExternal = string("AVCaptureDeviceTypeExternal");
const void *AVCaptureDeviceTypeExternalUnknown = string("AVCaptureDeviceTypeExternalUnknown");

void *MTLCreateSystemDefaultDevice()
{
    return defaultDevice;
}
void *MTLCopyAllDevices()
{
    return allDevices;
}
void *MLAllComputeDevices()
{
    return computeDevices;
}
std::int32_t modelState = -1;
std::int32_t quillmarkLanguageModelState()
{
    return modelState;
}
std::uint64_t CMVideoFormatDescriptionGetDimensions(const void *)
{
    return 1080ULL << 32 | 1920;
}
}

namespace {

void systemInformation()
{
    const std::int64_t version[] = {26, 1, 2};
    structures["operatingSystemVersion"].resize(sizeof version);
    std::memcpy(structures["operatingSystemVersion"].data(), version, sizeof version);
    auto *information = thing("information", {{"physicalMemory", answers(word(38654705664))},
                                              {"systemUptime", answers(real(273600.5))},
                                              {"thermalState", answers(word(3))},
                                              {"isLowPowerModeEnabled", yes}});
    NSProcessInfo.methods["processInfo"] = answers(pointer(information));
    auto *host = thing("host", {{"localizedName", no}});
    NSHost.methods["currentHost"] = answers(pointer(host));

    const MacSystemInformation system;
    CHECK(system.operatingSystem() == OperatingSystem{.name = "macOS", .major = 26, .minor = 1, .patch = 2});
    CHECK(system.physicalMemory() == 38654705664);
    CHECK(system.uptime() == 273600.5);
    CHECK(system.thermalState() == 3 && isLowPowerModeEnabled());
    CHECK(!system.hostName());
    host->methods["localizedName"] = answers(pointer(string("Ada’s MacBook Pro")));
    CHECK(system.hostName() == "Ada’s MacBook Pro");
}

Thing *gpu(const char *name, int highestFamily)
{
    const auto supports = [highestFamily](const std::uint64_t *arguments) {
        const auto family = static_cast<int>(arguments[0]);
        return word(family == 5001 || (family > 1000 && family <= highestFamily));
    };
    return thing("gpu", {{"name", answers(pointer(string(name)))},
                         {"hasUnifiedMemory", yes},
                         {"isLowPower", no},
                         {"isRemovable", yes},
                         {"recommendedMaxWorkingSetSize", answers(word(28991029248))},
                         {"supportsRaytracing", no},
                         {"supportsFamily:", supports}});
}

void graphics()
{
    CHECK(MacGraphics().read() == GraphicsReading());
    defaultDevice = gpu("Apple M5", 1010);
    allDevices = array({gpu("AMD", 0), defaultDevice});
    const GraphicsReading read = MacGraphics().read();
    CHECK(read.defaultDevice ==
          GraphicsDevice{.name = "Apple M5",
                         .hasUnifiedMemory = true,
                         .isRemovable = true,
                         .recommendedMaxWorkingSetSize = 28991029248,
                         .families = {1001, 1002, 1003, 1004, 1005, 1006, 1007, 1008, 1009, 1010, 5001}});
    CHECK(read.devices.size() == 2 && read.devices.front().name == "AMD" &&
          read.devices.back() == read.defaultDevice);
}

void intelligence()
{
    const MacIntelligence intelligence;
    CHECK(!intelligence.languageModelState());
    modelState = 0;
    CHECK(intelligence.languageModelState() == 0);

    computeDevices =
        array({thing("cpu", {}, &classMLCPUComputeDevice), thing("gpu", {}, &classMLGPUComputeDevice),
               thing("ane", {{"totalCoreCount", answers(word(16))}}, &classMLNeuralEngineComputeDevice),
               thing("new")});
    standin::objc::system = 13;
    CHECK(!intelligence.computeDevices());
    standin::objc::system = 14;
    using Kind = ComputeDevice::Kind;
    const std::vector<ComputeDevice> expected = {
        {Kind::Cpu, {}}, {Kind::Gpu, {}}, {Kind::NeuralEngine, 16}, {}};
    CHECK(intelligence.computeDevices() == expected);
}

std::vector<const void *> typesAskedFor;

Thing *camera(const char *name, const void *type, bool isTelephone)
{
    auto *slow = thing("range", {{"maxFrameRate", answers(real(30))}});
    auto *fast = thing("range", {{"maxFrameRate", answers(real(60))}});
    auto *format =
        thing("format", {{"formatDescription", yes},
                         {"isCenterStageSupported", yes},
                         {"videoSupportedFrameRateRanges", answers(pointer(array({fast, slow})))}});
    return thing("camera", {{"localizedName", answers(pointer(string(name)))},
                            {"deviceType", answers(pointer(type))},
                            {"isContinuityCamera", isTelephone ? yes : no},
                            {"formats", answers(pointer(array({format})))}});
}

void cameras()
{
    NSArray.methods["arrayWithObjects:count:"] = [](const std::uint64_t *arguments) {
        const auto *first = reinterpret_cast<const void *const *>(arguments[0]);
        typesAskedFor.assign(first, first + arguments[1]);
        return pointer(array({}));
    };
    const auto *builtIn = AVCaptureDeviceTypeBuiltInWideAngleCamera;
    auto *session =
        thing("session", {{"devices", answers(pointer(array({camera("FaceTime HD", builtIn, false),
                                                             camera("Ada’s iPhone", builtIn, true)})))}});
    AVCaptureDeviceDiscoverySession.methods["discoverySessionWithDeviceTypes:mediaType:position:"] =
        [session](const std::uint64_t *arguments) {
            CHECK(reinterpret_cast<const void *>(arguments[1]) == AVMediaTypeVideo && arguments[2] == 0);
            return pointer(session);
        };
    const MacCapture capture;
    const CameraFormat format = {
        .width = 1920, .height = 1080, .maxFrameRate = 60, .isCenterStageSupported = true};
    const std::vector<CameraReading> expected = {
        {.localizedName = "FaceTime HD", .deviceType = "BuiltInWideAngleCamera", .formats = {format}}};
    standin::objc::system = 13;
    CHECK(capture.cameras() == expected);
    CHECK(typesAskedFor == std::vector{builtIn, AVCaptureDeviceTypeExternalUnknown});
    standin::objc::system = 14;
    CHECK(capture.cameras() == expected);
    CHECK(typesAskedFor == std::vector{builtIn, AVCaptureDeviceTypeExternal});
    session->methods["devices"] = no;
    CHECK(capture.cameras() == std::vector<CameraReading>());
}

void permissions()
{
    for (const auto status : {AuthorizationStatus::NotDetermined, AuthorizationStatus::Restricted,
                              AuthorizationStatus::Denied, AuthorizationStatus::Authorized}) {
        AVCaptureDevice.methods["authorizationStatusForMediaType:"] =
            [status](const std::uint64_t *arguments) {
                const bool isAudio = reinterpret_cast<const void *>(arguments[0]) == AVMediaTypeAudio;
                return word(isAudio ? static_cast<std::uint64_t>(status) : 7);
            };
        CHECK(MacCapture().authorization(CaptureKind::Audio) == status);
        CHECK(MacCapture().authorization(CaptureKind::Video) == AuthorizationStatus{7});
    }
}

void wifi()
{
    auto *client = thing("client", {{"interface", no}});
    CWWiFiClient.methods["sharedWiFiClient"] = answers(pointer(client));
    CHECK(readWifi() == WifiReading());
    auto *interface = thing("interface", {{"powerOn", yes},
                                          {"activePHYMode", answers(word(6))},
                                          {"rssiValue", answers(word(std::uint64_t(-56)))},
                                          {"transmitRate", answers(real(1200))},
                                          {"wlanChannel", no}});
    client->methods["interface"] = answers(pointer(interface));
    WifiReading expected = {
        .isPresent = true, .powerOn = true, .activePHYMode = 6, .rssi = -56, .transmitRate = 1200};
    CHECK(readWifi() == expected);
    interface->methods["wlanChannel"] =
        answers(pointer(thing("channel", {{"channelBand", answers(word(3))}})));
    expected.channelBand = 3;
    CHECK(readWifi() == expected);
}

void biometry()
{
    // As on a Mac, the type means nothing before the policy was asked for.
    static bool wasAsked;
    static std::int64_t code;
    auto *context = thing("context");
    LAContext.methods["new"] = answers(pointer(context));
    context->methods["canEvaluatePolicy:error:"] = [](const std::uint64_t *arguments) {
        CHECK(arguments[0] == 1);
        wasAsked = true;
        auto *error = thing("error", {{"code", answers(word(std::uint64_t(code)))}});
        if (code != 0)
            *reinterpret_cast<const void **>(arguments[1]) = error;
        return word(code == 0);
    };
    context->methods["biometryType"] = [](const std::uint64_t *) { return word(wasAsked); };
    CHECK(readBiometry() == Biometry{.canEvaluate = true, .biometryType = 1});
    wasAsked = false;
    code = -7;
    CHECK(readBiometry() == Biometry{.biometryType = 1, .error = -7});
}

} // namespace

int main()
{
    systemInformation();
    graphics();
    intelligence();
    cameras();
    permissions();
    wifi();
    biometry();
    for (const auto &message : unanswered)
        std::printf("unanswered: %s\n", message.c_str());
    CHECK(unanswered.empty());
    return standin::result();
}

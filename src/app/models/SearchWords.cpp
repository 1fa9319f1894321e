// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "app/models/SearchWords.h"

#include "language/folding.h"
#include "language/texts.h"

#include <algorithm>

namespace quillmark::app {

using namespace Qt::StringLiterals;

namespace {

class Text
{
    QUILLMARK_TEXTS(SearchWords)
};

struct Entry
{
    QStringView key;
    const char *words;
};

/// Each text: what people may type when they look for the thing, parted by commas. Translators write the
/// words of their language, as many as they like, and keep the English ones that are used there.
constexpr Entry table[] = {
    // Sections
    {u"graphics", QT_TRANSLATE_NOOP("SearchWords", "gpu, graphics card, video card, 3d, gaming")},
    {u"intelligence", QT_TRANSLATE_NOOP("SearchWords", "ai, ml, machine learning, npu, llm")},
    {u"displays", QT_TRANSLATE_NOOP("SearchWords", "screen, monitor")},
    {u"media", QT_TRANSLATE_NOOP("SearchWords", "video, codec")},
    {u"power", QT_TRANSLATE_NOOP("SearchWords", "energy, battery")},
    {u"network", QT_TRANSLATE_NOOP("SearchWords", "internet, online")},
    {u"security", QT_TRANSLATE_NOOP("SearchWords", "safety, protection")},
    // Rows
    {u"deviceName", QT_TRANSLATE_NOOP("SearchWords", "computer name, host name, hostname")},
    {u"modelIdentifier", QT_TRANSLATE_NOOP("SearchWords", "model")},
    {u"os", QT_TRANSLATE_NOOP("SearchWords", "os, system version, macos, linux, build")},
    {u"architecture", QT_TRANSLATE_NOOP("SearchWords", "64 bit, arm, x86, rosetta")},
    {u"uptime", QT_TRANSLATE_NOOP("SearchWords", "running since, restart")},
    {u"thermalState", QT_TRANSLATE_NOOP("SearchWords", "temperature, heat, throttling, fan")},
    {u"virtualMachine", QT_TRANSLATE_NOOP("SearchWords", "vm, hypervisor")},
    {u"processor", QT_TRANSLATE_NOOP("SearchWords", "cpu, chip, soc")},
    {u"physicalCores", QT_TRANSLATE_NOOP("SearchWords", "cpu cores")},
    {u"logicalCores", QT_TRANSLATE_NOOP("SearchWords", "cpu cores, threads, hyper-threading")},
    {u"maxFrequency", QT_TRANSLATE_NOOP("SearchWords", "clock speed, ghz, mhz")},
    {u"memory", QT_TRANSLATE_NOOP("SearchWords", "ram, main memory")},
    {u"recommendedGPUMemory", QT_TRANSLATE_NOOP("SearchWords", "vram, video memory")},
    {u"appleIntelligence", QT_TRANSLATE_NOOP("SearchWords", "siri, writing tools, language model")},
    {u"neuralEngine", QT_TRANSLATE_NOOP("SearchWords", "ane, npu, ai")},
    {u"display.variableRefresh", QT_TRANSLATE_NOOP("SearchWords", "vrr, adaptive sync, refresh rate")},
    {u"display.extendedRange", QT_TRANSLATE_NOOP("SearchWords", "hdr, edr, brightness")},
    {u"display.wideColor", QT_TRANSLATE_NOOP("SearchWords", "p3, gamut")},
    {u"display.resolution", QT_TRANSLATE_NOOP("SearchWords", "pixels, hertz, hz, 4k, 5k, refresh rate")},
    {u"display.scaling", QT_TRANSLATE_NOOP("SearchWords", "retina, hidpi")},
    {u"h264Decoding", QT_TRANSLATE_NOOP("SearchWords", "avc, h264, video decoding")},
    {u"h264Encoding", QT_TRANSLATE_NOOP("SearchWords", "avc, h264, video encoding")},
    {u"hevcDecoding", QT_TRANSLATE_NOOP("SearchWords", "h.265, h265, video decoding")},
    {u"hevcEncoding", QT_TRANSLATE_NOOP("SearchWords", "h.265, h265, video encoding")},
    {u"heicImages", QT_TRANSLATE_NOOP("SearchWords", "heif, photos, pictures")},
    {u"camera", QT_TRANSLATE_NOOP("SearchWords", "webcam, facetime")},
    {u"builtInSpeakers", QT_TRANSLATE_NOOP("SearchWords", "loudspeakers, sound, audio")},
    {u"builtInMicrophone", QT_TRANSLATE_NOOP("SearchWords", "mic, sound, audio")},
    {u"microphoneAccess", QT_TRANSLATE_NOOP("SearchWords", "mic, permission, privacy")},
    {u"cameraAccess", QT_TRANSLATE_NOOP("SearchWords", "webcam, permission, privacy")},
    {u"soundOutput", QT_TRANSLATE_NOOP("SearchWords", "audio, speakers, headphones")},
    {u"soundInput", QT_TRANSLATE_NOOP("SearchWords", "audio, microphone")},
    {u"soundCard", QT_TRANSLATE_NOOP("SearchWords", "audio")},
    {u"highestOutputRate", QT_TRANSLATE_NOOP("SearchWords", "sample rate, hi-res")},
    {u"capacity", QT_TRANSLATE_NOOP("SearchWords", "disk space, disk size")},
    {u"availableSpace", QT_TRANSLATE_NOOP("SearchWords", "free space, disk space, full")},
    {u"disk", QT_TRANSLATE_NOOP("SearchWords", "ssd, nvme, drive, hard disk, hdd")},
    {u"volume", QT_TRANSLATE_NOOP("SearchWords", "partition, drive")},
    {u"powerSource", QT_TRANSLATE_NOOP("SearchWords", "plugged in, mains")},
    {u"adapter", QT_TRANSLATE_NOOP("SearchWords", "charger, power supply, watt")},
    {u"batteryHealth", QT_TRANSLATE_NOOP("SearchWords", "maximum capacity, wear, ageing")},
    {u"timeRemaining", QT_TRANSLATE_NOOP("SearchWords", "battery life, runtime")},
    {u"lowPowerMode", QT_TRANSLATE_NOOP("SearchWords", "energy saver, power saving")},
    {u"wifi", QT_TRANSLATE_NOOP("SearchWords", "wlan, wireless, wifi")},
    {u"wifiStandard", QT_TRANSLATE_NOOP("SearchWords", "wlan, wireless, wifi")},
    {u"wifiBand", QT_TRANSLATE_NOOP("SearchWords", "wlan, wireless, wifi")},
    {u"wifiSignal", QT_TRANSLATE_NOOP("SearchWords", "wlan, wireless, wifi, reception")},
    {u"wifiRate", QT_TRANSLATE_NOOP("SearchWords", "wlan, wireless, wifi, speed")},
    {u"connection", QT_TRANSLATE_NOOP("SearchWords", "wifi, wlan, ethernet, lan")},
    {u"address", QT_TRANSLATE_NOOP("SearchWords", "ip address")},
    {u"diskEncryption", QT_TRANSLATE_NOOP("SearchWords", "luks, encrypted")},
    {u"fileVault", QT_TRANSLATE_NOOP("SearchWords", "encryption, encrypted, disk encryption")},
    {u"touchID", QT_TRANSLATE_NOOP("SearchWords", "fingerprint, biometrics")},
    {u"systemIntegrityProtection", QT_TRANSLATE_NOOP("SearchWords", "sip, rootless")},
    {u"secureEnclave", QT_TRANSLATE_NOOP("SearchWords", "t2, security chip")},
    {u"secureBoot", QT_TRANSLATE_NOOP("SearchWords", "uefi, start-up security")},
    {u"xprotect", QT_TRANSLATE_NOOP("SearchWords", "virus, malware, antivirus")},
    {u"gatekeeper", QT_TRANSLATE_NOOP("SearchWords", "malware, notarization, app signing")},
    {u"cpuVulnerabilities", QT_TRANSLATE_NOOP("SearchWords", "spectre, meltdown")},
};

/// "display.2.resolution" is the resolution of any display.
QString withoutNumbers(const QString &key)
{
    auto parts = key.split(u'.');
    parts.removeIf([](const QString &part) {
        return std::ranges::all_of(part, [](QChar character) { return character.isDigit(); });
    });
    return parts.join(u'.');
}

} // namespace

SearchWords::SearchWords()
{
    for (const auto &[key, words] : table) {
        for (const auto &word : Text::tr(words).split(u',', Qt::SkipEmptyParts))
            m_words[key.toString()] += language::folded(word.trimmed());
    }
}

bool SearchWords::match(const QString &sectionKey, const QString &rowKey, const QString &foldedSearch) const
{
    if (foldedSearch.size() < 2)
        return false;
    const auto begins = [&](const QString &word) { return word.startsWith(foldedSearch); };
    return std::ranges::any_of(m_words.value(sectionKey), begins) ||
           std::ranges::any_of(m_words.value(withoutNumbers(rowKey)), begins);
}

} // namespace quillmark::app

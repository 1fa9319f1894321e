// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "platform/recorded/RecordedMachine.h"

#include "platform/recorded/PropertyJson.h"
#include "platform/recorded/Subjects.h"

#include <cerrno>
#include <cstdio>
#include <cstring>

namespace quillmark::platform {

namespace {

class Recording final : public Machine
{
public:
    explicit Recording(const Members &recording)
        : m_kernelValues(recorded::readKernelValues(recording))
        , m_system(recorded::readSystemInformation(recording))
        , m_counters(recorded::readCounters(recording))
        , m_power(recorded::readPower(recording))
        , m_registry(recorded::readRegistry(recording))
        , m_graphics(recorded::readGraphics(recording))
        , m_intelligence(recorded::readIntelligence(recording))
        , m_displays(recorded::readDisplays(recording))
        , m_media(recorded::readMedia(recording))
        , m_capture(recorded::readCapture(recording))
        , m_volumes(recorded::readVolumes(recording))
        , m_network(recorded::readNetwork(recording))
        , m_security(recorded::readSecurity(recording))
    {}

    const KernelValues &kernelValues() const override { return *m_kernelValues; }
    const SystemInformation &system() const override { return *m_system; }
    const Counters &counters() const override { return *m_counters; }
    const Power &power() const override { return *m_power; }
    const Registry &registry() const override { return *m_registry; }
    const Graphics &graphics() const override { return *m_graphics; }
    const Intelligence &intelligence() const override { return *m_intelligence; }
    const Displays &displays() const override { return *m_displays; }
    const Media &media() const override { return *m_media; }
    const Capture &capture() const override { return *m_capture; }
    const Volumes &volumes() const override { return *m_volumes; }
    const Network &network() const override { return *m_network; }
    const Security &security() const override { return *m_security; }

private:
    std::unique_ptr<KernelValues> m_kernelValues;
    std::unique_ptr<SystemInformation> m_system;
    std::unique_ptr<Counters> m_counters;
    std::unique_ptr<Power> m_power;
    std::unique_ptr<Registry> m_registry;
    std::unique_ptr<Graphics> m_graphics;
    std::unique_ptr<Intelligence> m_intelligence;
    std::unique_ptr<Displays> m_displays;
    std::unique_ptr<Media> m_media;
    std::unique_ptr<Capture> m_capture;
    std::unique_ptr<Volumes> m_volumes;
    std::unique_ptr<Network> m_network;
    std::unique_ptr<Security> m_security;
};

std::unexpected<RecordingError> error(std::string_view name, std::string_view reason)
{
    return std::unexpected(RecordingError{std::string(name).append(": ").append(reason)});
}

void checkFormat(const Members &recording)
{
    constexpr std::string_view format = "quillmark-machine-1";
    const auto found = recording.text("format");
    if (!found)
        recording.fail("format", "is missing: this is not a recorded machine");
    else if (*found != format)
        recording.fail("format", std::string("must be \"").append(format).append("\""));
}

/// The file's bytes, at most one more than a recording may have. Standard error numbers tell of a failure.
std::expected<std::string, int> readFile(const std::filesystem::path &path)
{
    const std::unique_ptr<std::FILE, int (*)(std::FILE *)> file(std::fopen(path.c_str(), "rb"), &std::fclose);
    if (!file)
        return std::unexpected(errno);
    std::string text;
    char buffer[65536];
    while (text.size() <= maximumRecordingSize) {
        const std::size_t count = std::fread(buffer, 1, sizeof buffer, file.get());
        text.append(buffer, count);
        if (count < sizeof buffer)
            break;
    }
    if (std::ferror(file.get()))
        return std::unexpected(errno);
    return text;
}

} // namespace

RecordedMachine openRecording(const std::filesystem::path &file)
{
    const auto text = readFile(file);
    if (!text)
        return error(file.string(), std::strerror(text.error()));
    if (text->size() > maximumRecordingSize)
        return error(file.string(), "larger than 16 MiB: this is not a recorded machine");
    return parseRecording(*text, file.string());
}

RecordedMachine parseRecording(std::string_view text, std::string_view name)
{
    const auto members = parseProperties(text);
    if (!members) {
        const auto &[reason, line, column] = members.error();
        return error(name, "not a JSON object: line " + std::to_string(line) + ", column " +
                               std::to_string(column) + ": " + reason);
    }
    Fault fault;
    const Members recording(*members, {}, fault);
    checkFormat(recording);
    auto machine = std::make_unique<Recording>(recording);
    if (!fault.text.empty())
        return error(name, fault.text);
    return machine;
}

} // namespace quillmark::platform

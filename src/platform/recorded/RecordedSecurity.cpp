// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "platform/recorded/Subjects.h"

#include <algorithm>
#include <array>
#include <utility>

namespace quillmark::platform::recorded {

namespace {

class RecordedSecurity final : public Security
{
public:
    explicit RecordedSecurity(SecurityState state)
        : m_state(std::move(state))
    {}

    SecurityState read() const override { return m_state; }

private:
    SecurityState m_state;
};

/// A helper program, and what the lines of its answer hold that are recorded. Others may name an account
/// whose encryption is put off, or tell more of a configuration than anybody asks.
struct Helper
{
    std::string_view key;
    std::optional<CommandAnswer> SecurityState::*answer;
    std::array<std::string_view, 3> kept;
};

constexpr Helper helpers[] = {
    {"csrutil", &SecurityState::csrutil, {"System Integrity Protection status:"}},
    {"fdesetup",
     &SecurityState::fdesetup,
     {"FileVault is ", "Encryption in progress", "Decryption in progress"}},
    {"spctl", &SecurityState::spctl, {"assessments "}},
    {"socketfilterfw", &SecurityState::socketfilterfw, {"(State = "}},
};

std::optional<CommandAnswer> readAnswer(const Members &state, std::string_view key)
{
    const auto answer = state.members(key);
    if (!answer)
        return std::nullopt;
    return CommandAnswer{.exitStatus = answer->integer<int>("exitStatus").value_or(0),
                         .output = answer->required(answer->text("output"), "output")};
}

std::optional<Biometry> readBiometry(const Members &state)
{
    const auto biometry = state.members("biometry");
    if (!biometry)
        return std::nullopt;
    return Biometry{.canEvaluate = biometry->required(biometry->boolean("canEvaluate"), "canEvaluate"),
                    .biometryType =
                        biometry->required(biometry->integer<std::int64_t>("biometryType"), "biometryType"),
                    .error = biometry->integer<std::int64_t>("error")};
}

std::optional<std::vector<std::string>> readVulnerabilities(const Members &state)
{
    const auto *elements = state.elements("cpuVulnerabilities");
    if (!elements)
        return std::nullopt;
    std::vector<std::string> texts;
    for (const auto &element : *elements) {
        if (const auto *text = std::get_if<std::string>(&element.value))
            texts.push_back(*text);
        else
            state.fail("cpuVulnerabilities", "must hold texts");
    }
    return texts;
}

void readLinux(const Members &members, SecurityState &state)
{
    constexpr std::array<std::string_view, 6> keys = {"efiSecureBoot",    "rootDeviceMapperUuidPrefix",
                                                      "tpmVersionMajor",  "lsm",
                                                      "selinuxEnforcing", "cpuVulnerabilities"};
    const bool isTold = std::ranges::any_of(keys, [&](std::string_view key) { return members.has(key); });
    state.efiSecureBoot = members.integer<std::uint8_t>("efiSecureBoot");
    state.hasEfi = members.boolean("hasEfi").value_or(state.efiSecureBoot.has_value());
    state.rootDeviceMapperUuidPrefix = members.text("rootDeviceMapperUuidPrefix");
    state.rootIsBlockDevice =
        members.boolean("rootIsBlockDevice").value_or(state.rootDeviceMapperUuidPrefix.has_value());
    state.tpmVersionMajor = members.integer<int>("tpmVersionMajor");
    state.tpmIsKnown = members.boolean("tpmIsKnown").value_or(isTold);
    state.lsm = members.text("lsm");
    state.selinuxEnforcing = members.boolean("selinuxEnforcing");
    state.cpuVulnerabilities = readVulnerabilities(members);
}

std::string keptLines(std::string_view output, const Helper &helper)
{
    std::string kept;
    while (!output.empty()) {
        const auto line = output.substr(0, output.find('\n'));
        output.remove_prefix(std::min(line.size() + 1, output.size()));
        const bool isKept = std::ranges::any_of(helper.kept, [line](std::string_view phrase) {
            return !phrase.empty() && line.find(phrase) != std::string_view::npos;
        });
        if (isKept)
            kept.append(line).append("\n");
    }
    return kept;
}

void writeHelpers(json::Writer &writer, const SecurityState &state)
{
    for (const auto &helper : helpers) {
        const auto &answer = state.*helper.answer;
        if (!answer)
            continue;
        writer.key(helper.key);
        writer.beginObject();
        writer.member("exitStatus", answer->exitStatus);
        writer.member("output", std::string_view(keptLines(answer->output, helper)));
        writer.endObject();
    }
}

void writeBiometry(json::Writer &writer, const Biometry &biometry)
{
    writer.key("biometry");
    writer.beginObject();
    writer.member("canEvaluate", biometry.canEvaluate);
    writer.member("biometryType", biometry.biometryType);
    if (biometry.error)
        writer.member("error", *biometry.error);
    writer.endObject();
}

/// "CRYPT-LUKS2-" and not the identifier that may follow it.
std::string_view kindOfMapping(std::string_view text)
{
    const auto end = text.find('-', std::min(text.find('-'), text.size() - 1) + 1);
    return text.substr(0, end == std::string_view::npos ? end : end + 1);
}

bool isLinux(const SecurityState &state)
{
    return state.hasEfi || state.rootIsBlockDevice || state.tpmIsKnown || state.lsm ||
           state.selinuxEnforcing || state.cpuVulnerabilities;
}

void writeLinux(json::Writer &writer, const SecurityState &state)
{
    writer.member("hasEfi", state.hasEfi);
    if (state.efiSecureBoot)
        writer.member("efiSecureBoot", std::int64_t{*state.efiSecureBoot});
    writer.member("rootIsBlockDevice", state.rootIsBlockDevice);
    if (state.rootDeviceMapperUuidPrefix)
        writer.member("rootDeviceMapperUuidPrefix", kindOfMapping(*state.rootDeviceMapperUuidPrefix));
    writer.member("tpmIsKnown", state.tpmIsKnown);
    if (state.tpmVersionMajor)
        writer.member("tpmVersionMajor", *state.tpmVersionMajor);
    if (state.lsm)
        writer.member("lsm", std::string_view(*state.lsm));
    if (state.selinuxEnforcing)
        writer.member("selinuxEnforcing", *state.selinuxEnforcing);
    if (state.cpuVulnerabilities) {
        writer.key("cpuVulnerabilities");
        writer.beginArray();
        for (const auto &text : *state.cpuVulnerabilities)
            writer.string(text);
        writer.endArray();
    }
}

} // namespace

std::unique_ptr<Security> readSecurity(const Members &recording)
{
    SecurityState state;
    if (const auto members = recording.members("securityState")) {
        for (const auto &helper : helpers)
            state.*helper.answer = readAnswer(*members, helper.key);
        state.biometry = readBiometry(*members);
        state.xprotectVersion = members->text("xprotectVersion");
        state.lockdownMode = members->boolean("lockdownMode");
        readLinux(*members, state);
    }
    return std::make_unique<RecordedSecurity>(std::move(state));
}

void write(json::Writer &writer, const Security &security)
{
    const auto state = security.read();
    if (state == SecurityState())
        return;
    writer.key("securityState");
    writer.beginObject();
    writeHelpers(writer, state);
    if (state.biometry)
        writeBiometry(writer, *state.biometry);
    if (state.xprotectVersion)
        writer.member("xprotectVersion", std::string_view(*state.xprotectVersion));
    if (state.lockdownMode)
        writer.member("lockdownMode", *state.lockdownMode);
    if (isLinux(state))
        writeLinux(writer, state);
    writer.endObject();
}

} // namespace quillmark::platform::recorded

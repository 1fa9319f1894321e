// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "inspection/helperVerdicts.h"

#include "inspection/Text.h"

#include <algorithm>
#include <string_view>
#include <vector>

namespace quillmark::inspection {

namespace {

/// Without the white space around each.
std::vector<std::string_view> linesOf(const HelperAnswer &answer)
{
    constexpr std::string_view blank = " \t\r";
    std::vector<std::string_view> lines;
    std::string_view rest = answer ? std::string_view(answer->output) : std::string_view();
    while (!rest.empty()) {
        auto line = rest.substr(0, rest.find('\n'));
        rest.remove_prefix(std::min(line.size() + 1, rest.size()));
        line.remove_prefix(std::min(line.find_first_not_of(blank), line.size()));
        lines.push_back(line.substr(0, line.find_last_not_of(blank) + 1));
    }
    return lines;
}

/// Whether a line is the statement, ended there or gone on with after a comma.
bool states(const std::vector<std::string_view> &lines, std::string_view statement)
{
    return std::ranges::any_of(lines, [statement](std::string_view line) {
        return line.starts_with(statement) &&
               (line.size() == statement.size() || line[statement.size()] == '.' ||
                line[statement.size()] == ',');
    });
}

bool anyBegins(const std::vector<std::string_view> &lines, std::string_view beginning)
{
    return std::ranges::any_of(lines,
                               [beginning](std::string_view line) { return line.starts_with(beginning); });
}

} // namespace

std::optional<Verdict> fileVaultVerdict(const HelperAnswer &answer, bool isDiskEncrypted)
{
    const auto lines = linesOf(answer);
    // While it works, it says so below what it already counts as.
    if (anyBegins(lines, "Encryption in progress"))
        return Verdict{Text::tr("On, encrypting"), CapabilityStatus::Warning};
    if (anyBegins(lines, "Decryption in progress"))
        return Verdict{Text::tr("Turning off"), CapabilityStatus::Warning};
    if (states(lines, "FileVault is On"))
        return Verdict{Text::tr("On"), CapabilityStatus::Supported};
    if (!states(lines, "FileVault is Off"))
        return std::nullopt;
    return Verdict{isDiskEncrypted ? Text::tr("Off (the disk is still encrypted by hardware)")
                                   : Text::tr("Off"),
                   CapabilityStatus::Warning};
}

std::optional<Verdict> integrityProtectionVerdict(const HelperAnswer &answer)
{
    constexpr std::string_view label = "System Integrity Protection status: ";
    const auto lines = linesOf(answer);
    // The lines below list its parts, each enabled or disabled in the same words.
    const auto line =
        std::ranges::find_if(lines, [label](std::string_view one) { return one.starts_with(label); });
    if (line == lines.end())
        return std::nullopt;
    const auto state = line->substr(label.size());
    if (state == "enabled.")
        return Verdict{Text::tr("On"), CapabilityStatus::Supported};
    if (state == "disabled.")
        return Verdict{Text::tr("Off"), CapabilityStatus::Warning};
    if (state.find("Custom Configuration") != std::string_view::npos)
        return Verdict{Text::tr("Partly on"), CapabilityStatus::Warning};
    return std::nullopt;
}

std::optional<Verdict> gatekeeperVerdict(const HelperAnswer &answer)
{
    const auto lines = linesOf(answer);
    if (states(lines, "assessments enabled"))
        return Verdict{Text::tr("On"), CapabilityStatus::Supported};
    if (states(lines, "assessments disabled"))
        return Verdict{Text::tr("Off"), CapabilityStatus::Warning};
    return std::nullopt;
}

std::optional<Verdict> firewallVerdict(const HelperAnswer &answer)
{
    // The words around the number differ between systems.
    const auto states = [&answer](std::string_view state) {
        return answer && answer->output.find(state) != std::string::npos;
    };
    if (states("(State = 0)"))
        return Verdict{Text::tr("Off"), CapabilityStatus::Warning};
    if (states("(State = 1)"))
        return Verdict{Text::tr("On"), CapabilityStatus::Supported};
    if (states("(State = 2)"))
        return Verdict{Text::tr("On, blocks all incoming connections"), CapabilityStatus::Supported};
    return std::nullopt;
}

} // namespace quillmark::inspection

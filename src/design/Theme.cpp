// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "design/Theme.h"

#include <utility>

namespace quillmark::design {

using namespace Qt::StringLiterals;

namespace {

struct Token
{
    Role role;
    QRgb light;
    QRgb dark;
};

// Words are at least 4.5:1 on every ground that they are used on, marks 3:1, in both columns.
constexpr std::array<Token, roleCount> tokens = {{
    {Role::Window, 0xFFF7F6F4, 0xFF191A1D},
    {Role::Sidebar, 0xFFEEEDEA, 0xFF1F2023},
    {Role::Card, 0xFFFFFFFF, 0xFF242629},
    {Role::CardBorder, 0xFFE3E1DD, 0xFF33363B},
    {Role::Hairline, 0xFFEDEBE8, 0xFF2E3135},
    {Role::Control, 0xFFFFFFFF, 0xFF2B2D31},
    {Role::ControlBorder, 0xFFC7C5C1, 0xFF4A4E55},
    {Role::ControlStrong, 0xFF85888E, 0xFF858B94},
    {Role::Text, 0xFF1B1D21, 0xFFECEDEF},
    {Role::Text2, 0xFF555A62, 0xFFAEB3BB},
    {Role::Text3, 0xFF60666F, 0xFF9BA1AA},
    {Role::Accent, 0xFF2B57C2, 0xFF7DA2FF},
    {Role::AccentSoft, 0xFFE4EBFA, 0xFF263352},
    {Role::AccentText, 0xFF2348A6, 0xFFA9C1FF},
    {Role::NavSelected, 0xFFE0E8F9, 0xFF263352},
    {Role::OnAccent, 0xFFFFFFFF, 0xFF0E1730},
    {Role::Supported, 0xFF12957D, 0xFF5BDABB},
    {Role::SupportedSoft, 0xFFDFF2ED, 0xFF173A34},
    {Role::SupportedText, 0xFF08695A, 0xFF6BDDC2},
    {Role::Unsupported, 0xFFA61E40, 0xFFF2637F},
    {Role::UnsupportedSoft, 0xFFFAE6EA, 0xFF45222B},
    {Role::UnsupportedText, 0xFF9A1C3B, 0xFFFF93A7},
    {Role::Warning, 0xFFBA7400, 0xFFF0B23E},
    {Role::WarningSoft, 0xFFFCF0D6, 0xFF40331A},
    {Role::WarningText, 0xFF875200, 0xFFF4C061},
    {Role::Info, 0xFF66758A, 0xFF93A1B5},
    {Role::InfoSoft, 0xFFEBEEF2, 0xFF2D333B},
    {Role::InfoText, 0xFF505D70, 0xFFAEB9C8},
    {Role::ChartProcessor, 0xFF2B57C2, 0xFF7DA2FF},
    {Role::ChartMemory, 0xFF7A45C0, 0xFFBE95FF},
    {Role::ChartReceived, 0xFF12957D, 0xFF5BDABB},
    {Role::ChartPressure, 0xFFB4560B, 0xFFF0A35E},
    {Role::ChartSent, 0xFFB4560B, 0xFFF0A35E},
}};

constexpr std::array<QRgb, roleCount> column(QRgb Token::*appearance)
{
    std::array<QRgb, roleCount> colors{};
    for (const auto &token : tokens)
        colors[static_cast<std::size_t>(token.role)] = token.*appearance;
    return colors;
}

constexpr bool everyRoleHasAToken()
{
    for (const auto color : column(&Token::light)) {
        if (color == 0)
            return false;
    }
    return true;
}
static_assert(everyRoleHasAToken());

} // namespace

const Theme &Theme::light()
{
    static constexpr Theme theme(column(&Token::light));
    return theme;
}

const Theme &Theme::dark()
{
    static constexpr Theme theme(column(&Token::dark));
    return theme;
}

StatusStyle statusStyle(inspection::CapabilityStatus status)
{
    using inspection::CapabilityStatus;
    switch (status) {
    case CapabilityStatus::Supported:
        return {u"checkmark.circle.fill"_s, Role::Supported, Role::SupportedSoft, Role::SupportedText};
    case CapabilityStatus::Unsupported:
        return {u"xmark.square.fill"_s, Role::Unsupported, Role::UnsupportedSoft, Role::UnsupportedText};
    case CapabilityStatus::Warning:
        return {u"exclamationmark.triangle.fill"_s, Role::Warning, Role::WarningSoft, Role::WarningText};
    case CapabilityStatus::Info:
        break;
    }
    return {u"info.circle"_s, Role::Info, Role::InfoSoft, Role::InfoText};
}

} // namespace quillmark::design

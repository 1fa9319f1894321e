// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "inspection/CapabilityModel.h"

#include <QColor>
#include <QString>

#include <array>
#include <cstddef>

namespace quillmark::design {

/// What a colour is for. Marks are shapes, Soft their grounds, Text the words beside them.
enum class Role {
    Window,        ///< content ground, dialogs
    Sidebar,       ///< sidebar, ground of a preview
    Card,          ///< cards, lists, pop-ups, paper
    CardBorder,    ///< border of cards and sidebar, rules between rows on paper
    Hairline,      ///< separators, chart grid, tracks
    Control,       ///< buttons, fields
    ControlBorder, ///< their border, base line of charts
    ControlStrong, ///< outline of check boxes and radio buttons
    Text,
    Text2, ///< secondary text, idle icons
    Text3, ///< captions, placeholders, axis labels
    Accent,
    AccentSoft,
    AccentText, ///< text on AccentSoft, plain buttons
    NavSelected,
    OnAccent,
    Supported,
    SupportedSoft,
    SupportedText,
    Unsupported,
    UnsupportedSoft,
    UnsupportedText,
    Warning,
    WarningSoft,
    WarningText,
    Info,
    InfoSoft,
    InfoText,
    ChartProcessor,
    ChartMemory,
    ChartReceived,
    ChartPressure,
    ChartSent,
};
inline constexpr std::size_t roleCount = static_cast<std::size_t>(Role::ChartSent) + 1;

/// The colours of one appearance, looked up by role.
class Theme
{
public:
    static const Theme &light(); ///< paper has it too, whatever the window shows
    static const Theme &dark();

    QColor color(Role role) const { return QColor::fromRgb(m_colors[static_cast<std::size_t>(role)]); }

private:
    using Colors = std::array<QRgb, roleCount>;

    explicit constexpr Theme(const Colors &colors)
        : m_colors(colors)
    {}

    Colors m_colors;
};

/// How a status looks: a shape, and colours for it, its ground and its word.
struct StatusStyle
{
    QString symbol; ///< name of its mark
    Role mark;
    Role soft;
    Role text;
};

StatusStyle statusStyle(inspection::CapabilityStatus status);

} // namespace quillmark::design

// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "reports/pdf/Typesetter.h"

namespace quillmark::reports {

/// The page that a report is laid out for.
struct Sheet
{
    qreal width;
    qreal height;

    static constexpr qreal margin = 48; ///< left and right
    static constexpr qreal top = 44;

    qreal left() const { return margin; }
    qreal right() const { return width - margin; }
    qreal footerRule() const { return height - 42; }
    qreal bodyTop() const { return 75.5; }
    qreal bodyBottom() const { return footerRule() - 10; }
};

namespace styles {

inline constexpr qreal row = 19; ///< least height of a row
inline constexpr qreal headingHeight = 22;

using design::Role;

inline constexpr TextStyle brand{11, QFont::Bold, Role::Text, 14};
inline constexpr TextStyle question{10, QFont::DemiBold, Role::AccentText, 14};
inline constexpr TextStyle machine{30, QFont::Bold, Role::Text, 36, -2.7};
inline constexpr TextStyle hardware{12, QFont::Normal, Role::Text, 17};
inline constexpr TextStyle panelTitle{13, QFont::Bold, Role::Text, 17};
inline constexpr TextStyle panelText{9, QFont::Normal, Role::Text2, 12};
inline constexpr TextStyle count{9.5, QFont::Bold, Role::Text, 13};
inline constexpr TextStyle countWord{9.5, QFont::Normal, Role::Text, 13};
inline constexpr TextStyle factLabel{8, QFont::Normal, Role::Text3, 11};
inline constexpr TextStyle fact{10, QFont::Medium, Role::Text, 13};
inline constexpr TextStyle heading{11, QFont::Bold, Role::Text, 14};
inline constexpr TextStyle label{9, QFont::Medium, Role::Text, 12};
inline constexpr TextStyle value{9, QFont::Normal, Role::Text, 12};
inline constexpr TextStyle aside{9, QFont::Normal, Role::Text2, 12};
inline constexpr TextStyle caption{8, QFont::Normal, Role::Text3, 12};
inline constexpr TextStyle footer{7.5, QFont::Normal, Role::Text3, 10};

inline TextStyle word(Role color)
{
    return {8, QFont::Medium, color, 12};
}

} // namespace styles

} // namespace quillmark::reports

// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/PropertyValue.h"

#include <QSize>
#include <QSizeF>
#include <QString>

#include <optional>

namespace quillmark::inspection {

/// What a display says of itself (VESA E-EDID, CTA-861). Its serial numbers are not read.
struct Edid
{
    std::optional<QString> name;
    std::optional<QSize> preferredSize;  ///< pixels
    std::optional<double> preferredRate; ///< Hz; of fields when the picture is interlaced
    std::optional<QSizeF> screenSize;    ///< mm
    /// Takes pictures of high dynamic range (PQ or HLG), of more than sRGB's colours. Absent where a part of
    /// the description that could say so is missing, damaged or of a kind that is not read.
    std::optional<bool> hasHighDynamicRange;
    std::optional<bool> hasWideColor;
};

/// None when the bytes do not begin with a whole description, its checksum right.
std::optional<Edid> parseEdid(const platform::Bytes &bytes);

} // namespace quillmark::inspection

// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "json/Reader.h"
#include "json/Writer.h"
#include "platform/PropertyValue.h"

#include <expected>
#include <optional>
#include <string>
#include <string_view>

namespace quillmark::platform {

/// Reads a JSON object as a dictionary. Of members with one name the last one counts. `{"hex": "00ff"}`
/// stands for bytes.
std::expected<PropertyMap, json::Error> parseProperties(std::string_view text);

/// The reverse, for a value within a larger text.
void writeProperty(json::Writer &writer, const PropertyValue &property);
void writeProperties(json::Writer &writer, const PropertyMap &properties);

/// Writes bytes in the form `{"hex": "00ff"}`.
void writeBytes(json::Writer &writer, const Bytes &bytes);

} // namespace quillmark::platform

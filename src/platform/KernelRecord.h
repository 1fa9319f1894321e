// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/PropertyValue.h"

#include <cstddef>
#include <span>
#include <string_view>

namespace quillmark::platform {

/// Adds the number's bytes in this machine's order.
template <typename Number>
void appendNumber(Bytes &record, Number number)
{
    const auto bytes = std::as_bytes(std::span(&number, 1));
    record.insert(record.end(), bytes.begin(), bytes.end());
}

/// The form of a kernel value that is a number: its own bytes.
template <typename Number>
Bytes numberRecord(Number number)
{
    Bytes record;
    appendNumber(record, number);
    return record;
}

/// The form of a kernel value that is a text: it ends with a zero byte.
inline Bytes textRecord(std::string_view text)
{
    const auto bytes = std::as_bytes(std::span(text));
    Bytes record(bytes.begin(), bytes.end());
    record.push_back(std::byte{0});
    return record;
}

} // namespace quillmark::platform

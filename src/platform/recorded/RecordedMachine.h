// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/Machine.h"

#include <cstddef>
#include <expected>
#include <filesystem>
#include <memory>
#include <string>
#include <string_view>

namespace quillmark::platform {

/// The largest recording that is read, in bytes. Real ones have a few thousand.
inline constexpr std::size_t maximumRecordingSize = std::size_t{16} * 1024 * 1024;

/// Why a recording cannot stand in for a machine: one line that names the file and, where there is one, the
/// member.
struct RecordingError
{
    std::string text;
};

using RecordedMachine = std::expected<std::unique_ptr<Machine>, RecordingError>;

/// The machine that the file describes in the format "quillmark-machine-1" (docs/recorded-machines.md).
RecordedMachine openRecording(const std::filesystem::path &file);

/// The same from the text of such a file; `name` stands for the file in errors.
RecordedMachine parseRecording(std::string_view text, std::string_view name);

} // namespace quillmark::platform

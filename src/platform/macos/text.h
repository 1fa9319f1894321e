// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <optional>
#include <string>

@class NSString;

namespace quillmark::platform {

/// In UTF-8; none for nil and for what has no such form.
std::optional<std::string> textOf(NSString *text);

} // namespace quillmark::platform

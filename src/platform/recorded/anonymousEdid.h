// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/PropertyValue.h"

namespace quillmark::platform::recorded {

/// A display's description (VESA E-EDID) without what tells one specimen from another: serial numbers, free
/// texts, what makers put in data blocks of their own, and of an extension whatever is no data block of
/// CTA-861. Each block's checksum changes with its content, so that a block is as right or wrong as it was.
/// Empty when the bytes are no description.
Bytes anonymousEdid(Bytes edid);

} // namespace quillmark::platform::recorded

// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "update/FeedSource.h"

namespace quillmark::update {

/// The function that the module quillmark-update exports, with C linkage, as `makeFeedSourceName`: a source
/// that asks over the network, for the caller to own. It needs a QCoreApplication when it is asked. Null when
/// `version`, the program’s, is not the module's: they are built together, and their types cross as they are.
using MakeFeedSource = FeedSource *(const char *version);

inline constexpr const char *makeFeedSourceName = "quillmark_makeFeedSource";

} // namespace quillmark::update

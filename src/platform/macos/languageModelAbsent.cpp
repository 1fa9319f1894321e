// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "platform/macos/languageModel.h"

// For a build without a Swift compiler.
extern "C" std::int32_t quillmarkLanguageModelState()
{
    return -1;
}

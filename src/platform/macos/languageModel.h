// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>

/// The state of the on-device language model, as Intelligence::languageModelState() numbers it; −1 when this
/// program was built without the framework that tells. Written in Swift, the framework's only language.
extern "C" std::int32_t quillmarkLanguageModelState();

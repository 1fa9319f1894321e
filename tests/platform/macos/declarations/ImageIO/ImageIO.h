// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <CoreFoundation/CoreFoundation.h>

CF_EXTERN_C_BEGIN

CFArrayRef CGImageSourceCopyTypeIdentifiers(void);
CFArrayRef CGImageDestinationCopyTypeIdentifiers(void);

CF_EXTERN_C_END

// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <CoreFoundation/CoreFoundation.h>

CF_EXTERN_C_BEGIN

CFTypeRef IOPSCopyPowerSourcesInfo(void);
CFArrayRef IOPSCopyPowerSourcesList(CFTypeRef information);
CFDictionaryRef IOPSGetPowerSourceDescription(CFTypeRef information, CFTypeRef source);
CFStringRef IOPSGetProvidingPowerSourceType(CFTypeRef information);
CFDictionaryRef IOPSCopyExternalPowerAdapterDetails(void);

CF_EXTERN_C_END

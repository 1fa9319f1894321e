// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "platform/macos/text.h"

#import <Foundation/Foundation.h>

namespace quillmark::platform {

std::optional<std::string> textOf(NSString *text)
{
    const char *bytes = text.UTF8String;
    return bytes ? std::optional<std::string>(bytes) : std::nullopt;
}

} // namespace quillmark::platform

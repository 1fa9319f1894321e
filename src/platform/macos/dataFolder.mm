// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "platform/dataFolder.h"

#include "platform/macos/text.h"

#import <Foundation/Foundation.h>

namespace quillmark::platform {

/// Application Support.
std::filesystem::path dataFolder()
{
    @autoreleasepool {
        for (NSString *folder in NSSearchPathForDirectoriesInDomains(NSApplicationSupportDirectory,
                                                                     NSUserDomainMask, YES)) {
            if (const auto path = textOf(folder))
                return *path;
        }
        return std::filesystem::path(textOf(NSHomeDirectory()).value_or("/")) / "Library/Application Support";
    }
}

} // namespace quillmark::platform

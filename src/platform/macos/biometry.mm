// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "platform/macos/biometry.h"

#import <LocalAuthentication/LocalAuthentication.h>

namespace quillmark::platform {

Biometry readBiometry()
{
    @autoreleasepool {
        LAContext *context = [[LAContext alloc] init];
        NSError *error = nil;
        Biometry biometry = {.canEvaluate = static_cast<bool>([context
                                 canEvaluatePolicy:LAPolicyDeviceOwnerAuthenticationWithBiometrics
                                             error:&error])};
        // Means nothing before that call.
        biometry.biometryType = static_cast<std::int64_t>(context.biometryType);
        if (!biometry.canEvaluate && error)
            biometry.error = error.code;
        return biometry;
    }
}

} // namespace quillmark::platform

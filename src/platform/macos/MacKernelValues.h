// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/KernelValues.h"

namespace quillmark::platform {

/// sysctlbyname(3).
class MacKernelValues final : public KernelValues
{
public:
    std::optional<Bytes> read(std::string_view name) const override;
};

} // namespace quillmark::platform

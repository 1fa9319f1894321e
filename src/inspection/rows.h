// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "inspection/CapabilityModel.h"

#include <QString>

namespace quillmark::inspection {

/// Stands for a fact that the system does not give.
QString missing();

/// Stands for a fact that the system has but did not tell.
QString notReadable();

/// A plain fact.
CapabilityItem fact(const QString &key, const QString &label, const QString &value);

/// A capability that is "Supported" or "Not supported".
CapabilityItem capability(const QString &key, const QString &label, bool isSupported);

} // namespace quillmark::inspection

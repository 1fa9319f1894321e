// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "language/Formats.h"

#include <QString>
#include <QStringList>

#include <cstdint>

// Parts of values that several sections show.

namespace quillmark::inspection {

/// "AMD Radeon (low power and external eGPU)"; the name alone when there are no tags.
QString withTags(const QString &name, const QStringList &tags, const language::Formats &formats);

/// "1,200"
QString wholeNumber(std::int64_t value, const language::Formats &formats);

/// "44.1", "48": rounded to so many digits after the point, without zeros at the end.
QString shortNumber(double value, int fractionDigits, const language::Formats &formats);

/// "80 %"
QString percentText(int percent, const language::Formats &formats);

/// "1920 × 1080"
QString sizeText(int width, int height);

} // namespace quillmark::inspection

// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "inspection/values.h"

#include <cmath>

namespace quillmark::inspection {

using namespace Qt::StringLiterals;

QString withTags(const QString &name, const QStringList &tags, const language::Formats &formats)
{
    return tags.isEmpty() ? name : u"%1 (%2)"_s.arg(name, formats.list(tags));
}

QString shortNumber(double value, int fractionDigits, const language::Formats &formats)
{
    double scaled = std::round(value * std::pow(10, fractionDigits));
    while (fractionDigits > 0 && std::fmod(scaled, 10) == 0) {
        scaled /= 10;
        --fractionDigits;
    }
    return formats.number(value, fractionDigits);
}

} // namespace quillmark::inspection

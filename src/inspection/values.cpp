// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "inspection/values.h"

#include "inspection/Text.h"

#include <cmath>

namespace quillmark::inspection {

using namespace Qt::StringLiterals;

QString withTags(const QString &name, const QStringList &tags, const language::Formats &formats)
{
    return tags.isEmpty() ? name : u"%1 (%2)"_s.arg(name, formats.list(tags));
}

QString wholeNumber(std::int64_t value, const language::Formats &formats)
{
    return formats.number(static_cast<double>(value));
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

QString percentText(int percent, const language::Formats &formats)
{
    return Text::tr("%1\u00a0%").arg(formats.number(percent));
}

QString sizeText(int width, int height)
{
    return u"%1 × %2"_s.arg(width).arg(height);
}

} // namespace quillmark::inspection

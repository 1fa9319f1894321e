// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "history/fieldTexts.h"

#include <algorithm>
#include <array>
#include <string>

namespace quillmark::history {

using inspection::allStatuses;
using inspection::CapabilityStatus;

namespace {

const std::array<std::string, allStatuses.size()> &statusNames()
{
    static const auto names = [] {
        std::array<std::string, allStatuses.size()> result;
        std::ranges::transform(allStatuses, result.begin(),
                               [](CapabilityStatus status) { return rawValue(status).toStdString(); });
        return result;
    }();
    return names;
}

} // namespace

QString idText(const QUuid &id)
{
    return id.toString(QUuid::WithoutBraces).toUpper();
}

std::optional<QUuid> idFrom(std::string_view text)
{
    constexpr std::string_view form = "xxxxxxxx-xxxx-xxxx-xxxx-xxxxxxxxxxxx";
    const auto fits = [](char c, char wanted) {
        return wanted == '-' ? c == '-'
                             : (c >= '0' && c <= '9') || (c >= 'a' && c <= 'f') || (c >= 'A' && c <= 'F');
    };
    if (!std::ranges::equal(text, form, fits))
        return std::nullopt;
    return QUuid::fromString(QLatin1StringView(text.data(), static_cast<qsizetype>(text.size())));
}

std::optional<QDateTime> dateFrom(std::string_view text)
{
    constexpr std::string_view form = "dddd-dd-ddTdd:dd:ddZ";
    const auto fits = [](char c, char wanted) { return wanted == 'd' ? c >= '0' && c <= '9' : c == wanted; };
    if (!std::ranges::equal(text, form, fits))
        return std::nullopt;
    const auto number = [text](std::size_t at, std::size_t digits) {
        int value = 0;
        for (const char c : text.substr(at, digits))
            value = 10 * value + (c - '0');
        return value;
    };
    const QDate day(number(0, 4), number(5, 2), number(8, 2));
    const QTime time(number(11, 2), number(14, 2), number(17, 2));
    if (!day.isValid() || !time.isValid())
        return std::nullopt;
    return QDateTime(day, time, Qt::UTC);
}

std::string_view statusText(CapabilityStatus status)
{
    return statusNames()[static_cast<std::size_t>(status)];
}

std::optional<CapabilityStatus> statusFrom(std::string_view text)
{
    const auto place = std::ranges::find(statusNames(), text);
    if (place == statusNames().end())
        return std::nullopt;
    return allStatuses[static_cast<std::size_t>(place - statusNames().begin())];
}

} // namespace quillmark::history

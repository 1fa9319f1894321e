// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "inspection/CapabilityModel.h"

#include <QDateTime>
#include <QString>
#include <QUuid>

#include <optional>
#include <string_view>

namespace quillmark::history {

/// The identifier as files and the command line write it: in capitals, without braces.
QString idText(const QUuid &id);

/// Of exactly eight, four, four, four and twelve digits, of either case.
std::optional<QUuid> idFrom(std::string_view text);

/// The date as files and the command line write it: "2026-11-22T20:35:32Z".
QString dateText(const QDateTime &date);

/// Of exactly that form, and a moment that there is.
std::optional<QDateTime> dateFrom(std::string_view text);

/// "supported", "unsupported", "warning", "info".
std::string_view statusText(inspection::CapabilityStatus status);

std::optional<inspection::CapabilityStatus> statusFrom(std::string_view text);

} // namespace quillmark::history

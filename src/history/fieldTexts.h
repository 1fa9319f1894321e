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

/// A moment that there is, in exactly the form of language::utcText().
std::optional<QDateTime> dateFrom(std::string_view text);

/// "supported", "unsupported", "warning", "info".
std::string_view statusText(inspection::CapabilityStatus status);

std::optional<inspection::CapabilityStatus> statusFrom(std::string_view text);

} // namespace quillmark::history

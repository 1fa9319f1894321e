// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/Command.h"

#include <QString>
#include <QStringView>

#include <optional>
#include <utility>
#include <vector>

namespace quillmark::inspection {

/// What the program `vainfo` says of a graphics processor.
struct VideoAcceleration
{
    /// Names as in the output: {"VAProfileH264Main", "VAEntrypointVLD"}.
    using Entries = std::vector<std::pair<QString, QString>>;

    std::optional<QString> driver;
    std::optional<Entries> entries; ///< none unless the list is complete; it may be empty

    /// Whether the profile has an entry point whose name begins so.
    bool has(QStringView profile, QStringView entryPoint) const;
    /// The same for any profile of a codec: those whose names begin so.
    bool hasAny(QStringView codec, QStringView entryPoint) const;
};

VideoAcceleration videoAcceleration(const platform::CommandAnswer &vainfo);

} // namespace quillmark::inspection

// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QCoreApplication>

namespace quillmark::battery {

/// The words about a battery in the interface language of the moment.
class Text
{
    Q_DECLARE_TR_FUNCTIONS(Battery)
};

} // namespace quillmark::battery

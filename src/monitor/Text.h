// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QCoreApplication>

namespace quillmark::monitor {

/// The words of the live monitor in the interface language of the moment.
class Text
{
    Q_DECLARE_TR_FUNCTIONS(Monitor)
};

} // namespace quillmark::monitor

// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QCoreApplication>

namespace quillmark::reports {

/// The words of a report in the interface language of the moment.
class Text
{
    Q_DECLARE_TR_FUNCTIONS(Report)
};

} // namespace quillmark::reports

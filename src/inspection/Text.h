// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QCoreApplication>

namespace quillmark::inspection {

/// The words of an inspection: Text::tr("Uptime") is the text in the interface language of the moment.
class Text
{
    Q_DECLARE_TR_FUNCTIONS(Inspection)
};

} // namespace quillmark::inspection

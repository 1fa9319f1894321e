// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QCoreApplication>

namespace quillmark::update {

/// What is said about newer versions, in the interface language of the moment.
class Text
{
    Q_DECLARE_TR_FUNCTIONS(Update)
};

} // namespace quillmark::update

// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "update/UpdateChecker.h"

#include <QByteArray>

namespace quillmark::cli {

/// What came of a check that did not fail (update-v1).
QByteArray updateJson(const update::CheckResult &result, const update::UpdateChecker &checker,
                      const update::Version &running);

/// The requests that were sent, the oldest first.
QByteArray ledgerJson(const QList<update::Exchange> &exchanges);

} // namespace quillmark::cli

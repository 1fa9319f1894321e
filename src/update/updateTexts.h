// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "update/UpdateChecker.h"

#include <QString>

// What is said about newer versions, in the interface language; the window and the command line say the same.

namespace quillmark::update {

/// The question for the user’s consent: "Quillmark can ask tarnwick.com …"
QString consentQuestion(const QString &host);
/// What is sent, for whoever wants to know before saying yes.
QString consentNote();

/// "Quillmark 1.2 is available. You have version 1.0.0."
QString headline(const CheckResult &result, const Version &running);
/// Why it failed, in one sentence; `feed` is the address that was asked.
QString reasonText(const CheckFailure &failure, const QUrl &feed);

} // namespace quillmark::update

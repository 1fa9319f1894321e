// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "inspection/rows.h"
#include "platform/Command.h"

#include <optional>

/// What the helper programs say of a Mac's protections, by the words that each is known to use. Any other
/// wording, like no answer, gives no verdict; the exit status says nothing that the words do not.
namespace quillmark::inspection {

using HelperAnswer = std::optional<platform::CommandAnswer>;

/// `isDiskEncrypted`: by the hardware, with or without FileVault.
std::optional<Verdict> fileVaultVerdict(const HelperAnswer &answer, bool isDiskEncrypted);
std::optional<Verdict> integrityProtectionVerdict(const HelperAnswer &answer);
std::optional<Verdict> gatekeeperVerdict(const HelperAnswer &answer);
std::optional<Verdict> firewallVerdict(const HelperAnswer &answer);

} // namespace quillmark::inspection

// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

class QDateTime;
class QString;

namespace quillmark::language {

/// The moment as files and the command line write it, in every language: "2026-11-22T20:35:32Z".
QString utcText(const QDateTime &moment);

} // namespace quillmark::language

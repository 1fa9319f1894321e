// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QString>

#include <expected>

namespace quillmark::update {

/// Empty when there is no such file; the reason when it cannot be read or is longer than any that is written
/// here.
std::expected<QByteArray, QString> readPrivateFile(const QString &path);

/// Writes the file whole or not at all, for its owner alone to read; makes its folder. False: it could not.
bool writePrivateFile(const QString &path, const QByteArray &bytes);

/// Makes the folder that a file is to stand in. False: it could not.
bool makePrivateFolder(const QString &path);

} // namespace quillmark::update

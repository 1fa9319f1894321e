// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "update/privateFile.h"

#include "platform/posix/writeFile.h"

#include <QFile>

#include <filesystem>
#include <string_view>

namespace quillmark::update {

namespace {

constexpr qint64 longest = 4 << 20;

} // namespace

std::expected<QByteArray, QString> readPrivateFile(const QString &path)
{
    if (platform::exists(QFile::encodeName(path).toStdString()) == false)
        return {};
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return std::unexpected(file.errorString());
    if (file.size() > longest)
        return std::unexpected(QStringLiteral("longer than any that Quillmark writes"));
    auto bytes = file.read(longest);
    if (file.error() != QFileDevice::NoError)
        return std::unexpected(file.errorString());
    return bytes;
}

bool writePrivateFile(const QString &path, const QByteArray &bytes)
{
    const std::filesystem::path file = QFile::encodeName(path).toStdString();
    const std::string_view text(bytes.constData(), static_cast<std::size_t>(bytes.size()));
    return makePrivateFolder(path) &&
           platform::writeFile(file, text, platform::Existing::Replace, 0600).has_value();
}

bool makePrivateFolder(const QString &path)
{
    const std::filesystem::path file = QFile::encodeName(path).toStdString();
    return platform::makeFolder(file.parent_path(), 0700).has_value();
}

} // namespace quillmark::update

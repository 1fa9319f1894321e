// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "update/RequestLedger.h"

#include "platform/posix/FileLock.h"
#include "update/privateFile.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <chrono>

namespace quillmark::update {

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype mostExchanges = 50;
constexpr std::chrono::milliseconds patience{200};

QJsonObject toJson(const Exchange &exchange)
{
    QJsonObject object = {{u"date"_s, exchange.date.toString(Qt::ISODateWithMs)},
                          {u"url"_s, exchange.url.toString(QUrl::FullyEncoded)}};
    if (exchange.status != 0) {
        object[u"status"_s] = exchange.status;
        object[u"bytes"_s] = exchange.bytes;
    }
    if (!exchange.failure.isEmpty())
        object[u"failure"_s] = exchange.failure;
    return object;
}

Exchange fromJson(const QJsonObject &object)
{
    return {.date = QDateTime::fromString(object[u"date"_s].toString(), Qt::ISODateWithMs),
            .url = QUrl(object[u"url"_s].toString()),
            .status = object[u"status"_s].toInt(),
            .bytes = object[u"bytes"_s].toInteger(),
            .failure = object[u"failure"_s].toString()};
}

} // namespace

std::expected<QList<Exchange>, QString> RequestLedger::exchanges() const
{
    const auto text = readPrivateFile(m_file);
    if (!text)
        return std::unexpected(text.error());
    QList<Exchange> exchanges;
    if (text->isEmpty())
        return exchanges;
    const auto document = QJsonDocument::fromJson(*text);
    if (!document.isArray())
        return std::unexpected(u"not a list of requests"_s);
    for (const auto &entry : document.array())
        exchanges.append(fromJson(entry.toObject()));
    return exchanges;
}

bool RequestLedger::begin(const Exchange &exchange)
{
    return change([&](QList<Exchange> &all) { all.append(exchange); });
}

bool RequestLedger::complete(const Exchange &begun, const QList<Exchange> &exchanges)
{
    return change([&](QList<Exchange> &all) {
        all.removeOne(begun);
        all += exchanges;
    });
}

bool RequestLedger::change(const std::function<void(QList<Exchange> &)> &change)
{
    // The window and the command line may write it at the same time.
    platform::FileLock lock;
    if (!makePrivateFolder(m_file) ||
        !lock.take(QFile::encodeName(m_file + ".lock"_L1).toStdString(), patience))
        return false;
    const auto kept = exchanges();
    if (!kept && !putAside())
        return false;
    auto all = kept.value_or(QList<Exchange>());
    change(all);
    QJsonArray array;
    for (const auto &exchange : all.last(std::min(all.size(), mostExchanges)))
        array.append(toJson(exchange));
    return writePrivateFile(m_file, QJsonDocument(array).toJson());
}

/// Fails rather than replace a file.
bool RequestLedger::putAside() const
{
    const auto time = QDateTime::currentDateTimeUtc().toString(u"yyyyMMdd-HHmmss"_s);
    return QFile::rename(m_file, u"%1.unreadable-%2"_s.arg(m_file, time));
}

} // namespace quillmark::update

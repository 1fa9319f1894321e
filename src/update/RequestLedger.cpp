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

QList<Exchange> RequestLedger::exchanges() const
{
    QList<Exchange> exchanges;
    for (const auto &entry : QJsonDocument::fromJson(readPrivateFile(m_file)).array())
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
    auto all = exchanges();
    change(all);
    QJsonArray array;
    for (const auto &exchange : all.last(std::min(all.size(), mostExchanges)))
        array.append(toJson(exchange));
    return writePrivateFile(m_file, QJsonDocument(array).toJson());
}

} // namespace quillmark::update

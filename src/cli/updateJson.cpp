// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "cli/updateJson.h"

#include "json/Writer.h"

#include <string_view>

namespace quillmark::cli {

namespace {

void writeText(json::Writer &writer, std::string_view name, const QString &text)
{
    if (!text.isEmpty())
        writer.member(name, std::string_view(text.toStdString()));
}

void writeUrl(json::Writer &writer, std::string_view name, const QUrl &url)
{
    writeText(writer, name, url.toString(QUrl::FullyEncoded));
}

void writeDate(json::Writer &writer, std::string_view name, const QDateTime &date)
{
    writeText(writer, name, date.toString(Qt::ISODate));
}

void writeOffer(json::Writer &writer, const update::Offer &offer)
{
    writer.key("item");
    writer.beginObject();
    writeText(writer, "version", offer.version.text());
    writeText(writer, "title", offer.title);
    writer.member("isCritical", offer.isCritical);
    writeUrl(writer, "downloadPage", offer.downloadPage);
    writeUrl(writer, "releaseNotes", offer.releaseNotes);
    writeText(writer, "notes", offer.notes);
    writeDate(writer, "published", offer.published);
    writer.endObject();
}

} // namespace

QByteArray updateJson(const update::CheckResult &result, const update::UpdateChecker &checker,
                      const update::Version &running)
{
    const auto *available = std::get_if<update::Available>(&result);
    json::Writer writer;
    writer.beginObject();
    writer.member("schema", "update-v1");
    writeText(writer, "version", running.text());
    writeUrl(writer, "feed", checker.feed());
    if (const auto date = checker.lastChecked())
        writeDate(writer, "date", *date);
    writer.member("status", !available ? "upToDate" : available->isSkipped ? "skipped" : "available");
    if (available)
        writeOffer(writer, available->offer);
    writer.endObject();
    return QByteArray::fromStdString(writer.take() + '\n');
}

QByteArray ledgerJson(const QList<update::Exchange> &exchanges)
{
    json::Writer writer;
    writer.beginArray();
    for (const auto &exchange : exchanges) {
        writer.beginObject();
        writeDate(writer, "date", exchange.date);
        writeUrl(writer, "url", exchange.url);
        if (exchange.status != 0) {
            writer.member("status", exchange.status);
            writer.member("bytes", exchange.bytes);
        }
        writeText(writer, "failure", exchange.failure);
        writer.endObject();
    }
    writer.endArray();
    return QByteArray::fromStdString(writer.take() + '\n');
}

} // namespace quillmark::cli

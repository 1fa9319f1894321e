// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "cli/historyJson.h"

#include "json/Writer.h"
#include "language/utcText.h"

namespace quillmark::cli {

namespace {

QByteArray finished(json::Writer &writer)
{
    return QByteArray::fromStdString(writer.take()) + '\n';
}

void addMember(json::Writer &writer, const char *name, const std::optional<QString> &text)
{
    if (text)
        writer.member(name, text->toStdString());
}

void addScan(json::Writer &writer, const history::ScanDigest &scan)
{
    writer.beginObject();
    addMember(writer, "id", history::idText(scan.id));
    addMember(writer, "date", language::utcText(scan.date));
    addMember(writer, "deviceName", scan.deviceName);
    addMember(writer, "modelIdentifier", scan.modelIdentifier);
    addMember(writer, "osVersion", scan.osVersion);
    addMember(writer, "language", scan.language);
    writer.member("score", scan.counts.score());
    writer.key("counts");
    writer.beginObject();
    for (const auto status : inspection::allStatuses)
        writer.member(rawValue(status).toStdString(), scan.counts.of(status));
    writer.endObject();
    writer.endObject();
}

} // namespace

QByteArray scansJson(const std::vector<history::ScanDigest> &scans)
{
    json::Writer writer;
    writer.beginArray();
    for (const auto &scan : scans)
        addScan(writer, scan);
    writer.endArray();
    return finished(writer);
}

QByteArray changesJson(const QList<history::SnapshotChange> &changes)
{
    json::Writer writer;
    writer.beginArray();
    for (const auto &change : changes) {
        writer.beginObject();
        addMember(writer, "section", change.section);
        addMember(writer, "label", change.label);
        addMember(writer, "oldValue", change.oldValue);
        addMember(writer, "newValue", change.newValue);
        writer.endObject();
    }
    writer.endArray();
    return finished(writer);
}

} // namespace quillmark::cli

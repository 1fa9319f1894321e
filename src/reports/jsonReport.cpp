// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "json/Writer.h"
#include "language/utcText.h"
#include "reports/Report.h"

namespace quillmark::reports {

namespace {

using inspection::CapabilityItem;
using inspection::CapabilitySection;

class ReportWriter
{
public:
    QByteArray write(const Report &report)
    {
        m_writer.beginObject();
        m_writer.member("schema", "report-v1");
        writeApplication();
        if (report.date)
            text("date", language::utcText(*report.date));
        text("language", report.language);
        writeSummary(report.summary);
        m_writer.member("score", inspection::capabilityScore(report.sections));
        writeCounts(report.sections);
        writeLeftOut(report.leftOut);
        m_writer.key("sections");
        m_writer.beginArray();
        for (const auto &section : filteredSections(report))
            writeSection(section);
        m_writer.endArray();
        m_writer.endObject();
        return QByteArray::fromStdString(m_writer.text() + '\n');
    }

private:
    void text(std::string_view name, const QString &value)
    {
        const auto utf8 = value.toUtf8();
        m_writer.member(name, std::string_view(utf8.constData(), static_cast<std::size_t>(utf8.size())));
    }

    void writeApplication()
    {
        m_writer.key("application");
        m_writer.beginObject();
        m_writer.member("name", "Quillmark");
        text("version", applicationVersion());
        m_writer.endObject();
    }

    void writeSummary(const inspection::DeviceSummary &summary)
    {
        m_writer.key("summary");
        m_writer.beginObject();
        text("deviceName", summary.deviceName);
        text("modelIdentifier", summary.modelIdentifier);
        text("chip", summary.chip);
        text("memory", summary.memory);
        text("storage", summary.storage);
        text("osVersion", summary.osVersion);
        m_writer.member("isAppleSilicon", summary.isAppleSilicon);
        m_writer.member("hasBattery", summary.hasBattery);
        m_writer.endObject();
    }

    void writeCounts(const QList<CapabilitySection> &sections)
    {
        m_writer.key("counts");
        m_writer.beginObject();
        for (const auto status : inspection::allStatuses)
            m_writer.member(rawValue(status).toStdString(),
                            std::int64_t{inspection::count(sections, status)});
        m_writer.endObject();
    }

    void writeLeftOut(const QList<PrivateText> &leftOut)
    {
        if (leftOut.isEmpty())
            return;
        m_writer.key("leftOut");
        m_writer.beginArray();
        for (const auto text : leftOut)
            m_writer.string(rawValue(text).toStdString());
        m_writer.endArray();
    }

    void writeSection(const CapabilitySection &section)
    {
        m_writer.beginObject();
        if (section.key)
            text("key", *section.key);
        text("title", section.title);
        text("symbol", section.symbol);
        m_writer.key("items");
        m_writer.beginArray();
        for (const auto &item : section.items)
            writeItem(item);
        m_writer.endArray();
        m_writer.endObject();
    }

    void writeItem(const CapabilityItem &item)
    {
        m_writer.beginObject();
        if (item.key)
            text("key", *item.key);
        text("label", item.label);
        text("value", item.value);
        text("status", rawValue(item.status));
        m_writer.member("isVolatile", item.isVolatile);
        m_writer.endObject();
    }

    json::Writer m_writer;
};

} // namespace

QByteArray json(const Report &report)
{
    return ReportWriter().write(report);
}

} // namespace quillmark::reports

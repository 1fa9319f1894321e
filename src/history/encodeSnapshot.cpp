// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "history/recordFields.h"
#include "history/snapshotJson.h"
#include "json/Writer.h"
#include "language/utcText.h"

namespace quillmark::history {

namespace {

class Encoder
{
public:
    template <typename Record>
    void write(const Record &record)
    {
        m_json.beginObject();
        forEachField<Record>([&](const auto &field) { member(field.name, record.*field.place); });
        m_json.endObject();
    }

    QByteArray finish() { return QByteArray::fromStdString(m_json.take()); }

private:
    template <typename Value>
    void member(std::string_view name, const Value &value)
    {
        m_json.key(name);
        write(value);
    }

    template <typename Value>
    void member(std::string_view name, const std::optional<Value> &value)
    {
        if (value)
            member(name, *value);
    }

    template <typename Record>
    void write(const QList<Record> &records)
    {
        m_json.beginArray();
        for (const auto &record : records)
            write(record);
        m_json.endArray();
    }

    void write(const QString &text)
    {
        m_json.string(std::u16string_view(QStringView(text).utf16(), static_cast<std::size_t>(text.size())));
    }
    void write(const QUuid &id) { write(idText(id)); }
    void write(const QDateTime &date) { write(language::utcText(date)); }
    void write(inspection::CapabilityStatus status) { m_json.string(statusText(status)); }
    void write(bool value) { m_json.boolean(value); }

    static constexpr std::size_t usualSize = std::size_t{16} * 1024; ///< of a laptop's scan, and some
    json::Writer m_json{json::Writer::Layout::Compact, usualSize};
};

} // namespace

QByteArray encoded(const ScanSnapshot &snapshot)
{
    Encoder encoder;
    encoder.write(snapshot);
    return encoder.finish();
}

} // namespace quillmark::history

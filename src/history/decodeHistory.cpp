// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "history/TextPool.h"
#include "history/recordFields.h"
#include "history/snapshotJson.h"
#include "json/Reader.h"

#include <algorithm>
#include <array>
#include <string>
#include <utility>

namespace quillmark::history {

using inspection::CapabilityStatus;
using json::Token;

namespace {

/// Reads a history. Each reading function begins after next() has given the first token of its value, and
/// returns whether all was well; the first fault is kept.
class Decoder
{
public:
    explicit Decoder(std::string_view input)
        : m_input(input)
        , m_reader(input)
        , m_texts(input)
    {}

    /// As StoredSnapshot or ScanDigest.
    template <typename Scan>
    std::expected<std::vector<Scan>, QString> decode()
    {
        std::vector<Scan> scans;
        const auto readScan = [this, &scans] {
            m_number = scans.size() + 1;
            return read(scans.emplace_back());
        };
        next();
        if (!readList(readScan) || (next() != Token::End && !notJson()))
            return std::unexpected(m_fault);
        return scans;
    }

private:
    bool read(StoredSnapshot &stored)
    {
        const auto begin = m_reader.position() - 1;
        if (!read(stored.snapshot))
            return false;
        stored.json = QByteArrayView(m_input.data() + begin, m_input.data() + m_reader.position());
        return true;
    }

    /// An object with the record's fields.
    template <typename Record>
    bool read(Record &record)
    {
        constexpr auto &names = fieldNames<Record>;
        if (m_token != Token::BeginObject)
            return wrongType("an object");
        std::size_t expected = 0; // members mostly come in the order of writing
        std::array<bool, names.size()> isFound{};
        while (next() == Token::Key) {
            const auto name = m_reader.text();
            std::size_t member = expected;
            if (member >= names.size() || names[member] != name)
                member = static_cast<std::size_t>(std::ranges::find(names, name) - names.begin());
            expected = member + 1;
            next();
            if (member == names.size()) {
                if (!skip())
                    return false;
                continue;
            }
            m_name = names[member];
            if (!readField(record, member, std::make_index_sequence<names.size()>()))
                return false;
            isFound[member] = true;
        }
        if (m_token != Token::EndObject)
            return notJson();
        for (std::size_t member = 0; member < names.size(); ++member) {
            if (requiredFields<Record>[member] && !isFound[member])
                return failScan(" lacks \"" + std::string(names[member]) + '"');
        }
        return true;
    }

    template <typename Record, std::size_t... numbers>
    bool readField(Record &record, std::size_t wanted, std::index_sequence<numbers...>)
    {
        bool isRead = false;
        static_cast<void>(((wanted == numbers &&
                            (isRead = read(record.*std::get<numbers>(Fields<Record>::all).place), true)) ||
                           ...));
        return isRead;
    }

    template <typename Record>
    bool read(QList<Record> &records)
    {
        constexpr qsizetype usualCount = 8;
        records.clear();
        records.reserve(usualCount);
        return readList([this, &records] { return read(records.emplaceBack()); });
    }

    template <typename ReadElement>
    bool readList(ReadElement readElement)
    {
        if (m_token != Token::BeginArray)
            return wrongType("an array");
        while (next() != Token::EndArray) {
            if (!readElement())
                return false;
        }
        return true;
    }

    template <typename Value>
    bool read(std::optional<Value> &value)
    {
        value.reset();
        return m_token == Token::Null || read(value.emplace());
    }

    bool read(QString &value)
    {
        if (m_token != Token::String)
            return wrongType("a text");
        value = m_texts.text(m_reader.text());
        return true;
    }

    bool read(Unkept &) { return m_token == Token::String || wrongType("a text"); }

    /// Sections, whose rows are only counted.
    bool read(inspection::StatusCounts &counts)
    {
        counts = {};
        return readList([this, &counts] {
            CountedSection section{.title = {}, .symbol = {}, .items = &counts, .key = {}};
            return read(section);
        });
    }

    bool read(inspection::StatusCounts *counts)
    {
        return readList([this, counts] {
            CountedItem item;
            if (!read(item))
                return false;
            counts->add(item.status);
            return true;
        });
    }

    bool read(bool &value)
    {
        value = m_token == Token::True;
        return value || m_token == Token::False || wrongType("true or false");
    }

    bool read(QUuid &id) { return readSpecial(id, idFrom, "a UUID"); }
    bool read(QDateTime &date) { return readSpecial(date, dateFrom, "a date like 2026-11-22T20:35:32Z"); }
    bool read(CapabilityStatus &status) { return readSpecial(status, statusFrom, "a status"); }

    /// A text that stands for something else.
    template <typename Value, typename Parse>
    bool readSpecial(Value &value, Parse parse, const char *kind)
    {
        const auto parsed = m_token == Token::String ? parse(m_reader.text()) : std::nullopt;
        if (!parsed)
            return wrongType(kind);
        value = *parsed;
        return true;
    }

    /// Passes over a value.
    bool skip()
    {
        for (int depth = 0;; next()) {
            if (m_token == Token::BeginObject || m_token == Token::BeginArray)
                ++depth;
            else if (m_token == Token::EndObject || m_token == Token::EndArray)
                --depth;
            else if (m_token == Token::Error)
                return notJson();
            if (depth == 0 && m_token != Token::Key)
                return true;
        }
    }

    Token next() { return m_token = m_reader.next(); }

    bool wrongType(const char *expected)
    {
        if (m_token == Token::Error)
            return notJson();
        if (m_number == 0)
            return fail(std::string("not ") + expected);
        return failScan(": \"" + std::string(m_name) + "\" must be " + expected);
    }

    bool notJson()
    {
        const auto error = m_reader.error();
        return fail("not JSON: line " + std::to_string(error.line) + ", column " +
                    std::to_string(error.column) + ": " + error.reason);
    }

    /// `problem` goes on from the scan that is being read.
    bool failScan(const std::string &problem) { return fail("scan " + std::to_string(m_number) + problem); }

    bool fail(const std::string &fault)
    {
        m_fault = QString::fromStdString(fault);
        return false;
    }

    std::string_view m_input;
    json::Reader m_reader;
    Token m_token = Token::Error; ///< the last one
    TextPool m_texts;
    std::size_t m_number = 0; ///< of the scan that is being read, from 1; 0 before the first
    std::string_view m_name;  ///< of the member that is being read
    QString m_fault;
};

template <typename Scan, typename DateOf>
std::expected<std::vector<Scan>, QString> decodeNewestFirst(QByteArrayView text, DateOf dateOf)
{
    auto scans = Decoder({text.data(), static_cast<std::size_t>(text.size())}).decode<Scan>();
    if (scans)
        std::ranges::stable_sort(*scans, std::ranges::greater(), dateOf);
    return scans;
}

} // namespace

std::expected<std::vector<StoredSnapshot>, QString> decodeHistory(QByteArrayView text)
{
    return decodeNewestFirst<StoredSnapshot>(
        text, [](const StoredSnapshot &stored) { return stored.snapshot.date; });
}

std::expected<std::vector<ScanDigest>, QString> decodeDigests(QByteArrayView text)
{
    return decodeNewestFirst<ScanDigest>(text, &ScanDigest::date);
}

} // namespace quillmark::history

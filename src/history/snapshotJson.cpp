// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "history/snapshotJson.h"

#include "json/Reader.h"
#include "json/Writer.h"

#include <QStringEncoder>

#include <algorithm>
#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_map>

namespace quillmark::history {

using inspection::allStatuses;
using inspection::CapabilityStatus;
using json::Token;

namespace {

// The members of each object, in the order in which they are written. The required ones come first.
template <std::size_t count>
struct Members
{
    std::array<std::string_view, count> names;
    std::size_t required;
};

constexpr Members<8> snapshotMembers = {
    {"id", "date", "deviceName", "modelIdentifier", "chip", "osVersion", "sections", "language"}, 7};
constexpr Members<4> sectionMembers = {{"title", "symbol", "items", "key"}, 3};
constexpr Members<5> itemMembers = {{"label", "value", "status", "isVolatile", "key"}, 4};

const std::array<std::string, allStatuses.size()> &statusNames()
{
    static const auto names = [] {
        std::array<std::string, allStatuses.size()> result;
        std::ranges::transform(allStatuses, result.begin(),
                               [](CapabilityStatus status) { return rawValue(status).toStdString(); });
        return result;
    }();
    return names;
}

class Encoder
{
public:
    QByteArray encode(const ScanSnapshot &snapshot)
    {
        m_json.beginObject();
        m_json.member("id", idText(snapshot.id).toStdString());
        text("date", dateText(snapshot.date));
        text("deviceName", snapshot.deviceName);
        text("modelIdentifier", snapshot.modelIdentifier);
        text("chip", snapshot.chip);
        text("osVersion", snapshot.osVersion);
        list("sections", snapshot.sections);
        optional("language", snapshot.language);
        m_json.endObject();
        return QByteArray::fromStdString(m_json.take());
    }

private:
    template <typename T>
    void list(std::string_view name, const QList<T> &elements)
    {
        m_json.key(name);
        m_json.beginArray();
        for (const auto &element : elements)
            write(element);
        m_json.endArray();
    }

    void write(const ScanSnapshot::Section &section)
    {
        m_json.beginObject();
        text("title", section.title);
        text("symbol", section.symbol);
        list("items", section.items);
        optional("key", section.key);
        m_json.endObject();
    }

    void write(const ScanSnapshot::Item &item)
    {
        m_json.beginObject();
        text("label", item.label);
        text("value", item.value);
        m_json.member("status", std::string_view(statusNames()[static_cast<std::size_t>(item.status)]));
        m_json.member("isVolatile", item.isVolatile);
        optional("key", item.key);
        m_json.endObject();
    }

    void optional(std::string_view name, const std::optional<QString> &value)
    {
        if (value)
            text(name, *value);
    }

    void text(std::string_view name, const QString &value)
    {
        const auto most = static_cast<std::size_t>(m_toUtf8.requiredSpace(value.size()));
        if (m_utf8.size() < most)
            m_utf8.resize(most);
        const char *end = m_toUtf8.appendToBuffer(m_utf8.data(), value);
        m_json.member(name, std::string_view(m_utf8.data(), static_cast<std::size_t>(end - m_utf8.data())));
    }

    json::Writer m_json{json::Writer::Layout::Compact};
    QStringEncoder m_toUtf8{QStringEncoder::Utf8, QStringConverter::Flag::Stateless};
    std::string m_utf8;
};

/// Makes one QString of all like texts: a history says the same again and again, so that most of its texts
/// cost neither memory nor conversion.
class TextPool
{
public:
    explicit TextPool(std::string_view input)
        : m_input(input)
    {}

    QString text(std::string_view utf8)
    {
        // Only what stands in the input stays where it is; what had to be unescaped does not.
        const auto *end = m_input.data() + m_input.size();
        if (std::less<>()(utf8.data(), m_input.data()) || !std::less<>()(utf8.data(), end))
            return made(utf8);
        const auto [place, isNew] = m_texts.try_emplace(utf8);
        if (isNew)
            place->second = made(utf8);
        return place->second;
    }

private:
    static QString made(std::string_view utf8)
    {
        return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
    }

    std::string_view m_input;
    std::unordered_map<std::string_view, QString> m_texts;
};

/// Exactly "2026-11-22T20:35:32Z", and a moment that there is.
std::optional<QDateTime> dateFrom(std::string_view text)
{
    constexpr std::string_view form = "dddd-dd-ddTdd:dd:ddZ";
    const auto fits = [](char c, char wanted) { return wanted == 'd' ? c >= '0' && c <= '9' : c == wanted; };
    if (!std::ranges::equal(text, form, fits))
        return std::nullopt;
    const auto number = [text](std::size_t at, std::size_t digits) {
        int value = 0;
        for (const char c : text.substr(at, digits))
            value = 10 * value + (c - '0');
        return value;
    };
    const QDate day(number(0, 4), number(5, 2), number(8, 2));
    const QTime time(number(11, 2), number(14, 2), number(17, 2));
    if (!day.isValid() || !time.isValid())
        return std::nullopt;
    return QDateTime(day, time, Qt::UTC);
}

/// Eight, four, four, four and twelve digits, of either case.
std::optional<QUuid> uuidFrom(std::string_view text)
{
    constexpr std::string_view form = "xxxxxxxx-xxxx-xxxx-xxxx-xxxxxxxxxxxx";
    const auto fits = [](char c, char wanted) {
        return wanted == '-' ? c == '-'
                             : (c >= '0' && c <= '9') || (c >= 'a' && c <= 'f') || (c >= 'A' && c <= 'F');
    };
    if (!std::ranges::equal(text, form, fits))
        return std::nullopt;
    return QUuid::fromString(QLatin1StringView(text.data(), static_cast<qsizetype>(text.size())));
}

std::optional<CapabilityStatus> statusFrom(std::string_view text)
{
    const auto place = std::ranges::find(statusNames(), text);
    return place == statusNames().end()
               ? std::nullopt
               : std::optional(allStatuses[static_cast<std::size_t>(place - statusNames().begin())]);
}

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

    std::expected<std::vector<StoredSnapshot>, QString> decode()
    {
        std::vector<StoredSnapshot> snapshots;
        const auto readSnapshot = [this, &snapshots] {
            m_number = snapshots.size() + 1;
            const auto begin = m_reader.position() - 1;
            auto &stored = snapshots.emplace_back();
            if (!read(stored.snapshot))
                return false;
            stored.json = QByteArrayView(m_input.data() + begin, m_input.data() + m_reader.position());
            return true;
        };
        next();
        if (!list(readSnapshot) || (next() != Token::End && !notJson()))
            return std::unexpected(m_fault);
        return snapshots;
    }

private:
    bool read(ScanSnapshot &snapshot)
    {
        return object(snapshotMembers, [this, &snapshot](std::size_t member) {
            switch (member) {
            case 0:
                return special(snapshot.id, uuidFrom, "a UUID");
            case 1:
                return special(snapshot.date, dateFrom, "a date like 2026-11-22T20:35:32Z");
            case 2:
                return text(snapshot.deviceName);
            case 3:
                return text(snapshot.modelIdentifier);
            case 4:
                return text(snapshot.chip);
            case 5:
                return text(snapshot.osVersion);
            case 6:
                return list(snapshot.sections);
            default:
                return text(snapshot.language);
            }
        });
    }

    bool read(ScanSnapshot::Section &section)
    {
        return object(sectionMembers, [this, &section](std::size_t member) {
            switch (member) {
            case 0:
                return text(section.title);
            case 1:
                return text(section.symbol);
            case 2:
                return list(section.items);
            default:
                return text(section.key);
            }
        });
    }

    bool read(ScanSnapshot::Item &item)
    {
        return object(itemMembers, [this, &item](std::size_t member) {
            switch (member) {
            case 0:
                return text(item.label);
            case 1:
                return text(item.value);
            case 2:
                return special(item.status, statusFrom, "a status");
            case 3:
                return boolean(item.isVolatile);
            default:
                return text(item.key);
            }
        });
    }

    /// Calls readMember with the place of each member that is known, after the first token of its value.
    template <std::size_t count, typename ReadMember>
    bool object(const Members<count> &members, ReadMember readMember)
    {
        if (m_token != Token::BeginObject)
            return wrongType("an object");
        std::size_t expected = 0; // members mostly come in the order of writing
        std::uint32_t found = 0;
        while (next() == Token::Key) {
            const auto name = m_reader.text();
            std::size_t member = expected;
            if (member >= count || members.names[member] != name)
                member =
                    static_cast<std::size_t>(std::ranges::find(members.names, name) - members.names.begin());
            expected = member + 1;
            next();
            if (member == count) {
                if (!skip())
                    return false;
                continue;
            }
            m_name = members.names[member];
            if (!readMember(member))
                return false;
            found |= 1U << member;
        }
        if (m_token != Token::EndObject)
            return notJson();
        for (std::size_t member = 0; member < members.required; ++member) {
            if (!(found & 1U << member))
                return failScan(" lacks \"" + std::string(members.names[member]) + '"');
        }
        return true;
    }

    template <typename ReadElement>
    bool list(ReadElement readElement)
    {
        if (m_token != Token::BeginArray)
            return wrongType("an array");
        while (next() != Token::EndArray) {
            if (!readElement())
                return false;
        }
        return true;
    }

    template <typename T>
    bool list(QList<T> &elements)
    {
        elements.clear();
        return list([this, &elements] { return read(elements.emplaceBack()); });
    }

    bool text(QString &value)
    {
        if (m_token != Token::String)
            return wrongType("a text");
        value = m_texts.text(m_reader.text());
        return true;
    }

    bool text(std::optional<QString> &value)
    {
        value.reset();
        return m_token == Token::Null || text(value.emplace());
    }

    bool boolean(bool &value)
    {
        value = m_token == Token::True;
        return value || m_token == Token::False || wrongType("true or false");
    }

    /// A text that stands for something else.
    template <typename T, typename Parse>
    bool special(T &value, Parse parse, const char *kind)
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

} // namespace

QByteArray encoded(const ScanSnapshot &snapshot)
{
    return Encoder().encode(snapshot);
}

QString idText(const QUuid &id)
{
    return id.toString(QUuid::WithoutBraces).toUpper();
}

QString dateText(const QDateTime &date)
{
    // QDateTime's own text of this form sets a locale up, a noticeable part of a short run.
    const auto utc = date.toUTC();
    const auto day = utc.date();
    const auto time = utc.time();
    return QString::asprintf("%04d-%02d-%02dT%02d:%02d:%02dZ", day.year(), day.month(), day.day(),
                             time.hour(), time.minute(), time.second());
}

std::expected<std::vector<StoredSnapshot>, QString> decodeHistory(QByteArrayView text)
{
    auto snapshots = Decoder({text.data(), static_cast<std::size_t>(text.size())}).decode();
    if (snapshots)
        std::ranges::stable_sort(*snapshots, std::ranges::greater(),
                                 [](const StoredSnapshot &stored) { return stored.snapshot.date; });
    return snapshots;
}

} // namespace quillmark::history

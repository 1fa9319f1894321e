// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "history/SnapshotChange.h"

#include <QStringBuilder>

#include <bit>
#include <cstdint>
#include <deque>
#include <limits>
#include <unordered_map>
#include <vector>

namespace quillmark::history {

namespace {

using Item = ScanSnapshot::Item;
using Section = ScanSnapshot::Section;

/// The text that a row is matched by, in two pieces with a "/" between them. Divided at its first "/", so
/// that equal texts have equal pieces whichever of section and row a "/" comes from.
struct MatchKey
{
    QStringView head;
    QStringView tail;
    std::uint32_t hash = 0;

    bool operator==(const MatchKey &other) const
    {
        return hash == other.hash && tail == other.tail && head == other.head;
    }
};

MatchKey matchKey(QStringView head, std::size_t headHash, QStringView tail)
{
    constexpr std::uint64_t spread = 0x9E3779B97F4A7C15; // 2^64 divided by the golden ratio
    return {head, tail, static_cast<std::uint32_t>(((headHash ^ qHash(tail)) * spread) >> 32)};
}

/// Texts for keys whose pieces stand nowhere in a snapshot.
class KeyTexts
{
public:
    QStringView keep(QString text) { return m_texts.emplace_back(std::move(text)); }

    MatchKey numbered(const MatchKey &key, int occurrence)
    {
        const auto tail = keep(key.tail % u'#' % QString::number(occurrence));
        return matchKey(key.head, qHash(key.head), tail);
    }

private:
    std::deque<QString> m_texts;
};

/// Calls `visit` with each row that is compared, and its key without a number.
template <typename Visit>
void visitRows(const ScanSnapshot &snapshot, KeyTexts &texts, Visit visit)
{
    for (const auto &section : snapshot.sections) {
        const QStringView name = section.key ? *section.key : section.title;
        const auto slash = name.indexOf(u'/');
        const auto head = slash < 0 ? name : name.first(slash);
        const auto headHash = qHash(head);
        for (const auto &item : section.items) {
            if (item.isVolatile)
                continue;
            const QString &ownName = item.key ? *item.key : item.label;
            const auto tail =
                slash < 0 ? QStringView(ownName) : texts.keep(name.sliced(slash + 1) % u'/' % ownName);
            visit(section, item, matchKey(head, headHash, tail));
        }
    }
}

struct Row
{
    const Section *section = nullptr;
    const Item *item = nullptr;
    MatchKey key;
    int occurrences = 0; ///< of the key, kept by the row that has it without a number; 0 in the others
};

Entry entry(const Row &row)
{
    return {row.section->title, *row.item};
}

/// The rows of a snapshot that are compared, found by their keys. Building the texts of the keys would take
/// most of a comparison's time: the pieces stay views of the snapshot, which must outlive this.
class RowIndex
{
public:
    static constexpr std::size_t none = std::numeric_limits<std::size_t>::max();

    explicit RowIndex(const ScanSnapshot &snapshot);

    const std::vector<Row> &rows() const { return m_rows; }
    /// The place of a row with this key in rows().
    std::size_t find(const MatchKey &key) const { return placeIn(slotOf(key, anyRow)); }
    /// The place of the row that has this key without a number. `guess` is looked at first: rows mostly keep
    /// their order.
    std::size_t findUnnumbered(const MatchKey &key, std::size_t guess) const
    {
        if (guess < m_rows.size() && m_rows[guess].key == key && isUnnumbered(m_rows[guess]))
            return guess;
        return placeIn(slotOf(key, isUnnumbered));
    }

private:
    /// Where a row stands: its place in m_rows, plus 1, beside its hash; 0: free.
    struct Slot
    {
        std::uint32_t hash = 0;
        std::uint32_t row = 0;
    };

    static bool anyRow(const Row &) { return true; }
    static bool isUnnumbered(const Row &row) { return row.occurrences > 0; }

    template <typename Wanted>
    std::size_t slotOf(const MatchKey &key, Wanted wanted) const;
    std::size_t placeIn(std::size_t slot) const
    {
        return m_slots[slot].row == 0 ? none : m_slots[slot].row - 1;
    }
    void insert(std::size_t slot, const Row &row);

    std::vector<Row> m_rows;
    std::vector<Slot> m_slots;
    KeyTexts m_texts;
};

RowIndex::RowIndex(const ScanSnapshot &snapshot)
{
    std::size_t total = 1;
    for (const auto &section : snapshot.sections)
        total += static_cast<std::size_t>(section.items.size());
    m_rows.reserve(total);
    m_slots.resize(std::bit_ceil(2 * total));
    visitRows(snapshot, m_texts, [this](const Section &section, const Item &item, const MatchKey &key) {
        const auto slot = slotOf(key, isUnnumbered);
        if (m_slots[slot].row == 0)
            return insert(slot, {&section, &item, key, 1});
        const auto numbered = m_texts.numbered(key, ++m_rows[m_slots[slot].row - 1].occurrences);
        insert(slotOf(numbered, [](const Row &) { return false; }), {&section, &item, numbered, 0});
    });
}

/// The slot of the first row that has this key and is wanted, or the free one that it would get.
template <typename Wanted>
std::size_t RowIndex::slotOf(const MatchKey &key, Wanted wanted) const
{
    const auto mask = m_slots.size() - 1;
    auto slot = key.hash & mask;
    while (m_slots[slot].row != 0) {
        if (m_slots[slot].hash == key.hash) {
            const Row &row = m_rows[m_slots[slot].row - 1];
            if (row.key == key && wanted(row))
                break;
        }
        slot = (slot + 1) & mask;
    }
    return slot;
}

void RowIndex::insert(std::size_t slot, const Row &row)
{
    m_rows.push_back(row);
    m_slots[slot] = {row.key.hash, static_cast<std::uint32_t>(m_rows.size())};
}

/// Finds for each row of a newer snapshot, in their order, the one of the older that it continues. The older
/// rows serve to count occurrences of keys in the newer ones as well, which saves those an index.
class RowMatcher
{
public:
    explicit RowMatcher(const RowIndex &older)
        : m_older(older)
        , m_seen(older.rows().size())
        , m_isMatched(older.rows().size())
    {}

    /// nullptr: the row is new.
    const Row *match(const MatchKey &key)
    {
        auto place = m_older.findUnnumbered(key, m_guess);
        const int occurrence = place == RowIndex::none ? ++m_strangers[key] : ++m_seen[place];
        if (occurrence > 1)
            place = m_older.find(m_texts.numbered(key, occurrence));
        else if (place == RowIndex::none)
            place = m_older.find(key);
        if (place == RowIndex::none)
            return nullptr;
        m_guess = place + 1;
        m_isMatched[place] = true;
        return &m_older.rows()[place];
    }

    /// Whether the row's key was met. Of rows whose keys are alike only by their numbers the first stands for
    /// all.
    bool wasMatched(const Row &row) const
    {
        const auto place = static_cast<std::size_t>(&row - m_older.rows().data());
        return m_isMatched[place] || m_isMatched[m_older.find(row.key)];
    }

private:
    struct Hash
    {
        std::size_t operator()(const MatchKey &key) const { return key.hash; }
    };

    const RowIndex &m_older;
    std::size_t m_guess = 0;
    std::vector<int> m_seen; ///< occurrences of each older row's key among the newer ones
    std::vector<bool> m_isMatched;
    std::unordered_map<MatchKey, int, Hash> m_strangers; ///< occurrences of the keys that no older row has
    KeyTexts m_texts;
};

/// Calls `report` with the older and the newer row of every difference; nullptr where there is none.
template <typename Report>
void compare(const ScanSnapshot &older, const ScanSnapshot &newer, Report report)
{
    const bool valuesCount = sameLanguage(older, newer);
    const RowIndex index(older);
    RowMatcher matcher(index);
    KeyTexts texts;
    visitRows(newer, texts, [&](const Section &section, const Item &item, const MatchKey &key) {
        const Row *old = matcher.match(key);
        const bool isUnchanged =
            old && old->item->status == item.status && (!valuesCount || old->item->value == item.value);
        if (isUnchanged)
            return;
        const Row row{&section, &item};
        report(old, &row);
    });
    for (const auto &row : index.rows()) {
        if (!matcher.wasMatched(row))
            report(&row, nullptr);
    }
}

} // namespace

QList<std::pair<QString, Entry>> entries(const ScanSnapshot &snapshot)
{
    const RowIndex index(snapshot);
    QList<std::pair<QString, Entry>> result;
    result.reserve(static_cast<qsizetype>(index.rows().size()));
    for (const auto &row : index.rows())
        result.emplace_back(row.key.head % u'/' % row.key.tail, entry(row));
    return result;
}

bool sameLanguage(const ScanSnapshot &older, const ScanSnapshot &newer)
{
    return older.language == newer.language;
}

QList<SnapshotChange> diff(const ScanSnapshot &older, const ScanSnapshot &newer)
{
    QList<SnapshotChange> changes;
    compare(older, newer, [&changes](const Row *old, const Row *now) {
        const Row *shown = now ? now : old;
        changes.append({shown->section->title, shown->item->label,
                        old ? std::optional(old->item->value) : std::nullopt,
                        now ? std::optional(now->item->value) : std::nullopt});
    });
    return changes;
}

QList<EntryChange> entryChanges(const ScanSnapshot &older, const ScanSnapshot &newer)
{
    QList<EntryChange> changes;
    compare(older, newer, [&changes](const Row *old, const Row *now) {
        changes.append({old ? std::optional(entry(*old)) : std::nullopt,
                        now ? std::optional(entry(*now)) : std::nullopt});
    });
    return changes;
}

QList<ChangeRow> changeRows(const QList<SnapshotChange> &changes)
{
    QList<ChangeRow> rows;
    rows.reserve(changes.size());
    for (const auto &change : changes)
        rows.append({.section = change.section,
                     .label = change.label,
                     .oldValue = change.oldValue,
                     .newValue = change.newValue});
    return rows;
}

ChangeCounts changeCounts(const QList<SnapshotChange> &changes)
{
    ChangeCounts counts;
    for (const auto &change : changes)
        ++(!change.oldValue ? counts.added : !change.newValue ? counts.removed : counts.changed);
    return counts;
}

} // namespace quillmark::history

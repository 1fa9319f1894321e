// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "history/SnapshotChange.h"

#include <QStringBuilder>

#include <bit>
#include <cstdint>
#include <deque>
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
    std::size_t hash = 0;

    bool operator==(const MatchKey &other) const
    {
        return hash == other.hash && tail == other.tail && head == other.head;
    }
};

MatchKey matchKey(QStringView head, std::size_t headHash, QStringView tail)
{
    constexpr std::uint64_t spread = 0x9E3779B97F4A7C15; // 2^64 divided by the golden ratio
    return {head, tail, static_cast<std::size_t>((headHash ^ qHash(tail)) * spread)};
}

struct Row
{
    const Section *section = nullptr;
    const Item *item = nullptr;
    MatchKey key;
    int occurrences = 0; ///< of the key so far, kept by the row that has it unnumbered; 0 in the others
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
    explicit RowIndex(const ScanSnapshot &snapshot);

    const std::vector<Row> &rows() const { return m_rows; }
    const Row *find(const MatchKey &key) const
    {
        return find(key, [](const Row &) { return true; });
    }

private:
    template <typename Wanted>
    const Row *find(const MatchKey &key, Wanted wanted) const;
    void add(const Section &section, const Item &item, MatchKey key);
    void insert(Row row);
    /// A text of the index's own, for pieces that stand nowhere in the snapshot.
    QStringView kept(QString text) { return m_texts.emplace_back(std::move(text)); }

    std::vector<Row> m_rows;
    std::vector<std::uint32_t> m_slots; ///< place of a row in m_rows, plus 1; 0: free
    int m_shift = 0;                    ///< what of a hash is left over beside the number of a slot
    std::deque<QString> m_texts;
};

RowIndex::RowIndex(const ScanSnapshot &snapshot)
{
    std::size_t total = 1;
    for (const auto &section : snapshot.sections)
        total += static_cast<std::size_t>(section.items.size());
    m_rows.reserve(total);
    m_slots.resize(std::bit_ceil(2 * total));
    m_shift = std::numeric_limits<std::size_t>::digits - std::countr_zero(m_slots.size());

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
                slash < 0 ? QStringView(ownName) : kept(name.sliced(slash + 1) % u'/' % ownName);
            add(section, item, matchKey(head, headHash, tail));
        }
    }
}

template <typename Wanted>
const Row *RowIndex::find(const MatchKey &key, Wanted wanted) const
{
    for (auto slot = key.hash >> m_shift; m_slots[slot] != 0; slot = (slot + 1) & (m_slots.size() - 1)) {
        const Row &row = m_rows[m_slots[slot] - 1];
        if (row.key == key && wanted(row))
            return &row;
    }
    return nullptr;
}

void RowIndex::add(const Section &section, const Item &item, MatchKey key)
{
    const Row *first = find(key, [](const Row &row) { return row.occurrences > 0; });
    if (!first)
        return insert({&section, &item, key, 1});
    const int occurrence = ++m_rows[static_cast<std::size_t>(first - m_rows.data())].occurrences;
    const auto tail = kept(key.tail % u'#' % QString::number(occurrence));
    insert({&section, &item, matchKey(key.head, qHash(key.head), tail), 0});
}

void RowIndex::insert(Row row)
{
    auto slot = row.key.hash >> m_shift;
    while (m_slots[slot] != 0)
        slot = (slot + 1) & (m_slots.size() - 1);
    m_rows.push_back(row);
    m_slots[slot] = static_cast<std::uint32_t>(m_rows.size());
}

/// Calls `report` with the older and the newer row of every difference; nullptr where there is none.
template <typename Report>
void compare(const ScanSnapshot &older, const ScanSnapshot &newer, Report report)
{
    const bool valuesCount = sameLanguage(older, newer);
    const RowIndex oldRows(older);
    const RowIndex newRows(newer);
    std::vector<bool> isMatched(oldRows.rows().size());
    for (const auto &row : newRows.rows()) {
        const Row *old = oldRows.find(row.key);
        if (old)
            isMatched[static_cast<std::size_t>(old - oldRows.rows().data())] = true;
        const bool isUnchanged = old && old->item->status == row.item->status &&
                                 (!valuesCount || old->item->value == row.item->value);
        if (!isUnchanged)
            report(old, &row);
    }
    for (std::size_t i = 0; i < oldRows.rows().size(); ++i) {
        const Row &row = oldRows.rows()[i];
        if (!isMatched[i] && !newRows.find(row.key))
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

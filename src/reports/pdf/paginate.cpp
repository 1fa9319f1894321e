// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "reports/pdf/paginate.h"

#include <numeric>

namespace quillmark::reports {

namespace {

constexpr std::size_t fewestRows = 2;

qreal rowsHeight(const Group &group, std::size_t first)
{
    return std::accumulate(group.rows.begin() + static_cast<std::ptrdiff_t>(first), group.rows.end(),
                           qreal(0), [](qreal sum, const Block &row) { return sum + row.height; });
}

class Paginator
{
public:
    Paginator(const std::vector<Group> &groups, const PageFrame &frame)
        : m_groups(groups)
        , m_frame(frame)
        , m_y(frame.coverTop)
    {}

    std::vector<Page> paginate()
    {
        for (std::size_t i = 0; i < m_groups.size(); ++i)
            place(i);
        return std::move(m_pages);
    }

private:
    void place(std::size_t index)
    {
        const auto &group = m_groups[index];
        if (m_pages.size() == 1 && !group.isOnCover)
            startPage();
        const qreal whole = group.heading.height + rowsHeight(group, 0);
        const bool fitsOnPage = whole <= m_frame.bottom - m_frame.top;
        if (!m_pages.back().empty() &&
            (fitsOnPage ? gap(group) + whole > room() : rowsThatFit(group, 0) == 0))
            startPage();

        std::size_t first = 0;
        do {
            if (first > 0)
                startPage();
            // A row that is too tall even for an empty page goes there nevertheless.
            const auto count = group.rows.empty() ? 0 : std::max<std::size_t>(rowsThatFit(group, first), 1);
            put(index, first, first + count);
            first += count;
        } while (first < group.rows.size());
    }

    /// How many of the rows from `first` on fit below their heading; 0 rather than fewer than may stand
    /// there.
    std::size_t rowsThatFit(const Group &group, std::size_t first) const
    {
        qreal left = room() - gap(group) - (first > 0 ? group.continued : group.heading).height;
        const std::size_t all = group.rows.size() - first;
        std::size_t count = 0;
        while (count < all && group.rows[first + count].height <= left + tolerance)
            left -= group.rows[first + count++].height;
        if (count < all && all - count < fewestRows && count > fewestRows)
            count = all - fewestRows; // the next page needs company for the last one
        return count < std::min(fewestRows, all) && !m_pages.back().empty() ? 0 : count;
    }

    void put(std::size_t index, std::size_t first, std::size_t end)
    {
        const auto &group = m_groups[index];
        m_y += gap(group);
        m_pages.back().push_back({index, first, end, m_y});
        m_y += (first > 0 ? group.continued : group.heading).height;
        for (auto row = first; row < end; ++row)
            m_y += group.rows[row].height;
    }

    void startPage()
    {
        m_pages.emplace_back();
        m_y = m_frame.top;
    }

    qreal gap(const Group &group) const { return m_pages.back().empty() ? 0 : group.gap; }
    qreal room() const { return m_frame.bottom - m_y + tolerance; }

    static constexpr qreal tolerance = 0.01; ///< sums of heights are not exact

    const std::vector<Group> &m_groups;
    const PageFrame &m_frame;
    std::vector<Page> m_pages = std::vector<Page>(1);
    qreal m_y;
};

} // namespace

std::vector<Page> paginate(const std::vector<Group> &groups, const PageFrame &frame)
{
    return Paginator(groups, frame).paginate();
}

} // namespace quillmark::reports

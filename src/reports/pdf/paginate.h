// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "reports/pdf/Block.h"

#include <cstddef>
#include <vector>

namespace quillmark::reports {

/// The part of a group that stands on one page: its heading, and the rows from `first` up to before `end`.
struct Portion
{
    std::size_t group = 0;
    std::size_t first = 0;
    std::size_t end = 0;
    qreal top = 0; ///< of the heading, from the upper edge of the paper
    bool isContinued() const { return first > 0; }

    bool operator==(const Portion &) const = default;
};

using Page = std::vector<Portion>;

/// From where to where pages hold groups.
struct PageFrame
{
    qreal coverTop;
    qreal top; ///< of all pages but the first
    qreal bottom;
};

/// Shares the groups out. A group stays together if it fits on a page; else it fills the page that it begins
/// on and goes on, with no fewer than two rows below a heading as long as two fit on a page. Rows are never
/// split: one that is taller than a page overflows it. There is always one page.
std::vector<Page> paginate(const std::vector<Group> &groups, const PageFrame &frame);

} // namespace quillmark::reports

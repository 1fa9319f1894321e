// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtGlobal>

#include <functional>
#include <vector>

namespace quillmark::reports {

class Canvas;

/// A part of a page that is kept whole.
struct Block
{
    qreal height = 0;
    std::function<void(Canvas &canvas, qreal top)> paint; ///< empty: room that is left free
};

/// A heading with the rows that belong to it.
struct Group
{
    qreal gap = 0; ///< above it, where something else stands on the page before it
    Block heading;
    Block continued; ///< the heading on another page
    std::vector<Block> rows;
    bool isOnCover = false; ///< it may stand on the first page
};

} // namespace quillmark::reports

// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "app/widgets/FlowLayout.h"

#include <QStyle>
#include <QWidget>

#include <algorithm>

namespace quillmark::app {

FlowLayout::FlowLayout(QWidget *parent, int gap)
    : QLayout(parent)
    , m_gap(gap)
{
    setContentsMargins({});
}

FlowLayout::~FlowLayout() = default;

void FlowLayout::setGap(int gap)
{
    m_gap = gap;
    invalidate();
}

void FlowLayout::addItem(QLayoutItem *item)
{
    m_items.emplace_back(item);
}

QLayoutItem *FlowLayout::itemAt(int index) const
{
    return index >= 0 && index < count() ? m_items[static_cast<std::size_t>(index)].get() : nullptr;
}

QLayoutItem *FlowLayout::takeAt(int index)
{
    if (index < 0 || index >= count())
        return nullptr;
    const auto at = m_items.begin() + index;
    auto *item = at->release();
    m_items.erase(at);
    return item;
}

int FlowLayout::heightForWidth(int width) const
{
    return arrange({0, 0, width, 0}, false);
}

QSize FlowLayout::sizeHint() const
{
    QSize size(0, 0);
    int items = 0;
    for (const auto &item : m_items) {
        if (item->isEmpty())
            continue;
        const auto hint = item->sizeHint();
        size = {size.width() + hint.width() + (items++ > 0 ? m_gap : 0),
                std::max(size.height(), hint.height())};
    }
    return size;
}

QSize FlowLayout::minimumSize() const
{
    QSize size(0, 0);
    for (const auto &item : m_items)
        size = size.expandedTo(item->minimumSize());
    return size;
}

void FlowLayout::setGeometry(const QRect &rectangle)
{
    QLayout::setGeometry(rectangle);
    arrange(rectangle, true);
}

int FlowLayout::arrange(const QRect &rectangle, bool apply) const
{
    const auto direction = parentWidget() ? parentWidget()->layoutDirection() : Qt::LeftToRight;
    int x = rectangle.left();
    int y = rectangle.top();
    int lineHeight = 0;
    for (const auto &item : m_items) {
        if (item->isEmpty())
            continue;
        const auto size = item->sizeHint().boundedTo({std::max(1, rectangle.width()), QLAYOUTSIZE_MAX});
        if (x > rectangle.left() && x + size.width() > rectangle.right() + 1) {
            x = rectangle.left();
            y += lineHeight + m_gap;
            lineHeight = 0;
        }
        if (apply)
            item->setGeometry(QStyle::visualRect(direction, rectangle, QRect({x, y}, size)));
        x += size.width() + m_gap;
        lineHeight = std::max(lineHeight, size.height());
    }
    return y + lineHeight - rectangle.top();
}

} // namespace quillmark::app

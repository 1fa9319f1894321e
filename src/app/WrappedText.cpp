// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "app/WrappedText.h"

#include <QFontMetricsF>
#include <QPainter>

#include <algorithm>

namespace quillmark::app {

namespace {

constexpr qreal shadeRadius = 3;
constexpr qreal shadeOverlap = 1;

} // namespace

WrappedText::WrappedText(const QString &text, const QFont &font, qreal width, int mostLines,
                         Qt::LayoutDirection runs)
    : m_width(std::max(width, 1.0))
{
    m_layout.setFont(font);
    QTextOption option(Qt::AlignLeft | Qt::AlignAbsolute);
    option.setWrapMode(mostLines > 1 ? QTextOption::WrapAtWordBoundaryOrAnywhere : QTextOption::NoWrap);
    const auto own = text.isRightToLeft() ? Qt::RightToLeft : Qt::LeftToRight;
    option.setTextDirection(runs == Qt::LayoutDirectionAuto ? own : runs);
    m_layout.setTextOption(option);
    layOut(text, mostLines);
}

void WrappedText::layOut(const QString &text, int mostLines)
{
    m_layout.setText(text);
    m_layout.beginLayout();
    m_height = 0;
    auto line = m_layout.createLine();
    for (int count = 0; line.isValid() && count < mostLines; ++count) {
        line.setLineWidth(m_width);
        line.setPosition({0, m_height});
        m_height += line.height();
        line = m_layout.createLine();
    }
    m_layout.endLayout();
    const auto last = m_layout.lineAt(std::min(mostLines, m_layout.lineCount()) - 1);
    const bool isCut = line.isValid() || (last.isValid() && last.naturalTextWidth() > m_width);
    if (!isCut || m_isElided)
        return;
    m_isElided = true;
    const auto before = text.first(last.textStart());
    const auto rest = text.sliced(last.textStart());
    layOut(before + QFontMetricsF(m_layout.font()).elidedText(rest, Qt::ElideRight, m_width), mostLines);
}

void WrappedText::draw(QPainter &painter, QPointF corner, Qt::LayoutDirection direction, const QColor &color,
                       const QList<language::TextRange> &shaded, const QColor &shade) const
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    for (int number = 0; number < m_layout.lineCount(); ++number) {
        const auto line = m_layout.lineAt(number);
        const qreal indent = direction == Qt::RightToLeft ? m_width - line.naturalTextWidth() : 0;
        const auto at = corner + QPointF(indent, 0);
        painter.setPen(Qt::NoPen);
        painter.setBrush(shade);
        for (const auto &range : shaded) {
            const int start = std::max(static_cast<int>(range.start), line.textStart());
            const int end = std::min(static_cast<int>(range.end()), line.textStart() + line.textLength());
            if (start >= end)
                continue;
            const auto [left, right] = std::minmax({line.cursorToX(start), line.cursorToX(end)});
            painter.drawRoundedRect(QRectF(at.x() + left - shadeOverlap, at.y() + line.y(),
                                           right - left + 2 * shadeOverlap, line.height()),
                                    shadeRadius, shadeRadius);
        }
        painter.setPen(color);
        line.draw(&painter, at);
    }
    painter.restore();
}

} // namespace quillmark::app

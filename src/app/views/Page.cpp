// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "app/views/Page.h"

#include "app/Appearance.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QResizeEvent>
#include <QVBoxLayout>

#include <algorithm>

namespace quillmark::app {

namespace {

constexpr int widestColumn = 1160;
constexpr int sideMargin = 28;
constexpr int topMargin = 24;
constexpr int compactSideMargin = 24;
constexpr int compactTopMargin = 18;

} // namespace

Page::Page(QWidget *parent)
    : QScrollArea(parent)
    , m_content(new QWidget)
    , m_column(new QVBoxLayout)
{
    setFrameShape(QFrame::NoFrame);
    setWidgetResizable(true);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setFocusPolicy(Qt::NoFocus);
    viewport()->setAutoFillBackground(false);
    m_content->setAutoFillBackground(false);
    setWidget(m_content);
    m_content->setAutoFillBackground(false); // setWidget() turned it on

    auto *outer = new QVBoxLayout(m_content);
    outer->addLayout(m_column);
    outer->addStretch();
    m_column->setSpacing(16);
    connect(&Appearance::current(), &Appearance::changed, this, &Page::fitColumn);
}

qreal Page::effectiveWidth() const
{
    const auto margins = m_content->layout()->contentsMargins();
    const int inside = viewport()->width() - margins.left() - margins.right();
    return inside / Appearance::current().scale();
}

void Page::setFilled(bool filled)
{
    static_cast<QVBoxLayout *>(m_content->layout())->setStretchFactor(m_column, filled ? 1 : 0);
}

void Page::setUp()
{
    retranslate();
    fitColumn();
}

void Page::resizeEvent(QResizeEvent *event)
{
    QScrollArea::resizeEvent(event);
    fitColumn();
}

void Page::changeEvent(QEvent *event)
{
    QScrollArea::changeEvent(event);
    if (event->type() != QEvent::LanguageChange)
        return;
    retranslate();
    Q_EMIT headerChanged();
}

void Page::fitColumn()
{
    const int width = viewport()->width();
    const qreal inside = (width - 2 * sideMargin) / Appearance::current().scale();
    const bool compact = inside < compactWidth;
    const int side = std::max(compact ? compactSideMargin : sideMargin, (width - widestColumn) / 2);
    const int top = compact ? compactTopMargin : topMargin;
    m_content->layout()->setContentsMargins(side, top, side, top);
    if (const qreal effective = effectiveWidth(); effective != m_arrangedFor) {
        m_arrangedFor = effective;
        arrange();
    }
}

} // namespace quillmark::app

// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "app/widgets/CardGrid.h"

#include <QAbstractButton>
#include <QGridLayout>
#include <QKeyEvent>

#include <algorithm>

namespace quillmark::app {

namespace {

constexpr int gap = 12;

} // namespace

CardGrid::CardGrid(QWidget *parent)
    : QWidget(parent)
    , m_grid(new QGridLayout(this))
{
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    m_grid->setContentsMargins({});
    m_grid->setSpacing(gap);
}

void CardGrid::setCards(const QList<QAbstractButton *> &cards)
{
    for (auto *card : cards) {
        if (m_cards.contains(card))
            continue;
        card->setParent(this);
        card->setFocusPolicy(Qt::ClickFocus);
        card->installEventFilter(this);
        card->show();
    }
    m_cards = cards;
    if (!m_cards.contains(m_stop) || !m_stop->isEnabled())
        m_stop = nullptr;
    if (!m_stop) {
        const auto first = std::ranges::find_if(m_cards, &QWidget::isEnabled);
        if (first != m_cards.end())
            setStop(*first);
    }
    arrange();
}

void CardGrid::setColumns(int columns)
{
    if (columns == m_columns)
        return;
    m_columns = columns;
    arrange();
}

void CardGrid::arrange()
{
    while (auto *item = m_grid->takeAt(0))
        delete item;
    for (int column = 0; column < m_grid->columnCount(); ++column)
        m_grid->setColumnStretch(column, column < m_columns ? 1 : 0);
    for (int at = 0; at < m_cards.size(); ++at)
        m_grid->addWidget(m_cards[at], at / m_columns, at % m_columns);
    for (int column = 0; column < m_columns; ++column)
        m_grid->setColumnStretch(column, 1);
}

void CardGrid::setStop(QAbstractButton *card)
{
    if (m_stop)
        m_stop->setFocusPolicy(Qt::ClickFocus);
    m_stop = card;
    m_stop->setFocusPolicy(Qt::StrongFocus);
}

QAbstractButton *CardGrid::neighbour(qsizetype at, int key) const
{
    const bool isMirrored = layoutDirection() == Qt::RightToLeft;
    qsizetype step = 0;
    switch (key) {
    case Qt::Key_Left:
        step = isMirrored ? 1 : -1;
        break;
    case Qt::Key_Right:
        step = isMirrored ? -1 : 1;
        break;
    case Qt::Key_Up:
        step = -m_columns;
        break;
    case Qt::Key_Down:
        step = m_columns;
        break;
    case Qt::Key_Home:
        return m_cards.first();
    case Qt::Key_End:
        return m_cards.last()->isEnabled() ? m_cards.last() : m_cards[m_cards.size() - 2];
    default:
        return nullptr;
    }
    const auto target = at + step;
    if (target < 0 || target >= m_cards.size() || !m_cards[target]->isEnabled())
        return m_cards[at];
    return m_cards[target];
}

bool CardGrid::eventFilter(QObject *object, QEvent *event)
{
    auto *card = qobject_cast<QAbstractButton *>(object);
    if (event->type() == QEvent::FocusIn) {
        setStop(card);
        Q_EMIT shown(card);
    } else if (event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent *>(event)->key();
        if (key == Qt::Key_Return || key == Qt::Key_Enter) {
            card->click();
            return true;
        }
        if (auto *target = neighbour(m_cards.indexOf(card), key)) {
            target->setFocus(Qt::TabFocusReason);
            return true;
        }
    }
    return QWidget::eventFilter(object, event);
}

} // namespace quillmark::app

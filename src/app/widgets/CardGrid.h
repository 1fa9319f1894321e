// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QList>
#include <QWidget>

class QAbstractButton;
class QGridLayout;

namespace quillmark::app {

/// Cards in rows of equal columns. One stop for the Tab key: the arrows move among them in both directions,
/// Return clicks.
class CardGrid : public QWidget
{
    Q_OBJECT

public:
    explicit CardGrid(QWidget *parent = nullptr);

    /// Shows these cards in this order, and owns them as children.
    void setCards(const QList<QAbstractButton *> &cards);
    const QList<QAbstractButton *> &cards() const { return m_cards; }
    void setColumns(int columns);
    int columns() const { return m_columns; }
    /// Where the Tab key comes in. None without cards that can be clicked.
    QAbstractButton *stop() const { return m_stop; }

Q_SIGNALS:
    /// Keys have moved to a card: it is to be seen.
    void shown(QWidget *card);

protected:
    bool eventFilter(QObject *object, QEvent *event) override;

private:
    void arrange();
    void setStop(QAbstractButton *card);
    QAbstractButton *neighbour(qsizetype at, int key) const;

    QGridLayout *m_grid;
    QList<QAbstractButton *> m_cards;
    QAbstractButton *m_stop = nullptr;
    int m_columns = 3;
};

} // namespace quillmark::app

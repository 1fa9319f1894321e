// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "design/Theme.h"
#include "inspection/CapabilityModel.h"

#include <QAbstractButton>
#include <QButtonGroup>

#include <optional>

namespace quillmark::app {

/// A rounded button that chooses one of several views of a list: mark, word and count.
class Chip : public QAbstractButton
{
    Q_OBJECT

public:
    Chip(const QString &symbol, design::Role mark, QWidget *parent = nullptr);

    /// None: a dash stands for a count that is not known yet. Nothing at all stands when hasCount is false.
    void setCount(std::optional<qsizetype> count);
    void setHasCount(bool hasCount);
    void setCompact(bool compact);
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    QString countText() const;
    bool isEmpty() const { return m_hasCount && m_count == 0; }

    QString m_symbol;
    design::Role m_mark;
    std::optional<qsizetype> m_count;
    bool m_hasCount = true;
    bool m_isCompact = false;
};

/// A row of chips of which one is chosen; it wraps. One stop for the Tab key: the arrows move within it,
/// Space chooses.
class ChipRow : public QWidget
{
    Q_OBJECT

public:
    explicit ChipRow(QWidget *parent = nullptr);

    /// Chips are numbered from 0. The first one is chosen at the beginning.
    Chip *addChip(const QString &symbol, design::Role mark);
    Chip *chip(int index) const;
    int chosen() const { return m_group.checkedId(); }
    void choose(int index); ///< emits chosenChanged() when it is another one
    void setCompact(bool compact);

Q_SIGNALS:
    void chosenChanged(int index);

private:
    QButtonGroup m_group;
    int m_last = 0;
};

/// All, and the four statuses, with the number of their rows.
class StatusChips : public ChipRow
{
    Q_OBJECT

public:
    explicit StatusChips(QWidget *parent = nullptr);

    /// None while the first inspection runs.
    void setCounts(const std::optional<inspection::StatusCounts> &counts);
    /// None: all.
    std::optional<inspection::CapabilityStatus> status() const;
    void setStatus(std::optional<inspection::CapabilityStatus> status);

Q_SIGNALS:
    void statusChanged(std::optional<quillmark::inspection::CapabilityStatus> status);

protected:
    void changeEvent(QEvent *event) override;

private:
    void retranslate();

    std::optional<inspection::StatusCounts> m_counts;
};

} // namespace quillmark::app

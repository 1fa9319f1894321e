// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QWidget>

#include <vector>

namespace quillmark::app {

/// An upright bar for the load of each core, in the kernel's order, numbered from 1. It stands on a card.
class CoreBars : public QWidget
{
    Q_OBJECT

public:
    explicit CoreBars(QWidget *parent = nullptr);

    /// From 0 to 1.
    void setLoads(const std::vector<double> &loads);
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    QRect track(int core) const;
    int fill(int core) const;
    int coresInRow() const;

    std::vector<double> m_loads;
};

} // namespace quillmark::app

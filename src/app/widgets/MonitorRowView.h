// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "app/monitorTexts.h"

#include <QWidget>

#include <vector>

namespace quillmark::app {

/// One figure of the monitor in the menu bar: symbol, label, a small graph where there is one, and the value.
class MonitorRowView : public QWidget
{
    Q_OBJECT

public:
    explicit MonitorRowView(QWidget *parent = nullptr);

    void setRow(const MonitorRow &row);
    const MonitorRow &row() const { return m_row; }
    /// The load of the last minute for the graph of the processor, 0…1, oldest first.
    void setHistory(std::vector<double> history);
    /// A hairline above, where another group of figures begins.
    void setBeginsGroup(bool beginsGroup);
    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void paintGraph(QPainter &painter, const QRectF &place) const;
    void paintValue(QPainter &painter, const QRectF &place) const;

    MonitorRow m_row;
    std::vector<double> m_history;
    bool m_beginsGroup = false;
};

} // namespace quillmark::app

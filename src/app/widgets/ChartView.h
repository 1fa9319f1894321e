// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "app/widgets/ChartTrace.h"
#include "design/Theme.h"
#include "monitor/MonitorModel.h"

#include <QPixmap>
#include <QStringList>
#include <QWidget>

#include <vector>

namespace quillmark::app {

/// Two minutes of one or two figures, the newest at the right in every language. It stands on a card.
///
/// Grid and labels are kept as a picture and the lines as another, so that a sample costs the drawing of its
/// own second.
class ChartView : public QWidget
{
    Q_OBJECT

public:
    struct Series
    {
        double monitor::MonitorModel::Point::*value;
        design::Role color;
        bool isFilled;
    };

    explicit ChartView(std::vector<Series> series, QWidget *parent = nullptr);

    /// The value at the top of the axis, whose bottom is 0, and what stands at bottom, middle and top.
    void setAxis(double top, const QStringList &labels);
    /// Room for the labels, in pixels at the usual text size.
    void setGutter(int width);
    void setPoints(const std::vector<monitor::MonitorModel::Point> &points);
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    QRect plot() const;
    QRect linesArea() const;
    QPixmap makeGround() const;
    void updateTrace();
    void renew();

    std::vector<Series> m_series;
    std::vector<monitor::MonitorModel::Point> m_points;
    double m_top = 1;
    QStringList m_labels;
    int m_gutter = 44;
    QPixmap m_ground; ///< card, grid and labels; null when out of date
    ChartTrace m_trace;
};

} // namespace quillmark::app

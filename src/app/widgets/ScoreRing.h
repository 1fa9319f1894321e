// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "inspection/CapabilityModel.h"

#include <QVariantAnimation>
#include <QWidget>

#include <optional>

namespace quillmark::app {

/// The capability score: a ring of the statuses' shares around the percentage. It draws itself once, when a
/// score is first seen, where things may move.
class ScoreRing : public QWidget
{
    Q_OBJECT

public:
    explicit ScoreRing(QWidget *parent = nullptr);

    /// None: not known yet.
    void setCounts(const std::optional<inspection::StatusCounts> &counts);
    /// Its diameter, at the usual text size.
    void setDiameter(int diameter);
    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;
    void showEvent(QShowEvent *event) override;

private:
    void sweep();

    std::optional<inspection::StatusCounts> m_counts;
    int m_diameter = 100;
    bool m_wasSeen = false;
    QVariantAnimation m_sweep; ///< from 0 to 1
};

} // namespace quillmark::app

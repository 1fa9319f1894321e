// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "design/Theme.h"

#include <QWidget>

#include <optional>

namespace quillmark::app {

/// A bar that shows how much of something there is, or where on a scale a value lies. Figures beside it say
/// the same: screen readers pass it by.
class Meter : public QWidget
{
    Q_OBJECT

public:
    explicit Meter(int height, QWidget *parent = nullptr);

    /// Filled from the leading edge, from 0 to 1. None: the track only.
    void setShare(std::optional<double> share, design::Role role);
    /// A marker on the track, from 0 to 1, and the part where it should lie. None: no marker.
    void setMarker(std::optional<double> place, design::Role role, double bandBegin, double bandEnd);

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    struct Band
    {
        double begin = 0;
        double end = 0;
    };

    int m_height;
    std::optional<double> m_value;
    design::Role m_role = design::Role::Info;
    std::optional<Band> m_band; ///< what makes it a scale
};

} // namespace quillmark::app

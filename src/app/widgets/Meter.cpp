// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "app/widgets/Meter.h"

#include "app/Appearance.h"
#include "app/painting.h"

#include <QPainter>

#include <algorithm>

namespace quillmark::app {

using design::Role;

namespace {

constexpr QSize markerSize(10, 14);
constexpr int markerRing = 2;

} // namespace

Meter::Meter(int height, QWidget *parent)
    : QWidget(parent)
    , m_height(height)
{
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    connect(&Appearance::current(), &Appearance::changed, this, [this] {
        updateGeometry();
        update();
    });
}

void Meter::setShare(std::optional<double> share, Role role)
{
    m_value = share;
    m_role = role;
    m_band.reset();
    updateGeometry();
    update();
}

void Meter::setMarker(std::optional<double> place, Role role, double bandBegin, double bandEnd)
{
    m_value = place;
    m_role = role;
    m_band = Band{bandBegin, bandEnd};
    updateGeometry();
    update();
}

QSize Meter::sizeHint() const
{
    const auto &appearance = Appearance::current();
    const int least = m_band ? markerSize.height() + 2 * markerRing : 0;
    return {appearance.scaled(40), appearance.scaled(std::max(m_height, least))};
}

void Meter::paintEvent(QPaintEvent *)
{
    const auto &appearance = Appearance::current();
    QPainter painter(this);
    const qreal thickness = appearance.scaled(m_height);
    const QRectF bounds(rect());
    const QRectF track(0, (bounds.height() - thickness) / 2, bounds.width(), thickness);
    const qreal radius = thickness / 2;
    const auto fill = [&](const QRectF &part, qreal round, Role role) {
        paintBox(painter, placed(part, bounds, layoutDirection()), round, appearance.color(role), {});
    };
    fill(track, radius, Role::Hairline);
    if (m_band)
        fill({m_band->begin * track.width(), track.top(), (m_band->end - m_band->begin) * track.width(),
              thickness},
             0, Role::SupportedSoft);
    if (!m_value)
        return;
    const qreal value = std::clamp(*m_value, 0.0, 1.0);
    if (!m_band) {
        if (value > 0)
            fill({0, track.top(), std::max(value * track.width(), thickness), thickness}, radius, m_role);
        return;
    }
    const qreal width = appearance.scaled(markerSize.width());
    const qreal height = appearance.scaled(markerSize.height());
    const qreal left = std::clamp(value * track.width() - width / 2, 0.0, track.width() - width);
    const QRectF marker(left, bounds.center().y() - height / 2, width, height);
    fill(marker.adjusted(-markerRing, -markerRing, markerRing, markerRing), width / 2 + markerRing,
         Role::Card);
    fill(marker, width / 2, m_role);
}

} // namespace quillmark::app

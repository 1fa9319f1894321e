// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "app/widgets/ScoreRing.h"

#include "app/Appearance.h"
#include "design/ScoreRing.h"

#include <QLocale>
#include <QPainter>

#include <algorithm>

namespace quillmark::app {

using namespace Qt::StringLiterals;
using design::Role;
using inspection::CapabilityStatus;

namespace {

constexpr int sweepTime = 400; // ms
constexpr qreal strokeShare = 0.09;
constexpr qreal fullCircle = 360;
constexpr qreal figureAt = 100; ///< the diameter that the figure has its size for

/// What of the ring is drawn when the sweep has come to `angle`.
std::vector<design::RingArc> upTo(std::vector<design::RingArc> arcs, qreal angle)
{
    std::erase_if(arcs, [angle](const auto &arc) { return arc.start >= angle; });
    for (auto &arc : arcs)
        arc.sweep = std::min(arc.sweep, angle - arc.start);
    return arcs;
}

QFont shrunk(QFont font, qreal share)
{
    font.setPointSizeF(font.pointSizeF() * share);
    return font;
}

} // namespace

ScoreRing::ScoreRing(QWidget *parent)
    : QWidget(parent)
{
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    m_sweep.setStartValue(0.0);
    m_sweep.setEndValue(1.0);
    m_sweep.setDuration(sweepTime);
    m_sweep.setEasingCurve(QEasingCurve::OutCubic);
    connect(&m_sweep, &QVariantAnimation::valueChanged, this, qOverload<>(&QWidget::update));
    connect(&Appearance::current(), &Appearance::changed, this, [this] {
        updateGeometry();
        update();
    });
}

void ScoreRing::setCounts(const std::optional<inspection::StatusCounts> &counts)
{
    m_counts = counts;
    sweep();
    update();
}

void ScoreRing::setDiameter(int diameter)
{
    m_diameter = diameter;
    updateGeometry();
    update();
}

QSize ScoreRing::sizeHint() const
{
    const int side = Appearance::current().scaled(m_diameter);
    return {side, side};
}

void ScoreRing::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    sweep();
}

void ScoreRing::sweep()
{
    if (m_wasSeen || !m_counts || !isVisible())
        return;
    m_wasSeen = true;
    if (Appearance::current().isAnimated())
        m_sweep.start();
}

void ScoreRing::paintEvent(QPaintEvent *)
{
    auto &appearance = Appearance::current();
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF square(rect());
    const qreal stroke = strokeShare * square.width();
    const bool isRated = m_counts && m_counts->rated() > 0;
    const bool isSweeping = m_sweep.state() == QAbstractAnimation::Running;
    if (!isRated || isSweeping)
        design::paintRing(painter, square, stroke, {}, appearance.theme());
    if (isRated) {
        const auto &counts = *m_counts;
        auto arcs =
            design::scoreRing(counts.of(CapabilityStatus::Supported), counts.of(CapabilityStatus::Warning),
                              counts.of(CapabilityStatus::Unsupported));
        if (isSweeping)
            arcs = upTo(std::move(arcs), fullCircle * m_sweep.currentValue().toReal());
        if (!arcs.empty())
            design::paintRing(painter, square, stroke, arcs, appearance.theme());
    }

    const auto percent = isRated ? QLocale().toString(m_counts->scorePercent()) : u"–"_s;
    const qreal share = m_diameter / figureAt;
    const auto figureFont = shrunk(appearance.font(TextRole::Figure), share);
    const auto signFont = shrunk(appearance.font(TextRole::Body, QFont::DemiBold), share);
    const QFontMetricsF figure(figureFont);
    constexpr qreal between = 1;
    const auto sign = isRated ? QString(QLocale().percent()) : QString();
    const qreal signWidth = isRated ? QFontMetricsF(signFont).horizontalAdvance(sign) + between : 0;
    const qreal figureWidth = figure.horizontalAdvance(percent);
    // Left to right in every language, as percentages are written.
    painter.setLayoutDirection(Qt::LeftToRight);
    const QPointF base(square.center().x() - (figureWidth + signWidth) / 2,
                       square.center().y() + figure.capHeight() / 2);
    painter.setPen(appearance.color(isRated ? Role::Text : Role::Text2));
    painter.setFont(figureFont);
    painter.drawText(base, percent);
    painter.setFont(signFont);
    painter.drawText(base + QPointF(figureWidth + between, 0), sign);
}

} // namespace quillmark::app

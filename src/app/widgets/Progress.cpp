// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "app/widgets/Progress.h"

#include "app/Appearance.h"

#include <QPainter>

namespace quillmark::app {

using design::Role;

namespace {

constexpr int side = 16;
constexpr int turnTime = 1000; ///< milliseconds
constexpr int degree = 16;     ///< of QPainter's angles

} // namespace

Progress::Progress(QWidget *parent)
    : QWidget(parent)
{
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    m_turn.setStartValue(0.0);
    m_turn.setEndValue(360.0);
    m_turn.setDuration(turnTime);
    m_turn.setLoopCount(-1);
    connect(&m_turn, &QVariantAnimation::valueChanged, this, qOverload<>(&QWidget::update));
    connect(&Appearance::current(), &Appearance::changed, this, [this] {
        updateGeometry();
        turn();
        update();
    });
}

void Progress::setDone(bool isDone)
{
    m_isDone = isDone;
    turn();
    update();
}

QSize Progress::sizeHint() const
{
    const int scaled = Appearance::current().scaled(side);
    return {scaled, scaled};
}

void Progress::turn()
{
    if (isVisible() && !m_isDone && Appearance::current().isAnimated())
        m_turn.start();
    else
        m_turn.stop();
}

void Progress::showEvent(QShowEvent *)
{
    turn();
}

void Progress::hideEvent(QHideEvent *)
{
    m_turn.stop();
}

void Progress::paintEvent(QPaintEvent *)
{
    auto &appearance = Appearance::current();
    QPainter painter(this);
    if (m_isDone) {
        appearance.paintIcon(painter, rect(), QStringLiteral("checkmark.circle.fill"), Role::Supported);
        return;
    }
    constexpr qreal stroke = 2;
    const auto ring = QRectF(rect()).adjusted(stroke, stroke, -stroke, -stroke);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(appearance.color(Role::CardBorder), stroke));
    painter.drawEllipse(ring);
    painter.setPen(QPen(appearance.color(Role::Accent), stroke, Qt::SolidLine, Qt::RoundCap));
    const int start = qRound((90 - m_turn.currentValue().toReal()) * degree);
    painter.drawArc(ring, start, -90 * degree);
}

} // namespace quillmark::app

// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "app/widgets/Card.h"

#include "app/Appearance.h"
#include "app/painting.h"

#include <QPainter>

namespace quillmark::app {

Card::Card(QWidget *parent)
    : QWidget(parent)
{
    connect(&Appearance::current(), &Appearance::changed, this, qOverload<>(&QWidget::update));
}

void Card::setSurface(design::Role ground, std::optional<design::Role> border)
{
    m_ground = ground;
    m_border = border;
    update();
}

void Card::paintEvent(QPaintEvent *)
{
    const auto &appearance = Appearance::current();
    QPainter painter(this);
    paintBox(painter, rect(), cardRadius, appearance.color(m_ground),
             m_border ? appearance.color(*m_border) : QColor());
}

} // namespace quillmark::app

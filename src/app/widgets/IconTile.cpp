// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "app/widgets/IconTile.h"

#include "app/Appearance.h"
#include "app/painting.h"

#include <QPainter>

namespace quillmark::app {

IconTile::IconTile(const QString &symbol, Shape shape, QWidget *parent)
    : QWidget(parent)
    , m_symbol(symbol)
    , m_shape(shape)
{
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    connect(&Appearance::current(), &Appearance::changed, this, [this] {
        updateGeometry();
        update();
    });
}

void IconTile::setSymbol(const QString &symbol)
{
    m_symbol = symbol;
    update();
}

void IconTile::setShape(Shape shape)
{
    m_shape = shape;
    updateGeometry();
    update();
}

void IconTile::setColors(design::Role ground, design::Role icon)
{
    m_ground = ground;
    m_icon = icon;
    update();
}

QSize IconTile::sizeHint() const
{
    const int side = Appearance::current().scaled(m_shape.side);
    return {side, side};
}

void IconTile::paintEvent(QPaintEvent *)
{
    auto &appearance = Appearance::current();
    QPainter painter(this);
    paintBox(painter, rect(), m_shape.radius, appearance.color(m_ground), {});
    const int icon = appearance.scaled(m_shape.icon);
    QRectF place(0, 0, icon, icon);
    place.moveCenter(QRectF(rect()).center());
    appearance.paintIcon(painter, place, m_symbol, m_icon);
}

} // namespace quillmark::app

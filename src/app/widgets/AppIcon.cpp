// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "app/widgets/AppIcon.h"

#include "app/Appearance.h"

#include <QPainter>

namespace quillmark::app {

AppIcon::AppIcon(int side, QWidget *parent)
    : QWidget(parent)
    , m_side(side)
{
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    connect(&Appearance::current(), &Appearance::changed, this, &QWidget::updateGeometry);
}

QSize AppIcon::sizeHint() const
{
    const int side = Appearance::current().scaled(m_side);
    return {side, side};
}

void AppIcon::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    Appearance::current().paintIcon(painter, rect(), QStringLiteral("app-icon"), design::Role::Accent);
}

} // namespace quillmark::app

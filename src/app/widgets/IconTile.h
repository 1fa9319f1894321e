// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "design/Theme.h"

#include <QWidget>

namespace quillmark::app {

/// A symbol on a rounded ground. Decoration: screen readers pass it by.
class IconTile : public QWidget
{
    Q_OBJECT

public:
    /// How large, with the radius and the size of the symbol that go with it.
    struct Shape
    {
        int side;
        qreal radius;
        int icon;
    };
    static constexpr Shape small{28, 8, 17};
    static constexpr Shape medium{40, 12, 22};
    static constexpr Shape large{52, 14, 29};
    static constexpr Shape empty{72, 22, 36};
    static constexpr Shape illustration{88, 20, 72};

    IconTile(const QString &symbol, Shape shape, QWidget *parent = nullptr);

    void setSymbol(const QString &symbol);
    void setShape(Shape shape);
    void setColors(design::Role ground, design::Role icon);
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QString m_symbol;
    Shape m_shape;
    design::Role m_ground = design::Role::AccentSoft;
    design::Role m_icon = design::Role::Accent;
};

} // namespace quillmark::app

// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "design/Theme.h"

#include <QWidget>

#include <optional>

namespace quillmark::app {

/// A rounded surface on which widgets stand.
class Card : public QWidget
{
    Q_OBJECT

public:
    explicit Card(QWidget *parent = nullptr);

    /// The colours of a card with its border, unless said otherwise. No border: none is drawn.
    void setSurface(design::Role ground, std::optional<design::Role> border);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    design::Role m_ground = design::Role::Card;
    std::optional<design::Role> m_border = design::Role::CardBorder;
};

} // namespace quillmark::app

// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QWidget>

#include <array>

class QGridLayout;

namespace quillmark::app {

struct BatteryFacts;
class TextLabel;

/// One battery: the ring with the verdict and the capacities, and four figures below.
class BatteryPanel : public QWidget
{
    Q_OBJECT

public:
    explicit BatteryPanel(QWidget *parent = nullptr);

    /// The name is shown where there are several batteries.
    void show(const BatteryFacts &facts, bool withName);
    /// Fits it to a page's effective width.
    void arrange(qreal effectiveWidth);

private:
    class Hero;
    class Tile;

    TextLabel *m_name;
    Hero *m_hero;
    QGridLayout *m_grid;
    std::array<Tile *, 4> m_tiles; ///< charge, cycles, temperature, condition
};

} // namespace quillmark::app

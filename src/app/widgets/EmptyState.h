// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "design/Theme.h"

#include <QString>
#include <QWidget>

class QHBoxLayout;

namespace quillmark::app {

class IconTile;
class TextLabel;

/// Stands in the middle of where there is nothing to list: a symbol, what is so, and why.
class EmptyState : public QWidget
{
    Q_OBJECT

public:
    explicit EmptyState(const QString &symbol, QWidget *parent = nullptr);

    void setColors(design::Role ground, design::Role icon);
    void setTexts(const QString &title, const QString &text);
    /// Below the text; side by side from the leading edge.
    void addButton(QWidget *button);

private:
    IconTile *m_tile;
    TextLabel *m_title;
    TextLabel *m_text;
    QHBoxLayout *m_buttons;
};

} // namespace quillmark::app

// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "app/Appearance.h"

#include <QLabel>

#include <optional>

namespace quillmark::app {

/// A plain text in one of the window's sizes and colours, which follow the appearance.
class TextLabel : public QLabel
{
    Q_OBJECT

public:
    explicit TextLabel(TextRole text, design::Role color = design::Role::Text, QWidget *parent = nullptr);

    void setRole(TextRole text);
    void setColor(design::Role color);
    void setWeight(QFont::Weight weight);

private:
    void applyAppearance();

    TextRole m_text;
    design::Role m_color;
    std::optional<QFont::Weight> m_weight; ///< none: the role's own
};

/// A text in one line that ends with an ellipsis where it does not fit; then a tool tip has all of it. Screen
/// readers are told all of it in any case.
class ElidedLabel : public TextLabel
{
    Q_OBJECT

public:
    using TextLabel::TextLabel;

    QSize minimumSizeHint() const override;

protected:
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
};

} // namespace quillmark::app

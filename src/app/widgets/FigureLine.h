// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "app/Appearance.h"

#include <QWidget>

#include <optional>
#include <vector>

namespace quillmark::app {

/// Figures that change from second to second, with the words and marks between them, in one line on a card.
/// Digits keep their places, and nothing but the line itself is painted for a new figure.
class FigureLine : public QWidget
{
    Q_OBJECT

public:
    /// A word with what stands before it.
    struct Part
    {
        QString text;
        TextRole font = TextRole::Small;
        std::optional<QFont::Weight> weight; ///< none: the role's own
        design::Role color = design::Role::Text;
        int gap = 0;    ///< before all of the part, in pixels
        QString symbol; ///< before the text; none when empty
        design::Role symbolColor = design::Role::Text2;
        enum class Swatch { None, Area, Line, Block } swatch = Swatch::None; ///< how a chart shows the series
        float swatchOpacity = 1;

        bool operator==(const Part &) const = default;
    };

    /// Where the line stands in its rectangle, leading or trailing.
    explicit FigureLine(Qt::Alignment alignment, QWidget *parent = nullptr);

    void setParts(std::vector<Part> parts);
    const std::vector<Part> &parts() const { return m_parts; }
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    std::vector<Part> m_parts;
    Qt::Alignment m_alignment;
};

/// "23%" or "18.96 GB": the number large, what stands around it smaller. For a line in this direction.
std::vector<FigureLine::Part> figureParts(const QString &figure, Qt::LayoutDirection direction);

} // namespace quillmark::app

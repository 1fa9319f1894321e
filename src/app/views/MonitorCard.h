// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "app/widgets/Card.h"
#include "app/widgets/FigureLine.h"

class QBoxLayout;

namespace quillmark::app {

class TextLabel;

/// A card of the live monitor: a title with its figure, a chart, and what the chart's lines are.
class MonitorCard : public Card
{
    Q_OBJECT

public:
    /// Takes the chart. `height` is in pixels at the usual text size.
    MonitorCard(const QString &symbol, QWidget *chart, int height, QWidget *parent = nullptr);

    void setTitle(const QString &title);
    /// At the trailing end of the title.
    void setFigures(std::vector<FigureLine::Part> parts);
    /// Below the chart, and after it at the trailing end, or one below the other where they do not fit.
    void setLegend(std::vector<FigureLine::Part> series, std::vector<FigureLine::Part> verdict = {});
    /// What a screen reader says of the chart besides its title.
    void setDescription(const QString &description);

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    void fitHeight();
    void fitLegend();

    TextLabel *m_title;
    FigureLine *m_figures;
    QWidget *m_chart;
    QBoxLayout *m_legend;
    FigureLine *m_series;
    FigureLine *m_verdict;
    int m_height;
};

/// A small card with one figure.
class MonitorTile : public Card
{
    Q_OBJECT

public:
    explicit MonitorTile(const QString &symbol, QWidget *parent = nullptr);

    void setLabel(const QString &label);
    /// `concern` adds the mark of a verdict.
    void setValue(const QString &value, const std::optional<design::StatusStyle> &verdict = {});
    void setNote(const QString &note);

private:
    TextLabel *m_label;
    FigureLine *m_value;
    TextLabel *m_note;
};

} // namespace quillmark::app

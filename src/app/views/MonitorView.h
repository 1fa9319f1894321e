// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "app/AppContext.h"
#include "app/views/Page.h"
#include "monitor/MonitorModel.h"
#include "monitor/chart.h"

#include <QElapsedTimer>

class QGridLayout;

namespace quillmark::app {

class ChartView;
class CoreBars;
class EmptyState;
class MonitorCard;
class MonitorTile;

/// Live figures and their last two minutes. The machine is watched while the page can be seen.
class MonitorView : public Page
{
    Q_OBJECT

public:
    explicit MonitorView(const AppContext &context, QWidget *parent = nullptr);

    QString headerTitle() const override;
    QString headerSymbol() const override;
    QString headerNote() const override;
    bool isSearchable() const override { return false; }

protected:
    void retranslate() override;
    void arrange() override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void showEvent(QShowEvent *event) override;

private:
    QWidget *makeLive();
    void follow();
    void showModel();
    void showNetwork();
    void showTiles();
    void describe();

    const AppContext &m_context;
    monitor::MonitorModel m_model;
    monitor::NetworkAxis m_networkAxis;
    double m_networkTop;
    QElapsedTimer m_described; ///< since the descriptions of the charts were set

    EmptyState *m_collecting;
    QWidget *m_live;
    QGridLayout *m_cards;
    QGridLayout *m_tiles;
    ChartView *m_processorChart;
    CoreBars *m_cores;
    ChartView *m_memoryChart;
    ChartView *m_networkChart;
    MonitorCard *m_processorCard;
    MonitorCard *m_coresCard;
    MonitorCard *m_memoryCard;
    MonitorCard *m_networkCard;
    MonitorTile *m_thermal;
    MonitorTile *m_swap;
    MonitorTile *m_battery;
};

} // namespace quillmark::app

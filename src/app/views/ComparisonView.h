// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "app/AppContext.h"
#include "history/ScanSnapshot.h"

#include <QWidget>

namespace quillmark::app {

class CardList;
class ChipRow;
class ComparisonModel;
class EmptyState;
class TextLabel;

/// What differs between two scans: which ones, and every row that has changed, come or gone.
class ComparisonView : public QWidget
{
    Q_OBJECT

public:
    explicit ComparisonView(const AppContext &context, QWidget *parent = nullptr);

    void setScans(const history::ScanSnapshot &older, const history::ScanSnapshot &newer);

    QString text() const;
    /// The current row as a line of text; empty: there is none.
    QString currentText() const;
    QWidget *firstStop() const;

    void retranslate();
    /// Fits it to an effective width, and to a page of that height.
    void arrange(qreal effectiveWidth, int height);

private:
    class Head;
    void update();

    const AppContext &m_context;
    ComparisonModel *m_model;
    Head *m_head;
    ChipRow *m_chips;
    TextLabel *m_languages;
    CardList *m_list;
    EmptyState *m_same;
};

} // namespace quillmark::app

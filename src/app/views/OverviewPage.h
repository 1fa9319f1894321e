// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "app/AppContext.h"
#include "app/views/RowsPage.h"

#include <QHash>

class QAbstractButton;

namespace quillmark::app {

class CardGrid;
class HeadlineCard;
class SectionCard;
class SinceCard;

/// The answer first: which machine, how good, what needs attention. A card for each section; with a filter by
/// status, its rows in their place.
class OverviewPage : public RowsPage
{
    Q_OBJECT

public:
    explicit OverviewPage(const AppContext &context, QWidget *parent = nullptr);

    QString headerTitle() const override;
    QWidget *firstStop() override;

Q_SIGNALS:
    void sectionChosen(const QString &key);
    /// The comparison of the newest two scans.
    void comparisonAsked();

protected:
    bool showsList() const override { return status().has_value(); }
    void rowsChanged() override;
    void retranslate() override;
    void arrange() override;

private:
    void fillCards();
    void placeCards();
    void compareScans();
    SectionCard *cardOf(const QString &key);

    HeadlineCard *m_headline;
    CardGrid *m_grid;
    QHash<QString, SectionCard *> m_cards; ///< by the section's key
    QList<QAbstractButton *> m_sections;   ///< their cards, in their order
    SinceCard *m_since;
    bool m_hasScans = false;
};

} // namespace quillmark::app

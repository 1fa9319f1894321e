// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "app/views/OverviewPage.h"

#include "app/momentTexts.h"
#include "app/views/CapabilityList.h"
#include "app/widgets/CardGrid.h"
#include "app/widgets/HeadlineCard.h"
#include "app/widgets/OverviewCard.h"
#include "history/ScanHistory.h"
#include "inspection/DeviceProbe.h"
#include "inspection/Quillmark.h"
#include "language/LanguageManager.h"

#include <QVBoxLayout>

namespace quillmark::app {

using namespace Qt::StringLiterals;

namespace {

// At the usual text size.
constexpr qreal threeColumns = 700;
constexpr qreal twoColumns = 460;

} // namespace

OverviewPage::OverviewPage(const AppContext &context, QWidget *parent)
    : RowsPage(context, parent)
    , m_headline(new HeadlineCard(context, this))
    , m_grid(new CardGrid(this))
    , m_since(new SinceCard(m_grid))
{
    m_since->hide();
    column()->addWidget(m_headline);
    addRows();
    column()->addWidget(m_grid);
    connect(m_since, &QAbstractButton::clicked, this, &OverviewPage::comparisonAsked);
    connect(m_grid, &CardGrid::shown, this, [this](QWidget *card) { ensureWidgetVisible(card, 0, 24); });
    connect(&context.inspection, &inspection::Quillmark::refreshed, this, [this] {
        compareScans(); // the day may be another
        fillCards();
    });
    connect(&context.history, &history::ScanHistory::snapshotsChanged, this, [this] {
        compareScans();
        placeCards();
    });
    setUp();
}

QString OverviewPage::headerTitle() const
{
    return tr("Overview");
}

QWidget *OverviewPage::firstStop()
{
    if (m_grid->isHidden() || !m_grid->stop())
        return RowsPage::firstStop();
    return m_grid->stop();
}

SectionCard *OverviewPage::cardOf(const QString &key)
{
    auto &card = m_cards[key];
    if (!card) {
        card = new SectionCard(m_grid);
        connect(card, &QAbstractButton::clicked, this, [this, key] { Q_EMIT sectionChosen(key); });
    }
    return card;
}

void OverviewPage::rowsChanged()
{
    m_headline->update();
    m_grid->setVisible(!showsList());
}

void OverviewPage::fillCards()
{
    const auto sections =
        isInspected() ? context().inspection.sections() : inspection::DeviceProbe::emptySections();
    const auto builtInDisplay =
        isInspected() ? inspection::DeviceProbe::builtInDisplay(context().machine) : std::nullopt;
    m_sections.clear();
    for (const auto &section : sections) {
        auto *card = cardOf(section.key.value_or(section.title));
        if (isInspected())
            card->show(section, builtInDisplay);
        else
            card->showCollecting(section);
        m_sections += card;
    }
    placeCards();
}

void OverviewPage::placeCards()
{
    auto cards = m_sections;
    m_since->setVisible(m_hasScans && isInspected());
    if (!m_since->isHidden())
        cards += m_since;
    m_grid->setCards(cards);
}

void OverviewPage::compareScans()
{
    const auto &scans = context().history.snapshots();
    m_hasScans = !scans.isEmpty();
    if (scans.size() == 1)
        m_since->show(tr("First scan saved"), tr("Later scans are compared with it"), {});
    if (scans.size() < 2)
        return;
    const auto older = scans[1].date.toLocalTime();
    const auto &formats = context().language.formats();
    const bool isToday = older.date() == QDate::currentDate();
    const auto counts = history::changeCounts(history::diff(scans[1], scans[0]));
    QStringList parts;
    if (counts.changed > 0)
        parts += tr("%n changed", nullptr, static_cast<int>(counts.changed));
    if (counts.added > 0)
        parts += tr("%n added", nullptr, static_cast<int>(counts.added));
    if (counts.removed > 0)
        parts += tr("%n removed", nullptr, static_cast<int>(counts.removed));
    //: %1 is a day, or the time of a scan of today
    m_since->show(tr("Since %1").arg(isToday ? timeText(older, formats) : dayText(older, formats)),
                  parts.isEmpty() ? tr("No differences") : parts.join(u" · "_s), tr("Compare scans"));
}

void OverviewPage::retranslate()
{
    compareScans();
    fillCards();
    RowsPage::retranslate();
}

void OverviewPage::arrange()
{
    RowsPage::arrange();
    m_headline->setCompact(isCompact());
    m_grid->setColumns(effectiveWidth() < twoColumns ? 1 : effectiveWidth() < threeColumns ? 2 : 3);
}

} // namespace quillmark::app

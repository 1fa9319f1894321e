// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "app/views/ComparisonView.h"

#include "app/Appearance.h"
#include "app/models/ComparisonModel.h"
#include "app/momentTexts.h"
#include "app/painting.h"
#include "app/views/ComparisonDelegate.h"
#include "app/widgets/Card.h"
#include "app/widgets/CardList.h"
#include "app/widgets/Chip.h"
#include "app/widgets/EmptyState.h"
#include "app/widgets/IconTile.h"
#include "app/widgets/TextLabel.h"
#include "history/historyTexts.h"
#include "language/LanguageManager.h"

#include <QBoxLayout>
#include <QPainter>

#include <algorithm>
#include <array>

namespace quillmark::app {

using namespace Qt::StringLiterals;
using design::Role;
using history::ChangeKind;
using history::ScanSnapshot;

namespace {

constexpr int headHeight = 70;
constexpr qreal headStackedBelow = 640;
constexpr std::array kinds = {ChangeKind::Changed, ChangeKind::Added, ChangeKind::Removed};

/// From the older scan to the newer.
class Arrow final : public QWidget
{
public:
    explicit Arrow(QWidget *parent)
        : QWidget(parent)
    {
        setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    }
    QSize sizeHint() const override
    {
        const int side = Appearance::current().scaled(32);
        return {side, side};
    }

protected:
    void paintEvent(QPaintEvent *) override
    {
        auto &appearance = Appearance::current();
        QPainter painter(this);
        const QRectF bounds(rect());
        paintBox(painter, bounds, bounds.height() / 2, appearance.color(Role::Card),
                 appearance.color(Role::ControlBorder));
        QRectF icon(0, 0, appearance.scaled(16), appearance.scaled(16));
        icon.moveCenter(bounds.center());
        appearance.paintIcon(painter, icon,
                             layoutDirection() == Qt::RightToLeft ? u"arrow.left"_s : u"arrow.right"_s,
                             Role::Text2);
    }
};

/// One of the two scans.
class ScanPanel final : public QWidget
{
public:
    explicit ScanPanel(QWidget *parent)
        : QWidget(parent)
        , m_tile(new IconTile(u"calendar"_s, IconTile::medium, this))
        , m_word(new TextLabel(TextRole::Small, Role::Text2, this))
        , m_date(new ElidedLabel(TextRole::Heading, Role::Text, this))
        , m_system(new ElidedLabel(TextRole::Small, Role::Text2, this))
        , m_score(new TextLabel(TextRole::Title3, Role::Text, this))
        , m_scoreWord(new TextLabel(TextRole::Small, Role::Text2, this))
    {
        m_score->setWeight(QFont::Bold);
        auto *texts = new QVBoxLayout;
        texts->setSpacing(0);
        for (auto *label : {m_word, static_cast<TextLabel *>(m_date), static_cast<TextLabel *>(m_system)})
            texts->addWidget(label);
        auto *figures = new QVBoxLayout;
        figures->setSpacing(0);
        figures->addStretch();
        for (auto *label : {m_score, m_scoreWord})
            figures->addWidget(label, 0, Qt::AlignTrailing);
        figures->addStretch();
        auto *row = new QHBoxLayout(this);
        row->setContentsMargins({});
        row->setSpacing(14);
        row->addWidget(m_tile);
        row->addLayout(texts, 1);
        row->addLayout(figures);
    }

    void show(const QString &word, const QString &date, const ScanSnapshot &scan, const QString &scoreWord)
    {
        m_word->setText(word);
        m_date->setText(date);
        m_system->setText(isolated(scan.osVersion));
        m_score->setText(isolated(scoreText(scan)));
        m_scoreWord->setText(scoreWord);
    }

    void setCompact(bool compact) { m_tile->setHidden(compact); }

private:
    IconTile *m_tile;
    TextLabel *m_word;
    ElidedLabel *m_date;
    ElidedLabel *m_system;
    TextLabel *m_score;
    TextLabel *m_scoreWord;
};

} // namespace

/// Which scans are compared.
class ComparisonView::Head final : public Card
{
public:
    explicit Head(QWidget *parent)
        : Card(parent)
        , m_row(new QBoxLayout(QBoxLayout::LeftToRight, this))
        , m_older(new ScanPanel(this))
        , m_arrow(new Arrow(this))
        , m_newer(new ScanPanel(this))
    {
        setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
        m_row->setContentsMargins(20, 8, 20, 8);
        m_row->setSpacing(20);
        m_row->addWidget(m_older, 1);
        m_row->addWidget(m_arrow);
        m_row->addWidget(m_newer, 1);
    }

    ScanPanel &older() { return *m_older; }
    ScanPanel &newer() { return *m_newer; }

    void arrange(qreal effectiveWidth)
    {
        const bool stacked = effectiveWidth < headStackedBelow;
        m_row->setDirection(stacked ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight);
        m_row->setSpacing(stacked ? 8 : 20);
        m_arrow->setHidden(stacked);
        for (auto *panel : {m_older, m_newer})
            panel->setCompact(!stacked && effectiveWidth < 760);
        setMinimumHeight(Appearance::current().scaled(headHeight));
    }

private:
    QBoxLayout *m_row;
    ScanPanel *m_older;
    Arrow *m_arrow;
    ScanPanel *m_newer;
};

ComparisonView::ComparisonView(const AppContext &context, QWidget *parent)
    : QWidget(parent)
    , m_context(context)
    , m_model(new ComparisonModel(this))
    , m_head(new Head(this))
    , m_chips(new ChipRow(this))
    , m_languages(new TextLabel(TextRole::Small, Role::Text2, this))
    , m_list(new CardList(this))
    , m_same(new EmptyState(u"checkmark.circle"_s, this))
{
    m_chips->addChip(u"list.bullet"_s, Role::AccentText);
    m_chips->addChip(u"arrow.right.circle"_s, Role::Text2);
    m_chips->addChip(u"plus.circle.fill"_s, Role::AccentText);
    m_chips->addChip(u"minus.circle.fill"_s, Role::Text2);
    m_languages->setWordWrap(true);
    m_same->setColors(Role::SupportedSoft, Role::Supported);
    m_list->setModel(m_model);
    m_list->setItemDelegate(new ComparisonDelegate(m_list));
    connect(m_chips, &ChipRow::chosenChanged, this, [this](int chosen) {
        m_model->setKind(chosen == 0 ? std::nullopt
                                     : std::optional(kinds[static_cast<std::size_t>(chosen - 1)]));
    });

    auto *column = new QVBoxLayout(this);
    column->setContentsMargins({});
    column->setSpacing(0);
    column->addWidget(m_head);
    column->addWidget(m_languages);
    column->addSpacing(14);
    column->addWidget(m_chips);
    column->addWidget(m_list);
    column->addWidget(m_same);
    m_languages->setContentsMargins(2, 10, 2, 0);
}

void ComparisonView::setScans(const ScanSnapshot &older, const ScanSnapshot &newer)
{
    m_model->setScans(older, newer);
    m_chips->choose(0);
    update();
}

QString ComparisonView::text() const
{
    return m_model->text(m_context.language.formats());
}

QString ComparisonView::currentText() const
{
    return m_list->currentIndex().data(ComparisonModel::TextRole).toString();
}

QWidget *ComparisonView::firstStop() const
{
    return m_model->isEmpty() ? nullptr : m_list;
}

void ComparisonView::retranslate()
{
    m_model->retranslate();
    m_list->setAccessibleName(tr("Differences"));
    m_same->setTexts(history::noDifferences(), history::noDifferencesNote());
    m_languages->setText(history::otherLanguageNote());
    update();
}

void ComparisonView::arrange(qreal effectiveWidth, int height)
{
    m_head->arrange(effectiveWidth);
    m_chips->setCompact(effectiveWidth < 640);
    m_same->setMinimumHeight(std::max(0, height - m_head->minimumHeight()));
}

void ComparisonView::update()
{
    const auto &formats = m_context.language.formats();
    const auto show = [&](ScanPanel &panel, const QString &word, const ScanSnapshot &scan) {
        //: Below a figure: the capability score
        panel.show(word, momentText(scan.date.toLocalTime(), formats), scan, tr("score"));
    };
    show(m_head->older(), history::olderText(), m_model->older());
    show(m_head->newer(), history::newerText(), m_model->newer());
    m_languages->setHidden(sameLanguage(m_model->older(), m_model->newer()));

    const auto &counts = m_model->counts();
    const auto set = [this](int chip, const QString &word, qsizetype count) {
        m_chips->chip(chip)->setText(word);
        m_chips->chip(chip)->setCount(count);
        //: Name of a filter, for screen readers: "Added, 2 rows"
        m_chips->chip(chip)->setAccessibleName(tr("%1, %n rows", nullptr, static_cast<int>(count)).arg(word));
        m_chips->chip(chip)->updateGeometry();
    };
    set(0, tr("All changes"), counts.changed + counts.added + counts.removed);
    set(1, title(ChangeKind::Changed), counts.changed);
    set(2, title(ChangeKind::Added), counts.added);
    set(3, title(ChangeKind::Removed), counts.removed);
    const bool isSame = m_model->isEmpty();
    m_chips->setHidden(isSame);
    m_list->setHidden(isSame);
    m_same->setHidden(!isSame);
}

} // namespace quillmark::app

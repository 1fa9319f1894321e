// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "app/views/BatteryPanel.h"

#include "app/Appearance.h"
#include "app/models/BatteryFacts.h"
#include "app/painting.h"
#include "app/widgets/Card.h"
#include "app/widgets/Meter.h"
#include "app/widgets/TextLabel.h"

#include <QBoxLayout>
#include <QGridLayout>
#include <QPainter>

#include <algorithm>

namespace quillmark::app {

using namespace Qt::StringLiterals;
using design::Role;

namespace {

// In logical pixels.
constexpr int heroHeight = 236;
constexpr int ringSize = 172;
constexpr int ringStroke = 12;
constexpr int capacityBar = 12;
constexpr int tileHeight = 142;
constexpr int tileBar = 8;
constexpr qreal heroStackedBelow = 560;
constexpr qreal fourTilesFrom = 640;

/// A symbol beside a text.
class Mark final : public QWidget
{
public:
    Mark(int size, QWidget *parent)
        : QWidget(parent)
        , m_size(size)
    {
        setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    }

    void setSymbol(const QString &symbol, Role role)
    {
        m_symbol = symbol;
        m_role = role;
        update();
    }
    QSize sizeHint() const override
    {
        // As high as a line of text, so that it stands beside the first one.
        const auto &appearance = Appearance::current();
        const int side = appearance.scaled(m_size);
        return {side, std::max(side, QFontMetrics(appearance.font(TextRole::Body)).height())};
    }

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        QRectF square(0, 0, width(), width());
        square.moveCenter(QRectF(rect()).center());
        if (!m_symbol.isEmpty())
            Appearance::current().paintIcon(painter, square, m_symbol, m_role);
    }

private:
    int m_size;
    QString m_symbol;
    Role m_role = Role::Text2;
};

/// The share of the design capacity.
class Ring final : public QWidget
{
public:
    explicit Ring(QWidget *parent)
        : QWidget(parent)
    {
        setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
        connect(&Appearance::current(), &Appearance::changed, this, [this] {
            updateGeometry();
            update();
        });
    }

    void show(std::optional<int> percent, Role role, const QString &caption, const QString &name)
    {
        m_percent = percent;
        m_role = role;
        m_caption = caption;
        setAccessibleName(name);
        update();
    }
    QSize sizeHint() const override
    {
        const int side = Appearance::current().scaled(ringSize);
        return {side, side};
    }

protected:
    void paintEvent(QPaintEvent *) override
    {
        const auto &appearance = Appearance::current();
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        const qreal stroke = appearance.scaled(ringStroke);
        const auto middle = QRectF(rect()).adjusted(stroke / 2, stroke / 2, -stroke / 2, -stroke / 2);
        const auto band = [&](Role role, qreal share) {
            painter.setPen(QPen(appearance.color(role), stroke, Qt::SolidLine, Qt::RoundCap));
            painter.drawArc(middle, 90 * 16, -qRound(share * 360 * 16));
        };
        band(Role::Hairline, 1);
        if (m_percent && *m_percent > 0)
            band(m_role, *m_percent / 100.0);
        paintFigure(painter);
    }

private:
    /// The number with its smaller sign, and below what it is a share of. Percentages run from left to right
    /// in every language.
    void paintFigure(QPainter &painter)
    {
        const auto &appearance = Appearance::current();
        const auto number = m_percent ? locale().toString(*m_percent) : u"–"_s;
        const auto sign = m_percent ? locale().percent() : QString();
        const auto large = appearance.font(TextRole::FigureXL);
        const auto small = appearance.font(TextRole::Title2);
        const QFontMetricsF metrics(large);
        const qreal numberWidth = metrics.horizontalAdvance(number);
        const qreal signWidth = QFontMetricsF(small).horizontalAdvance(sign);
        const QPointF center = QRectF(rect()).center();
        const qreal base = center.y() + metrics.capHeight() / 2 - appearance.scaled(8);
        const qreal left = center.x() - (numberWidth + signWidth + 1) / 2;
        painter.setPen(appearance.color(Role::Text));
        painter.setFont(large);
        painter.drawText(QPointF(left, base), number);
        painter.setFont(small);
        painter.drawText(QPointF(left + numberWidth + 1, base), sign);

        const auto font = appearance.font(TextRole::Small);
        const auto inside = QRectF(rect()).adjusted(appearance.scaled(24), 0, -appearance.scaled(24), 0);
        painter.setFont(font);
        painter.setPen(appearance.color(Role::Text2));
        painter.drawText(QRectF(inside.left(), base + appearance.scaled(10), inside.width(), inside.height()),
                         Qt::AlignHCenter | Qt::TextWordWrap, m_caption);
    }

    std::optional<int> m_percent;
    Role m_role = Role::Info;
    QString m_caption;
};

/// A capacity with its bar.
class CapacityLine final : public QWidget
{
public:
    explicit CapacityLine(QWidget *parent)
        : QWidget(parent)
        , m_label(new TextLabel(TextRole::Body, Role::Text, this))
        , m_figure(new TextLabel(TextRole::Body, Role::Text, this))
        , m_bar(new Meter(capacityBar, this))
    {
        m_label->setWeight(QFont::Medium);
        m_figure->setWeight(QFont::DemiBold);
        auto *texts = new QHBoxLayout;
        texts->addWidget(m_label, 1);
        texts->addWidget(m_figure);
        auto *column = new QVBoxLayout(this);
        column->setContentsMargins({});
        column->setSpacing(8);
        column->addLayout(texts);
        column->addWidget(m_bar);
    }

    void show(const QString &label, const QString &figure, std::optional<double> share, Role role)
    {
        m_label->setText(label);
        m_figure->setText(figure.isEmpty() ? u"–"_s : isolated(figure));
        m_bar->setShare(share, role);
    }

private:
    TextLabel *m_label;
    TextLabel *m_figure;
    Meter *m_bar;
};

} // namespace

/// The verdict.
class BatteryPanel::Hero final : public Card
{
public:
    explicit Hero(QWidget *parent)
        : Card(parent)
        , m_row(new QBoxLayout(QBoxLayout::LeftToRight, this))
        , m_ring(new Ring(this))
        , m_reported(new TextLabel(TextRole::Small, Role::Text2, this))
        , m_headline(new TextLabel(TextRole::Title2, Role::Text, this))
        , m_mark(new Mark(16, this))
        , m_word(new TextLabel(TextRole::Body, Role::Text, this))
        , m_sentence(new TextLabel(TextRole::Body, Role::Text2, this))
        , m_present(new CapacityLine(this))
        , m_design(new CapacityLine(this))
    {
        m_headline->setWordWrap(true);
        m_sentence->setWordWrap(true);
        m_word->setWeight(QFont::Medium);
        m_reported->setAlignment(Qt::AlignHCenter);
        auto *ring = new QVBoxLayout;
        ring->setSpacing(8);
        ring->addStretch();
        ring->addWidget(m_ring, 0, Qt::AlignHCenter);
        ring->addWidget(m_reported);
        ring->addStretch();
        auto *verdict = new QHBoxLayout;
        verdict->setSpacing(8);
        verdict->addWidget(m_mark, 0, Qt::AlignTop);
        verdict->addWidget(m_word, 0, Qt::AlignTop);
        verdict->addWidget(m_sentence, 1, Qt::AlignTop);
        auto *texts = new QVBoxLayout;
        texts->setSpacing(0);
        texts->addStretch();
        texts->addWidget(m_headline);
        texts->addSpacing(6);
        texts->addLayout(verdict);
        texts->addSpacing(22);
        texts->addWidget(m_present);
        texts->addSpacing(14);
        texts->addWidget(m_design);
        texts->addStretch();
        m_row->setContentsMargins(34, 24, 36, 24);
        m_row->setSpacing(42);
        m_row->addLayout(ring);
        m_row->addLayout(texts, 1);
    }

    void show(const BatteryFacts &facts)
    {
        const auto style = design::statusStyle(facts.status);
        m_ring->show(facts.percent, style.mark, BatteryPanel::tr("of design capacity"), facts.description);
        m_reported->setText(facts.reported);
        m_reported->setHidden(facts.reported.isEmpty());
        m_headline->setText(facts.headline);
        m_mark->setSymbol(style.symbol, style.mark);
        m_mark->setHidden(facts.word.isEmpty());
        m_word->setText(facts.word);
        m_word->setColor(style.text);
        m_word->setHidden(facts.word.isEmpty());
        m_sentence->setText(facts.sentence);
        m_present->show(BatteryPanel::tr("Present capacity"), facts.presentCapacity, facts.presentShare,
                        style.mark);
        m_design->show(BatteryPanel::tr("Design capacity"), facts.designCapacity,
                       facts.designCapacity.isEmpty() ? std::nullopt : std::optional(1.0), Role::Info);
    }

    void arrange(qreal effectiveWidth)
    {
        const bool stacked = effectiveWidth < heroStackedBelow;
        m_row->setDirection(stacked ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight);
        m_row->setSpacing(stacked ? 20 : 42);
        setMinimumHeight(Appearance::current().scaled(heroHeight));
    }

private:
    QBoxLayout *m_row;
    Ring *m_ring;
    TextLabel *m_reported;
    TextLabel *m_headline;
    Mark *m_mark;
    TextLabel *m_word;
    TextLabel *m_sentence;
    CapacityLine *m_present;
    CapacityLine *m_design;
};

/// One figure.
class BatteryPanel::Tile final : public Card
{
public:
    Tile(const QString &symbol, QWidget *parent)
        : Card(parent)
        , m_icon(new Mark(17, this))
        , m_title(new TextLabel(TextRole::Body, Role::Text2, this))
        , m_mark(new Mark(20, this))
        , m_figure(new TextLabel(TextRole::Title1, Role::Text, this))
        , m_bar(new Meter(tileBar, this))
        , m_note(new TextLabel(TextRole::Small, Role::Text2, this))
    {
        m_icon->setSymbol(symbol, Role::Text2);
        m_figure->setWordWrap(true);
        m_note->setWordWrap(true);
        auto *head = new QHBoxLayout;
        head->setSpacing(9);
        head->addWidget(m_icon);
        head->addWidget(m_title, 1);
        auto *figure = new QHBoxLayout;
        figure->setSpacing(8);
        figure->addWidget(m_mark);
        figure->addWidget(m_figure, 1);
        auto *column = new QVBoxLayout(this);
        column->setContentsMargins(18, 16, 18, 16);
        column->setSpacing(0);
        column->addLayout(head);
        column->addSpacing(8);
        column->addLayout(figure);
        column->addSpacing(12);
        column->addWidget(m_bar);
        column->addStretch();
        column->addWidget(m_note);
        m_mark->hide();
    }

    Meter &bar() { return *m_bar; }

    void show(const QString &title, const BatteryFigure &figure)
    {
        m_title->setText(title);
        m_figure->setText(isolated(figure.figure));
        m_figure->setColor(figure.isReported ? Role::Text : Role::Text3);
        m_note->setText(figure.note);
        m_bar->setVisible(figure.share.has_value());
        setAccessibleName(title);
        setAccessibleDescription(figure.isReported ? figure.figure : figure.note);
        setMinimumHeight(Appearance::current().scaled(tileHeight));
    }

    /// The status before the figure, which is a word then.
    void showMark(const BatteryFigure &figure)
    {
        const auto style = design::statusStyle(figure.status);
        m_mark->setSymbol(style.symbol, style.mark);
        m_mark->setVisible(figure.isReported);
    }

private:
    Mark *m_icon;
    TextLabel *m_title;
    Mark *m_mark;
    TextLabel *m_figure;
    Meter *m_bar;
    TextLabel *m_note;
};

BatteryPanel::BatteryPanel(QWidget *parent)
    : QWidget(parent)
    , m_name(new TextLabel(TextRole::Heading, Role::Text2, this))
    , m_hero(new Hero(this))
    , m_grid(new QGridLayout)
{
    const QString symbols[] = {u"battery.100.bolt"_s, u"arrow.triangle.2.circlepath"_s,
                               u"thermometer.medium"_s, u"heart"_s};
    for (std::size_t tile = 0; tile < m_tiles.size(); ++tile)
        m_tiles[tile] = new Tile(symbols[tile], this);
    m_grid->setSpacing(12);
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins({});
    column->setSpacing(16);
    column->addWidget(m_name);
    column->addWidget(m_hero);
    column->addLayout(m_grid);
}

void BatteryPanel::show(const BatteryFacts &facts, bool withName)
{
    m_name->setText(facts.name);
    m_name->setVisible(withName && !facts.name.isEmpty());
    m_hero->show(facts);
    const auto [charge, cycles, temperature, condition] = m_tiles;
    const auto mark = [](const BatteryFigure &figure) { return design::statusStyle(figure.status).mark; };
    charge->show(tr("Charge"), facts.charge);
    charge->bar().setShare(facts.charge.share, mark(facts.charge));
    cycles->show(tr("Cycle count"), facts.cycles);
    cycles->bar().setShare(facts.cycles.share, mark(facts.cycles));
    temperature->show(tr("Temperature"), facts.temperature);
    temperature->bar().setMarker(facts.temperature.share, mark(facts.temperature), normalWarmthBegin,
                                 normalWarmthEnd);
    condition->show(tr("Condition"), facts.condition);
    condition->showMark(facts.condition);
}

void BatteryPanel::arrange(qreal effectiveWidth)
{
    m_hero->arrange(effectiveWidth);
    const int columns = effectiveWidth < fourTilesFrom ? 2 : 4;
    for (int tile = 0; tile < 4; ++tile)
        m_grid->addWidget(m_tiles[static_cast<std::size_t>(tile)], tile / columns, tile % columns);
    for (int at = 0; at < 4; ++at)
        m_grid->setColumnStretch(at, at < columns ? 1 : 0);
}

} // namespace quillmark::app

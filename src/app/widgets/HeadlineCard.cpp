// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "app/widgets/HeadlineCard.h"

#include "app/Appearance.h"
#include "app/WrappedText.h"
#include "app/models/leadingRow.h"
#include "app/painting.h"
#include "app/widgets/IconTile.h"
#include "app/widgets/ScoreRing.h"
#include "inspection/Quillmark.h"
#include "reports/Report.h"

#include <QHelpEvent>
#include <QLocale>
#include <QPainter>
#include <QToolTip>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <deque>

namespace quillmark::app {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using design::Role;
using inspection::CapabilityStatus;

namespace {

// In logical pixels.
constexpr int cardHeight = 136;
constexpr int compactHeight = 112;
constexpr int margin = 24;
constexpr int tileGap = 22;
constexpr int ringSize = 100;
constexpr int compactRingSize = 84;
constexpr int dividerHeight = 88;
constexpr int ringGap = 18; ///< to the text beside it
constexpr int scoreWidth = 168;
constexpr int compactNameSize = 19; ///< where Title1 is 22
constexpr IconTile::Shape compactIllustration{68, 16, 56};
constexpr int progressHeight = 4;
constexpr qreal progressShare = 0.38;
constexpr qreal restingProgress = 0.45; ///< where the bar begins, and stands when nothing may move
constexpr int skeletonHeight = 9;
constexpr qreal skeletonRadius = 5;

constexpr auto progressTime = 1400ms;
constexpr auto patience = 8s;

/// Stands between facts in a line.
constexpr QStringView parted = u"\u2002·\u2002";

} // namespace

HeadlineCard::HeadlineCard(const AppContext &context, QWidget *parent)
    : Card(parent)
    , m_context(context)
    , m_tile(new IconTile(u"device.laptop"_s, IconTile::illustration, this))
    , m_ring(new ScoreRing(this))
{
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    m_progress.setStartValue(0.0);
    m_progress.setEndValue(1.0);
    m_progress.setDuration(static_cast<int>(progressTime.count()));
    m_progress.setLoopCount(-1);
    connect(&m_progress, &QVariantAnimation::valueChanged, this, qOverload<>(&QWidget::update));
    m_patience.setSingleShot(true);
    m_patience.setInterval(patience);
    connect(&m_patience, &QTimer::timeout, this, [this] {
        m_takesLong = true;
        QWidget::update();
    });
    connect(&Appearance::current(), &Appearance::changed, this, [this] {
        updateGeometry();
        arrange();
    });
    update();
}

void HeadlineCard::update()
{
    watchProgress();
    const auto &summary = m_context.inspection.summary();
    if (!summary) {
        m_ring->setCounts(std::nullopt);
        setAccessibleName(progressTitle());
        m_ring->setAccessibleName(tr("Capability score"));
        QWidget::update();
        return;
    }
    m_tile->setSymbol(deviceSymbol(*summary));
    m_ring->setCounts(inspection::countsOf(m_context.inspection.sections()));
    m_ring->setAccessibleName(tr("Capability score"));
    m_ring->setAccessibleDescription(scoreInWords());
    m_ring->setToolTip(m_isCompact ? scoreMeaning() + u'\n' + scoreCount() : QString());
    QStringList facts = {summary->deviceName};
    facts += reports::hardwareFacts(*summary);
    facts += summary->osVersion;
    //: The overview's first card, for screen readers. %1 is the machine and its parts, %2 "Capability score
    //: 85 percent, 35 of 41 capabilities supported"
    setAccessibleName(tr("%1. %2").arg(facts.join(u", "_s), tr("Capability score %1").arg(scoreInWords())));
    QWidget::update();
}

void HeadlineCard::setCompact(bool compact)
{
    m_isCompact = compact;
    m_tile->setShape(compact ? compactIllustration : IconTile::illustration);
    m_ring->setDiameter(compact ? compactRingSize : ringSize);
    updateGeometry();
    arrange();
    update();
}

QSize HeadlineCard::sizeHint() const
{
    return {0, Appearance::current().scaled(m_isCompact ? compactHeight : cardHeight)};
}

void HeadlineCard::arrange()
{
    const auto &appearance = Appearance::current();
    const auto inCard = [&](qreal left, QSize size) {
        const QRectF place(left, (height() - size.height()) / 2.0, size.width(), size.height());
        return placed(place, rect(), layoutDirection()).toRect();
    };
    m_tile->setGeometry(inCard(margin, m_tile->sizeHint()));
    const auto ring = m_ring->sizeHint();
    const int beside = m_isCompact ? 0 : ringGap + appearance.scaled(scoreWidth);
    m_ring->setGeometry(inCard(width() - margin - beside - ring.width(), ring));
    QWidget::update();
}

QRectF HeadlineCard::textPlace() const
{
    const qreal left = margin + m_tile->width() + tileGap;
    const auto ring = placed(m_ring->geometry(), rect(), layoutDirection());
    return {left, 0, ring.left() - (m_isCompact ? margin : 2 * margin) - left, static_cast<qreal>(height())};
}

QRectF HeadlineCard::scorePlace() const
{
    const qreal width = Appearance::current().scaled(scoreWidth);
    return {this->width() - margin - width, 0, width, static_cast<qreal>(height())};
}

/// Something moves only while there is something to wait for, and someone to see it.
void HeadlineCard::watchProgress()
{
    const bool isWaiting = !m_context.inspection.summary() && isVisible();
    if (isWaiting && m_progress.state() != QAbstractAnimation::Running) {
        if (Appearance::current().isAnimated())
            m_progress.start();
        m_patience.start();
    } else if (!isWaiting) {
        m_progress.stop();
        m_patience.stop();
        m_takesLong = false;
    }
}

QString HeadlineCard::scoreMeaning() const
{
    return isMac(m_context) ? tr("Share of rated capabilities that this Mac supports")
                            : tr("Share of rated capabilities that this computer supports");
}

QString HeadlineCard::scoreCount() const
{
    const auto counts = inspection::countsOf(m_context.inspection.sections());
    if (counts.rated() == 0)
        return tr("Nothing is rated");
    //: %1 is how many of them are supported: "35 of 41 capabilities"
    return tr("%1 of %n capabilities", nullptr, static_cast<int>(counts.rated()))
        .arg(QLocale().toString(counts.of(CapabilityStatus::Supported)));
}

QString HeadlineCard::scoreInWords() const
{
    const auto counts = inspection::countsOf(m_context.inspection.sections());
    if (counts.rated() == 0)
        return tr("Nothing is rated");
    //: For screen readers: "85 percent, 35 of 41 capabilities supported"
    return tr("%1 percent, %2 of %n capabilities supported", nullptr, static_cast<int>(counts.rated()))
        .arg(QLocale().toString(counts.scorePercent()),
             QLocale().toString(counts.of(CapabilityStatus::Supported)));
}

QString HeadlineCard::progressTitle() const
{
    return isMac(m_context) ? tr("Inspecting this Mac…") : tr("Inspecting this computer…");
}

void HeadlineCard::paintEvent(QPaintEvent *event)
{
    Card::paintEvent(event);
    QPainter painter(this);
    if (m_context.inspection.summary())
        paintParagraphs(painter, textPlace(), machine());
    else
        paintProgress(painter);
    if (m_isCompact)
        return;
    const auto ring = placed(m_ring->geometry(), rect(), layoutDirection());
    const qreal tall = Appearance::current().scaled(dividerHeight);
    const QRectF divider(ring.left() - margin, (height() - tall) / 2, 1, tall);
    painter.fillRect(placed(divider, rect(), layoutDirection()),
                     Appearance::current().color(Role::CardBorder));
    paintScore(painter);
}

/// One below the other, in the middle of the place.
void HeadlineCard::paintParagraphs(QPainter &painter, const QRectF &place,
                                   const QList<Paragraph> &paragraphs) const
{
    std::deque<WrappedText> texts;
    qreal height = 0;
    for (const auto &paragraph : paragraphs) {
        texts.emplace_back(paragraph.text, paragraph.font, place.width(), paragraph.mostLines,
                           layoutDirection());
        height += paragraph.above + texts.back().height();
    }
    const auto corner = placed(place, rect(), layoutDirection()).topLeft();
    qreal y = place.center().y() - height / 2;
    for (qsizetype at = 0; at < paragraphs.size(); ++at) {
        const auto &text = texts[static_cast<std::size_t>(at)];
        y += paragraphs[at].above;
        text.draw(painter, {corner.x(), y}, layoutDirection(),
                  Appearance::current().color(paragraphs[at].color));
        y += text.height();
    }
}

QList<HeadlineCard::Paragraph> HeadlineCard::machine() const
{
    const auto &appearance = Appearance::current();
    const auto &summary = *m_context.inspection.summary();
    auto nameFont = appearance.font(TextRole::Title1);
    if (m_isCompact)
        nameFont.setPointSizeF(nameFont.pointSizeF() * compactNameSize / 22);
    const auto factFont = appearance.font(TextRole::Heading, QFont::Normal);
    auto parts = isolated(reports::hardwareFacts(summary));
    QList<Paragraph> paragraphs = {{isolated(summary.deviceName), nameFont, Role::Text}};
    const auto oneLine = parts.join(parted);
    constexpr qreal gap = 3;
    if (parts.size() > 1 && QFontMetricsF(factFont).horizontalAdvance(oneLine) > textPlace().width()) {
        paragraphs += {parts.takeFirst(), factFont, Role::Text, gap};
        paragraphs += {parts.join(parted), factFont, Role::Text};
    } else {
        paragraphs += {oneLine, factFont, Role::Text, gap};
    }
    paragraphs += {isolated(reports::systemFacts(summary)).join(u" · "_s), appearance.font(TextRole::Small),
                   Role::Text3, gap};
    return paragraphs;
}

void HeadlineCard::paintProgress(QPainter &painter) const
{
    const auto &appearance = Appearance::current();
    auto place = textPlace();
    constexpr qreal barBelow = 34; ///< of the middle
    paintParagraphs(
        painter, place.adjusted(0, -16, 0, -16),
        {{progressTitle(), appearance.font(TextRole::Title1), Role::Text},
         {m_takesLong ? tr("This is taking longer than usual") : tr("Reading hardware and system settings"),
          appearance.font(TextRole::Heading, QFont::Normal), Role::Text2, 3}});
    const QRectF track(place.left(), height() / 2.0 + barBelow - progressHeight / 2.0, place.width(),
                       progressHeight);
    const qreal moved =
        m_progress.state() == QAbstractAnimation::Running ? m_progress.currentValue().toReal() : 0;
    const qreal step = std::fmod(restingProgress + moved, 1.0);
    const qreal length = track.width() * progressShare;
    const qreal begin = track.left() - length + (track.width() + length) * step;
    const QRectF bar = QRectF(begin, track.top(), length, progressHeight).intersected(track);
    constexpr qreal radius = progressHeight / 2.0;
    paintBox(painter, placed(track, rect(), layoutDirection()), radius, appearance.color(Role::Hairline), {});
    paintBox(painter, placed(bar, rect(), layoutDirection()), radius, appearance.color(Role::Accent), {});
}

void HeadlineCard::paintScore(QPainter &painter) const
{
    const auto &appearance = Appearance::current();
    const auto place = scorePlace();
    const auto title = tr("Capability score");
    const auto titleFont = appearance.font(TextRole::Heading);
    if (m_context.inspection.summary()) {
        const auto font = appearance.font(TextRole::Small);
        constexpr qreal gap = 3;
        constexpr int mostLines = 3;
        paintParagraphs(painter, place,
                        {{title, titleFont, Role::Text},
                         {scoreMeaning(), font, Role::Text2, gap, mostLines},
                         {scoreCount(), font, Role::Text2, gap}});
        return;
    }
    paintParagraphs(painter, place.adjusted(0, -16, 0, -16), {{title, titleFont, Role::Text2}});
    qreal y = place.center().y() + 2;
    for (const qreal share : {0.9, 0.67}) {
        const QRectF bar(place.left(), y, place.width() * share, skeletonHeight);
        paintBox(painter, placed(bar, rect(), layoutDirection()), skeletonRadius,
                 over(appearance.color(Role::Card), appearance.color(Role::Text), 0.08), {});
        y += 17;
    }
}

void HeadlineCard::resizeEvent(QResizeEvent *event)
{
    Card::resizeEvent(event);
    arrange();
}

void HeadlineCard::showEvent(QShowEvent *event)
{
    Card::showEvent(event);
    watchProgress();
}

void HeadlineCard::hideEvent(QHideEvent *event)
{
    Card::hideEvent(event);
    watchProgress();
}

bool HeadlineCard::event(QEvent *event)
{
    if (event->type() != QEvent::ToolTip || !m_context.inspection.summary())
        return Card::event(event);
    const auto paragraphs = machine();
    const bool isElided = std::ranges::any_of(paragraphs, [this](const Paragraph &paragraph) {
        return WrappedText(paragraph.text, paragraph.font, textPlace().width(), paragraph.mostLines)
            .isElided();
    });
    QStringList texts;
    for (const auto &paragraph : paragraphs)
        texts += paragraph.text;
    QToolTip::showText(static_cast<QHelpEvent *>(event)->globalPos(),
                       isElided ? texts.join(u'\n') : QString(), this);
    return true;
}

void HeadlineCard::changeEvent(QEvent *event)
{
    Card::changeEvent(event);
    if (event->type() == QEvent::LayoutDirectionChange)
        arrange();
}

} // namespace quillmark::app

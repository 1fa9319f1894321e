// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "app/widgets/NoticeBar.h"

#include "app/Appearance.h"
#include "app/painting.h"
#include "app/widgets/IconButton.h"

#include <QAccessible>
#include <QApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QResizeEvent>
#include <QStyle>
#include <QTimer>

#include <algorithm>

namespace quillmark::app {

using namespace Qt::StringLiterals;
using design::Role;

namespace {

// In logical pixels.
constexpr int leastHeight = 48;
constexpr int iconSize = 20;
constexpr int leadingMargin = 28;
constexpr int trailingMargin = 12;
constexpr int iconGap = 14;
constexpr int gap = 8;
constexpr int padding = 8;     ///< above and below
constexpr int leastText = 300; ///< narrower, the buttons stand below it
constexpr int slideTime = 160; ///< milliseconds

struct Look
{
    QString symbol;
    Role icon;
    Role ground;
};

Look lookOf(Notice::Kind kind)
{
    switch (kind) {
    case Notice::Kind::Success:
        return {u"checkmark.circle.fill"_s, Role::Supported, Role::SupportedSoft};
    case Notice::Kind::Update:
        return {u"arrow.down.circle"_s, Role::Accent, Role::AccentSoft};
    case Notice::Kind::Error:
        return {u"exclamationmark.circle"_s, Role::Unsupported, Role::UnsupportedSoft};
    }
    return {};
}

QString richText(const Notice &notice)
{
    const auto &appearance = Appearance::current();
    const auto span = [&](const QString &text, int weight, Role color) {
        return u"<span style=\"font-weight:%1; color:%2\">%3</span>"_s.arg(
            QString::number(weight), appearance.color(color).name(), text.toHtmlEscaped());
    };
    const auto sentence = span(notice.sentence, QFont::DemiBold, Role::Text);
    return notice.detail.isEmpty() ? sentence
                                   : sentence + u"&ensp;"_s + span(notice.detail, QFont::Normal, Role::Text2);
}

} // namespace

NoticeBar::NoticeBar(QWidget *parent, std::chrono::milliseconds stay)
    : QWidget(parent)
    , m_text(new QLabel(this))
    , m_buttons(new QWidget(this))
    , m_close(new IconButton(u"xmark"_s, this))
    , m_stay(new QTimer(this))
{
    auto policy = QSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    policy.setHeightForWidth(true);
    setSizePolicy(policy);

    m_text->setTextFormat(Qt::RichText);
    m_text->setWordWrap(true);
    m_close->setIconSize(16);
    auto *buttonRow = new QHBoxLayout(m_buttons);
    buttonRow->setContentsMargins({});
    buttonRow->setSpacing(gap);

    m_stay->setSingleShot(true);
    m_stay->setInterval(stay);
    connect(m_stay, &QTimer::timeout, this, &NoticeBar::leave);
    connect(m_close, &QAbstractButton::clicked, this, &NoticeBar::dismiss);
    connect(qApp, &QApplication::focusChanged, this, &NoticeBar::stayOrLeave);
    connect(&Appearance::current(), &Appearance::changed, this, &NoticeBar::applyAppearance);
    m_slide.setDuration(slideTime);
    m_slide.setEasingCurve(QEasingCurve::OutCubic);
    connect(&m_slide, &QVariantAnimation::valueChanged, this, &QWidget::updateGeometry);
    connect(&m_slide, &QVariantAnimation::finished, this, [this] {
        setVisible(m_isShown);
        updateGeometry();
    });
    applyAppearance();
    retranslate();
    hide();
}

void NoticeBar::show(const Notice &notice)
{
    m_notice = notice;
    const bool wasShown = m_isShown;
    m_isShown = true;
    addButtons();
    applyAppearance();
    const auto spoken = notice.detail.isEmpty() ? notice.sentence : notice.sentence + u' ' + notice.detail;
    setAccessibleName(spoken);
    m_text->setAccessibleName(spoken);
    setVisible(true);
    if (!wasShown)
        slide(0, 1);
    stayOrLeave();

    QAccessibleEvent alert(this, QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
}

void NoticeBar::dismiss()
{
    if (!m_isShown)
        return;
    leave();
    if (const auto closed = m_notice.closed)
        closed();
}

void NoticeBar::addButtons()
{
    for (auto *last : m_buttons->findChildren<QPushButton *>(QString(), Qt::FindDirectChildrenOnly)) {
        m_buttons->layout()->removeWidget(last);
        last->hide();
        last->deleteLater(); // its own click may have brought the new notice
    }
    for (const auto &button : m_notice.buttons) {
        auto *made = new QPushButton(button.text, m_buttons);
        made->setFlat(button.weight == Notice::Button::Weight::Plain);
        made->setDefault(button.weight == Notice::Button::Weight::Primary);
        connect(made, &QPushButton::clicked, this, [this, run = button.run] {
            leave();
            if (run)
                run();
        });
        m_buttons->layout()->addWidget(made);
        made->show();
    }
    m_buttons->setVisible(!m_notice.buttons.isEmpty());
}

/// A success leaves after a while, unless somebody is at it.
void NoticeBar::stayOrLeave()
{
    const auto *focus = QApplication::focusWidget();
    const bool isHeld = underMouse() || (focus && isAncestorOf(focus));
    if (!m_isShown || m_notice.kind != Notice::Kind::Success || isHeld)
        m_stay->stop();
    else if (!m_stay->isActive())
        m_stay->start();
}

void NoticeBar::leave()
{
    m_isShown = false;
    m_stay->stop();
    slide(1, 0);
}

void NoticeBar::slide(qreal from, qreal to)
{
    m_slide.stop();
    if (!Appearance::current().isAnimated() || !window()->isVisible()) {
        m_slide.setStartValue(to);
        m_slide.setEndValue(to);
        m_slide.setCurrentTime(slideTime);
        setVisible(m_isShown);
        updateGeometry();
        return;
    }
    m_slide.setStartValue(from);
    m_slide.setEndValue(to);
    m_slide.start();
}

/// In a bar that is read from left to right.
struct NoticeBar::Places
{
    QRect icon;
    QRect text;
    QRect buttons;
    QRect close;
    int height;
};

NoticeBar::Places NoticeBar::placesFor(int width) const
{
    const auto &appearance = Appearance::current();
    const int icon = appearance.scaled(iconSize);
    const auto close = m_close->sizeHint();
    const auto buttons = m_notice.buttons.isEmpty() ? QSize() : m_buttons->sizeHint();
    const int left = leadingMargin + icon + iconGap;
    const int right = width - trailingMargin - close.width() - gap;
    const int beside = right - left - buttons.width() - gap;
    const bool isBelow = !buttons.isEmpty() && beside < appearance.scaled(leastText);
    const int textWidth = std::max(1, isBelow || buttons.isEmpty() ? right - left : beside);
    const int textHeight = m_text->heightForWidth(textWidth);
    const int line = std::max({textHeight, close.height(), isBelow ? 0 : buttons.height()});
    const int content = line + (isBelow ? gap + buttons.height() : 0);
    const int height = std::max(appearance.scaled(leastHeight), content + 2 * padding);

    // The word of a button without a ground stands below the text.
    const bool isPlain = isBelow && m_notice.buttons.first().weight == Notice::Button::Weight::Plain;
    const int indent = isPlain ? buttonPadding : 0;

    const int top = (height - content) / 2;
    const auto centred = [&](int x, const QSize &size) {
        return QRect(QPoint(x, top + (line - size.height()) / 2), size);
    };
    return {.icon = centred(leadingMargin, {icon, icon}),
            .text = centred(left, {textWidth, textHeight}),
            .buttons = isBelow ? QRect(QPoint(left - indent, top + line + gap), buttons)
                               : centred(right - buttons.width(), buttons),
            .close = centred(right + gap, close),
            .height = height};
}

int NoticeBar::heightForWidth(int width) const
{
    return qRound(placesFor(width).height * m_slide.currentValue().toReal());
}

QSize NoticeBar::sizeHint() const
{
    return {leadingMargin + m_text->sizeHint().width(), heightForWidth(width())};
}

QSize NoticeBar::minimumSizeHint() const
{
    return {0, heightForWidth(width())};
}

void NoticeBar::applyAppearance()
{
    const auto &appearance = Appearance::current();
    m_text->setFont(appearance.font(TextRole::Body));
    m_text->setText(richText(m_notice));
    updateGeometry();
    putInPlace();
    update();
}

void NoticeBar::retranslate()
{
    m_close->setAccessibleName(tr("Close"));
    m_close->setToolTip(tr("Close"));
}

void NoticeBar::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    else if (event->type() == QEvent::LayoutDirectionChange)
        putInPlace();
}

void NoticeBar::enterEvent(QEnterEvent *)
{
    stayOrLeave();
}

void NoticeBar::leaveEvent(QEvent *)
{
    stayOrLeave();
}

void NoticeBar::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Escape)
        dismiss();
    else
        QWidget::keyPressEvent(event);
}

void NoticeBar::resizeEvent(QResizeEvent *event)
{
    // The height that a layout remembers is that for another width.
    if (event->size().width() != event->oldSize().width())
        QMetaObject::invokeMethod(this, &QWidget::updateGeometry, Qt::QueuedConnection);
    putInPlace();
}

void NoticeBar::putInPlace()
{
    const auto places = placesFor(width());
    const auto put = [&](QWidget *widget, const QRect &place) {
        const auto shown = place.translated(0, height() - places.height);
        widget->setGeometry(QStyle::visualRect(layoutDirection(), rect(), shown));
    };
    put(m_text, places.text);
    put(m_buttons, places.buttons);
    put(m_close, places.close);
}

void NoticeBar::paintEvent(QPaintEvent *)
{
    auto &appearance = Appearance::current();
    const auto look = lookOf(m_notice.kind);
    QPainter painter(this);
    painter.fillRect(rect(), appearance.color(look.ground));
    paintHairline(painter, 0, width(), height() - 1, appearance.color(Role::Hairline));
    const auto places = placesFor(width());
    const auto icon = places.icon.translated(0, height() - places.height);
    appearance.paintIcon(painter, placed(icon, rect(), layoutDirection()), look.symbol, look.icon);
}

} // namespace quillmark::app

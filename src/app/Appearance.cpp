// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "app/Appearance.h"

#include "app/Style.h"

#include <QApplication>
#include <QEvent>
#include <QPainter>
#include <QPalette>
#include <QPointer>
#include <QStyle>

#include <algorithm>
#include <cmath>

namespace quillmark::app {

using namespace Qt::StringLiterals;
using design::Role;

namespace {

struct TextStyle
{
    int pixels; ///< where body text is 13
    QFont::Weight weight;
    qreal tracking = 0; ///< pixels
};

TextStyle styleOf(TextRole role)
{
    switch (role) {
    case TextRole::FigureXL:
        return {40, QFont::Bold};
    case TextRole::Figure:
        return {27, QFont::Bold};
    case TextRole::Title1:
        return {22, QFont::Bold, -0.35};
    case TextRole::Title2:
        return {20, QFont::Bold, -0.3};
    case TextRole::Title3:
        return {17, QFont::DemiBold};
    case TextRole::Header:
        return {15, QFont::DemiBold};
    case TextRole::Heading:
        return {14, QFont::DemiBold};
    case TextRole::Body:
        return {13, QFont::Normal};
    case TextRole::Small:
        return {12, QFont::Normal};
    case TextRole::Mini:
        return {11, QFont::DemiBold};
    }
    return {13, QFont::Normal};
}

/// A Mac draws its own controls, in the appearance that the system has; elsewhere they are ours.
bool hasNativeControls()
{
    return QGuiApplication::platformName() == "cocoa"_L1;
}

bool isDark(const QPalette &palette)
{
    return palette.color(QPalette::Window).lightness() < palette.color(QPalette::WindowText).lightness();
}

QPalette paletteOf(const design::Theme &theme)
{
    QPalette palette;
    const auto set = [&](QPalette::ColorRole where, Role role) {
        palette.setColor(where, theme.color(role));
    };
    set(QPalette::Window, Role::Window);
    set(QPalette::WindowText, Role::Text);
    set(QPalette::Base, Role::Control);
    set(QPalette::AlternateBase, Role::Sidebar);
    set(QPalette::Text, Role::Text);
    set(QPalette::PlaceholderText, Role::Text3);
    set(QPalette::Button, Role::Control);
    set(QPalette::ButtonText, Role::Text);
    set(QPalette::BrightText, Role::OnAccent);
    set(QPalette::ToolTipBase, Role::Card);
    set(QPalette::ToolTipText, Role::Text);
    set(QPalette::Highlight, Role::Accent);
    set(QPalette::HighlightedText, Role::OnAccent);
    set(QPalette::Link, Role::Accent);
    set(QPalette::LinkVisited, Role::Accent);
    set(QPalette::Light, Role::Card);
    set(QPalette::Midlight, Role::Hairline);
    set(QPalette::Mid, Role::CardBorder);
    set(QPalette::Dark, Role::ControlBorder);
    set(QPalette::Shadow, Role::ControlStrong);
    for (const auto where : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        auto faded = theme.color(Role::Text);
        faded.setAlphaF(0.45F);
        palette.setColor(QPalette::Disabled, where, faded);
    }
    return palette;
}

} // namespace

Appearance &Appearance::current()
{
    static QPointer<Appearance> appearance;
    if (!appearance)
        appearance = new Appearance;
    return *appearance;
}

Appearance::Appearance()
    : QObject(qApp)
    , m_isPaletteDark(app::isDark(QGuiApplication::palette()))
    , m_desktop(DesktopChoices::ofSystem())
{
    Q_ASSERT(qApp);
    if (!hasNativeControls())
        QApplication::setStyle(new Style);
    update(isSystemDark());
    qApp->installEventFilter(this);
    connect(m_desktop.get(), &DesktopChoices::changed, this, [this] { update(isSystemDark()); });
}

Appearance::~Appearance() = default;

QFont Appearance::font(TextRole role) const
{
    return font(role, styleOf(role).weight);
}

QFont Appearance::font(TextRole role, QFont::Weight weight) const
{
    const auto style = styleOf(role);
    auto font = QApplication::font();
    constexpr qreal body = 13;
    font.setPointSizeF(font.pointSizeF() * style.pixels / body);
    font.setWeight(weight);
    if (style.tracking != 0)
        font.setLetterSpacing(QFont::AbsoluteSpacing, style.tracking);
    return font;
}

void Appearance::paintIcon(QPainter &painter, const QRectF &place, const QString &symbol, Role role)
{
    const auto ratio = painter.device()->devicePixelRatioF();
    // On whole pixels of the screen, where it is sharp.
    const auto whole = [ratio](qreal length) { return std::round(length * ratio) / ratio; };
    painter.drawPixmap(QPointF(whole(place.left()), whole(place.top())),
                       icon(symbol, qRound(place.width()), role, ratio));
}

bool Appearance::isAnimated() const
{
    return !m_desktop->reducesMotion() &&
           QApplication::style()->styleHint(QStyle::SH_Widget_Animation_Duration) > 0;
}

void Appearance::setDark(bool dark)
{
    update(dark);
}

bool Appearance::eventFilter(QObject *object, QEvent *event)
{
    if (object == qApp && !m_isApplying) {
        if (event->type() == QEvent::ApplicationPaletteChange)
            followPalette();
        else if (event->type() == QEvent::ApplicationFontChange)
            update(m_isDark);
    }
    return QObject::eventFilter(object, event);
}

void Appearance::followPalette()
{
    m_isPaletteDark = app::isDark(QGuiApplication::palette());
    update(isSystemDark());
}

bool Appearance::isSystemDark() const
{
    return m_desktop->prefersDark().value_or(m_isPaletteDark);
}

void Appearance::update(bool dark)
{
    m_isDark = dark;
    // The usual size of text is 13 points on a Mac, and as large on a screen of 96 dots an inch elsewhere.
    const qreal usual = hasNativeControls() ? 13 : 9.75;
    m_scale = std::clamp(QApplication::font().pointSizeF() / usual, 0.9, 1.6);
    applyPalette();
    Q_EMIT changed();
}

void Appearance::applyPalette()
{
    if (hasNativeControls())
        return;
    m_isApplying = true;
    QApplication::setPalette(paletteOf(theme()));
    m_isApplying = false;
}

} // namespace quillmark::app

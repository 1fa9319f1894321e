// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "app/widgets/Button.h"

#include "app/Appearance.h"
#include "app/painting.h"

#include <QKeyEvent>
#include <QPainter>

namespace quillmark::app {

using design::Role;

Button::Button(Kind kind, const QString &symbol, QWidget *parent)
    : QPushButton(parent)
    , m_kind(kind)
    , m_symbol(symbol)
{
    setAutoDefault(false);
    setDefault(kind == Kind::Primary);
    setFlat(kind == Kind::Plain);
    setAttribute(Qt::WA_Hover);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    applyAppearance();
    connect(&Appearance::current(), &Appearance::changed, this, &Button::applyAppearance);
}

/// The style draws nothing behind flat buttons.
void Button::paintEvent(QPaintEvent *event)
{
    if (m_kind == Kind::Plain) {
        QPainter painter(this);
        if (isEnabled() && (isDown() || underMouse())) {
            auto veil = Appearance::current().color(Role::Text);
            veil.setAlphaF(isDown() ? 0.12F : 0.08F);
            paintBox(painter, rect(), buttonRadius, veil, {});
        }
        if (hasKeyboardFocus(*this))
            paintFocusRing(painter, rect(), buttonRadius);
    }
    QPushButton::paintEvent(event);
}

void Button::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        click();
    else
        QPushButton::keyPressEvent(event);
}

void Button::applyAppearance()
{
    auto &appearance = Appearance::current();
    setFont(appearance.font(TextRole::Body, QFont::Medium));
    auto colors = palette();
    colors.setColor(QPalette::ButtonText,
                    appearance.color(m_kind == Kind::Plain ? Role::AccentText : Role::Text));
    setPalette(colors);
    if (!m_symbol.isEmpty())
        setIcon(appearance.icon(m_symbol, appearance.scaled(16),
                                m_kind == Kind::Primary ? Role::OnAccent : Role::Text, devicePixelRatioF()));
    updateGeometry();
}

} // namespace quillmark::app

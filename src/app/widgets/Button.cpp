// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "app/widgets/Button.h"

#include "app/Appearance.h"

#include <QKeyEvent>
#include <QStyleOptionButton>
#include <QStylePainter>

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
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    applyAppearance();
    connect(&Appearance::current(), &Appearance::changed, this, &Button::applyAppearance);
}

/// Qt 6.4 puts the text beside an icon to the wrong side from right to left: it mirrors the alignment twice.
void Button::paintEvent(QPaintEvent *)
{
    QStylePainter painter(this);
    QStyleOptionButton option;
    initStyleOption(&option);
    painter.drawControl(QStyle::CE_PushButtonBevel, option);
    if (!option.icon.isNull())
        painter.setLayoutDirection(Qt::LeftToRight);
    painter.drawControl(QStyle::CE_PushButtonLabel, option);
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
    if (!m_symbol.isEmpty())
        setIcon(appearance.icon(m_symbol, appearance.scaled(16),
                                m_kind == Kind::Primary ? Role::OnAccent : Role::Text, devicePixelRatioF()));
    updateGeometry();
}

} // namespace quillmark::app

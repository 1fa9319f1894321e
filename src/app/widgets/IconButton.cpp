// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "app/widgets/IconButton.h"

#include "app/Appearance.h"
#include "app/painting.h"

#include <QAction>
#include <QKeyEvent>
#include <QMenu>
#include <QPainter>

namespace quillmark::app {

using namespace Qt::StringLiterals;
using design::Role;

IconButton::IconButton(const QString &symbol, QWidget *parent)
    : QAbstractButton(parent)
    , m_symbol(symbol)
{
    setAttribute(Qt::WA_Hover);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    setFocusPolicy(Qt::TabFocus);
    connect(&Appearance::current(), &Appearance::changed, this, [this] {
        updateGeometry();
        update();
    });
}

void IconButton::setSymbol(const QString &symbol)
{
    m_symbol = symbol;
    update();
}

void IconButton::setIconSize(int size)
{
    m_iconSize = size;
    update();
}

void IconButton::setRole(Role role)
{
    m_role = role;
    update();
}

void IconButton::setAction(QAction *action, const QString &name)
{
    setText(name);
    setAccessibleName(name);
    const auto keys = action->shortcut().toString(QKeySequence::NativeText);
    //: Tool tip of a button: its name and its shortcut, "Inspect again (Ctrl+R)"
    setToolTip(keys.isEmpty() ? name : tr("%1 (%2)").arg(name, keys));
    if (m_action == action)
        return;
    m_action = action;
    const auto follow = [this] { setEnabled(m_action && m_action->isEnabled()); };
    follow();
    connect(action, &QAction::changed, this, follow);
    connect(this, &QAbstractButton::clicked, action, &QAction::trigger);
}

void IconButton::setMenu(QMenu *menu)
{
    m_menu = menu;
    connect(this, &QAbstractButton::clicked, this, &IconButton::popUpMenu);
}

void IconButton::openMenu()
{
    if (!m_menu)
        return;
    popUpMenu();
    m_menu->setActiveAction(m_menu->actions().value(0));
}

void IconButton::popUpMenu()
{
    const auto size = m_menu->sizeHint();
    const bool rightToLeft = layoutDirection() == Qt::RightToLeft;
    m_menu->popup(mapToGlobal(QPoint(rightToLeft ? 0 : width() - size.width(), height() + 4)));
}

QSize IconButton::sizeHint() const
{
    const auto &appearance = Appearance::current();
    return {appearance.scaled(32), appearance.scaled(30)};
}

void IconButton::paintEvent(QPaintEvent *)
{
    auto &appearance = Appearance::current();
    QPainter painter(this);
    if (!isEnabled())
        painter.setOpacity(0.45);
    if (isEnabled() && (isDown() || underMouse())) {
        auto veil = appearance.color(Role::Text);
        veil.setAlphaF(isDown() ? 0.12F : 0.08F);
        paintBox(painter, rect(), buttonRadius, veil, {});
    }
    if (hasKeyboardFocus(*this))
        paintFocusRing(painter, rect(), buttonRadius);
    const qreal icon = appearance.scaled(m_iconSize);
    QRectF place(0, 0, icon, icon);
    place.moveCenter(QRectF(rect()).center());
    appearance.paintIcon(painter, place, m_symbol, m_role);
}

void IconButton::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        click();
    else
        QAbstractButton::keyPressEvent(event);
}

} // namespace quillmark::app

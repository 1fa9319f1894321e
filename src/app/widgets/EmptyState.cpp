// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "app/widgets/EmptyState.h"

#include "app/widgets/IconTile.h"
#include "app/widgets/TextLabel.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

namespace quillmark::app {

using design::Role;

namespace {

constexpr int textWidth = 440;

} // namespace

EmptyState::EmptyState(const QString &symbol, QWidget *parent)
    : QWidget(parent)
    , m_tile(new IconTile(symbol, IconTile::empty, this))
    , m_title(new TextLabel(TextRole::Title3, Role::Text, this))
    , m_text(new TextLabel(TextRole::Body, Role::Text2, this))
    , m_buttons(new QHBoxLayout)
{
    m_tile->setColors(Role::InfoSoft, Role::Info);
    for (auto *label : {m_title, m_text}) {
        label->setAlignment(Qt::AlignHCenter);
        label->setWordWrap(true);
    }
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins({});
    column->setSpacing(0);
    column->addStretch();
    column->addWidget(m_tile, 0, Qt::AlignHCenter);
    column->addSpacing(20);
    column->addWidget(m_title);
    column->addSpacing(8);
    // An aligned widget would get the height of its text in one line.
    auto *middle = new QHBoxLayout;
    middle->addStretch();
    middle->addWidget(m_text);
    middle->addStretch();
    column->addLayout(middle);
    column->addSpacing(18);
    column->addLayout(m_buttons);
    column->addStretch();
    m_buttons->setSpacing(10);
    m_buttons->setAlignment(Qt::AlignHCenter);
    const auto fit = [this] { m_text->setFixedWidth(Appearance::current().scaled(textWidth)); };
    fit();
    connect(&Appearance::current(), &Appearance::changed, this, fit);
}

void EmptyState::setColors(Role ground, Role icon)
{
    m_tile->setColors(ground, icon);
}

void EmptyState::setTexts(const QString &title, const QString &text)
{
    m_title->setText(title);
    m_text->setText(text);
}

void EmptyState::addButton(QWidget *button)
{
    m_buttons->addWidget(button);
}

} // namespace quillmark::app

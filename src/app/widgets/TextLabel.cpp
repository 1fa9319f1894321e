// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "app/widgets/TextLabel.h"

#include <QHelpEvent>
#include <QPainter>
#include <QStyle>
#include <QToolTip>

namespace quillmark::app {

TextLabel::TextLabel(TextRole text, design::Role color, QWidget *parent)
    : QLabel(parent)
    , m_text(text)
    , m_color(color)
{
    setTextFormat(Qt::PlainText);
    applyAppearance();
    connect(&Appearance::current(), &Appearance::changed, this, &TextLabel::applyAppearance);
}

void TextLabel::setRole(TextRole text)
{
    m_text = text;
    applyAppearance();
}

void TextLabel::setColor(design::Role color)
{
    m_color = color;
    applyAppearance();
}

void TextLabel::setWeight(QFont::Weight weight)
{
    m_weight = weight;
    applyAppearance();
}

void TextLabel::applyAppearance()
{
    const auto &appearance = Appearance::current();
    setFont(m_weight ? appearance.font(m_text, *m_weight) : appearance.font(m_text));
    auto colors = palette();
    colors.setColor(QPalette::WindowText, appearance.color(m_color));
    setPalette(colors);
}

QSize ElidedLabel::minimumSizeHint() const
{
    const int least = fontMetrics().horizontalAdvance(QStringLiteral("MM…"));
    return {std::min(least, sizeHint().width()), QLabel::minimumSizeHint().height()};
}

bool ElidedLabel::event(QEvent *event)
{
    if (event->type() != QEvent::ToolTip || !toolTip().isEmpty())
        return TextLabel::event(event);
    const auto *help = static_cast<QHelpEvent *>(event);
    const bool fits = fontMetrics().horizontalAdvance(text()) <= contentsRect().width();
    QToolTip::showText(help->globalPos(), fits ? QString() : text(), this);
    return true;
}

void ElidedLabel::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    const auto inside = contentsRect();
    const auto shown = fontMetrics().elidedText(text(), Qt::ElideRight, inside.width());
    painter.setPen(palette().color(QPalette::WindowText));
    painter.drawText(inside, static_cast<int>(alignment()), shown);
}

} // namespace quillmark::app

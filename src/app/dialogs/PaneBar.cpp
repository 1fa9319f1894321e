// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "app/dialogs/PaneBar.h"

#include "app/Appearance.h"
#include "app/painting.h"

#include <QAbstractButton>
#include <QApplication>
#include <QHBoxLayout>
#include <QPainter>

#include <algorithm>

namespace quillmark::app {

using design::Role;

namespace {

constexpr QSize tabSize(92, 54);
constexpr int symbolSize = 22;
constexpr qreal tabRadius = 10;

class PaneButton final : public QAbstractButton
{
public:
    PaneButton(const QString &symbol, QWidget *parent)
        : QAbstractButton(parent)
        , m_symbol(symbol)
    {
        setCheckable(true);
        setAttribute(Qt::WA_Hover);
        setFocusPolicy(Qt::TabFocus);
        setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
        connect(&Appearance::current(), &Appearance::changed, this, [this] {
            updateGeometry();
            update();
        });
    }

    QSize sizeHint() const override
    {
        const auto &appearance = Appearance::current();
        const QFontMetrics metrics(wordFont(true));
        return {std::max(appearance.scaled(tabSize.width()), metrics.horizontalAdvance(text()) + 20),
                std::max(appearance.scaled(tabSize.height()),
                         metrics.height() + appearance.scaled(symbolSize) + 16)};
    }

protected:
    void paintEvent(QPaintEvent *) override
    {
        auto &appearance = Appearance::current();
        QPainter painter(this);
        const QRectF bounds(rect());
        if (isChecked()) {
            paintBox(painter, bounds, tabRadius, appearance.color(Role::AccentSoft), {});
        } else if (isDown() || underMouse()) {
            auto veil = appearance.color(Role::Text);
            veil.setAlphaF(isDown() ? 0.12F : 0.08F);
            paintBox(painter, bounds, tabRadius, veil, {});
        }
        if (hasKeyboardFocus(*this))
            paintFocusRing(painter, bounds, tabRadius);

        const auto role = isChecked() ? Role::AccentText : Role::Text2;
        const qreal icon = appearance.scaled(symbolSize);
        const qreal word = QFontMetricsF(wordFont(isChecked())).height();
        constexpr qreal gap = 2;
        const qreal top = (bounds.height() - icon - gap - word) / 2;
        appearance.paintIcon(painter, {(bounds.width() - icon) / 2, top, icon, icon}, m_symbol, role);
        painter.setFont(wordFont(isChecked()));
        painter.setPen(appearance.color(role));
        painter.drawText(QRectF(0, top + icon + gap, bounds.width(), word), Qt::AlignCenter, text());
    }

private:
    static QFont wordFont(bool isChosen)
    {
        return Appearance::current().font(TextRole::Body, isChosen ? QFont::DemiBold : QFont::Normal);
    }

    QString m_symbol;
};

} // namespace

PaneBar::PaneBar(const QStringList &symbols, QWidget *parent)
    : QWidget(parent)
{
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(16, 10, 16, 11);
    row->setSpacing(6);
    row->addStretch();
    for (const auto &symbol : symbols) {
        auto *button = new PaneButton(symbol, this);
        m_group.addButton(button, static_cast<int>(m_group.buttons().size()));
        row->addWidget(button);
    }
    row->addStretch();
    m_group.button(0)->setChecked(true);
    connect(&m_group, &QButtonGroup::idToggled, this, [this](int index, bool isOn) {
        if (isOn)
            Q_EMIT chosen(index);
    });
}

void PaneBar::setNames(const QStringList &names)
{
    for (int index = 0; index < m_group.buttons().size(); ++index) {
        m_group.button(index)->setText(names.value(index));
        m_group.button(index)->updateGeometry();
    }
}

void PaneBar::choose(int index)
{
    const bool hasFocus = isAncestorOf(QApplication::focusWidget());
    m_group.button(index)->setChecked(true);
    if (hasFocus)
        m_group.button(index)->setFocus(Qt::TabFocusReason);
}

void PaneBar::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    paintHairline(painter, 0, width(), height() - 1, Appearance::current().color(Role::CardBorder));
}

} // namespace quillmark::app

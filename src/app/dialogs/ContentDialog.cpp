// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "app/dialogs/ContentDialog.h"

#include "app/Appearance.h"
#include "app/painting.h"

#include <QEvent>
#include <QPainter>
#include <QScreen>
#include <QScrollArea>
#include <QVBoxLayout>

#include <algorithm>

namespace quillmark::app {

using design::Role;

namespace {

/// What the screen has to show beside the dialog: its frame, and something of the window.
constexpr int besideDialog = 80;

} // namespace

ContentDialog::ContentDialog(int width, QWidget *parent)
    : QDialog(parent)
    , m_usualWidth(width)
    , m_content(new QWidget)
    , m_column(new QVBoxLayout(m_content))
    , m_frame(new QVBoxLayout(this))
{
    auto *area = new QScrollArea(this);
    area->setFrameShape(QFrame::NoFrame);
    area->setWidgetResizable(true);
    area->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    area->setFocusPolicy(Qt::NoFocus);
    area->viewport()->setAutoFillBackground(false);
    area->setWidget(m_content);
    m_content->setAutoFillBackground(false); // setWidget() turned it on
    m_frame->setContentsMargins({});
    m_frame->setSpacing(0);
    m_frame->addWidget(area, 1);
    connect(&Appearance::current(), &Appearance::changed, this, [this] {
        if (isVisible())
            fit();
        update();
    });
}

void ContentDialog::setGround(Role ground)
{
    m_ground = ground;
    update();
}

void ContentDialog::setHeader(QWidget *header)
{
    m_frame->insertWidget(0, header);
}

void ContentDialog::setFooter(QWidget *footer)
{
    m_footer = footer;
    m_frame->addWidget(footer);
}

void ContentDialog::setUp()
{
    m_isSetUp = true;
    retranslate();
}

void ContentDialog::fit()
{
    const auto room = screen()->availableSize() - QSize(besideDialog, besideDialog);
    const int width = std::min(Appearance::current().scaled(m_usualWidth), room.width());
    m_column->invalidate();
    int height = m_column->totalHeightForWidth(width);
    if (height < 0)
        height = m_column->totalSizeHint().height();
    for (int row = 0; row < m_frame->count(); ++row) {
        auto *beside = m_frame->itemAt(row)->widget();
        if (!qobject_cast<QScrollArea *>(beside))
            height +=
                beside->hasHeightForWidth() ? beside->heightForWidth(width) : beside->sizeHint().height();
    }
    setFixedSize(width, std::min(height, room.height()));
}

void ContentDialog::changeEvent(QEvent *event)
{
    QDialog::changeEvent(event);
    if (event->type() != QEvent::LanguageChange || !m_isSetUp)
        return;
    retranslate();
    if (isVisible())
        fit();
}

void ContentDialog::showEvent(QShowEvent *event)
{
    fit();
    QDialog::showEvent(event);
}

void ContentDialog::paintEvent(QPaintEvent *)
{
    const auto &appearance = Appearance::current();
    QPainter painter(this);
    painter.fillRect(rect(), appearance.color(m_ground));
    if (!m_footer)
        return;
    painter.fillRect(m_footer->geometry(), appearance.color(Role::Window));
    paintHairline(painter, 0, width(), m_footer->y(), appearance.color(Role::CardBorder));
}

} // namespace quillmark::app

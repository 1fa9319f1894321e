// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "app/dialogs/ContentDialog.h"

#include "app/Appearance.h"
#include "app/painting.h"

#include <QEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QPushButton>
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
    , m_area(new QScrollArea(this))
    , m_content(new QWidget)
    , m_column(new QVBoxLayout(m_content))
    , m_frame(new QVBoxLayout(this))
{
    m_area->setFrameShape(QFrame::NoFrame);
    m_area->setWidgetResizable(true);
    m_area->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_area->setFocusPolicy(Qt::NoFocus);
    m_area->viewport()->setAutoFillBackground(false);
    m_area->setWidget(m_content);
    m_content->setAutoFillBackground(false); // setWidget() turned it on
    m_frame->setContentsMargins({});
    m_frame->setSpacing(0);
    m_frame->addWidget(m_area, 1);
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
    m_column->invalidate();
    // Texts differ in length from language to language.
    int width = std::max(Appearance::current().scaled(m_usualWidth), m_column->totalMinimumSize().width());
    for (int row = 0; row < m_frame->count(); ++row)
        width = std::max(width, m_frame->itemAt(row)->minimumSize().width());
    width = std::min(width, room.width());
    int height = m_column->totalHeightForWidth(width);
    if (height < 0)
        height = m_column->totalSizeHint().height();
    for (int row = 0; row < m_frame->count(); ++row) {
        auto *beside = m_frame->itemAt(row)->widget();
        if (beside != m_area)
            height +=
                beside->hasHeightForWidth() ? beside->heightForWidth(width) : beside->sizeHint().height();
    }
    // One that was needed for a moment would take the width that the content needs, and so stay.
    m_area->setVerticalScrollBarPolicy(height > room.height() ? Qt::ScrollBarAsNeeded
                                                              : Qt::ScrollBarAlwaysOff);
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

/// A button that has the focus is what Return means, not the dialog's.
void ContentDialog::keyPressEvent(QKeyEvent *event)
{
    const bool isReturn = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (auto *button = qobject_cast<QPushButton *>(focusWidget()); isReturn && button)
        button->click();
    else
        QDialog::keyPressEvent(event);
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

// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "app/dialogs/SettingsPane.h"

#include "app/Appearance.h"

#include <QAbstractButton>
#include <QGridLayout>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QStyle>

#include <algorithm>

namespace quillmark::app {

using namespace Qt::StringLiterals;
using design::Role;

namespace {

constexpr int labelColumn = 150;
constexpr int columnGap = 14;
constexpr int rowGap = 18;

Qt::Alignment labelAlignment()
{
    const bool isMac = QGuiApplication::platformName() == "cocoa"_L1;
    return isMac ? Qt::AlignTrailing : Qt::AlignLeading;
}

} // namespace

SettingsPane::SettingsPane(QWidget *parent)
    : QWidget(parent)
    , m_grid(new QGridLayout)
{
    auto *outer = new QVBoxLayout(this);
    outer->setContentsMargins(32, 24, 32, 28);
    outer->addLayout(m_grid);
    outer->addStretch();
    m_grid->setHorizontalSpacing(columnGap);
    m_grid->setVerticalSpacing(rowGap);
    m_grid->setColumnStretch(1, 1);
    connect(&Appearance::current(), &Appearance::changed, this, &SettingsPane::alignLabels);
}

QVBoxLayout *SettingsPane::addRow()
{
    auto *label = new TextLabel(TextRole::Body, Role::Text, this);
    label->setWordWrap(true);
    label->setAlignment(labelAlignment() | Qt::AlignTop);
    auto *column = new QVBoxLayout;
    column->setSpacing(3);
    const int row = static_cast<int>(m_rows.size());
    m_grid->addWidget(label, row, 0);
    m_grid->addLayout(column, row, 1, Qt::AlignTop);
    m_rows.push_back({label, column});
    return column;
}

void SettingsPane::setLabels(const QStringList &labels)
{
    for (std::size_t row = 0; row < m_rows.size(); ++row)
        m_rows[row].label->setText(labels.value(static_cast<qsizetype>(row)));
    alignLabels();
}

TextLabel *SettingsPane::addCaption(QLayout &column)
{
    auto *caption = new TextLabel(TextRole::Small, Role::Text3, this);
    caption->setWordWrap(true);
    column.addWidget(caption);
    return caption;
}

TextLabel *SettingsPane::addCaptionOf(QAbstractButton &control, QVBoxLayout &column)
{
    auto *row = new QHBoxLayout;
    row->setSpacing(0);
    column.addLayout(row);
    row->addSpacing(control.style()->pixelMetric(QStyle::PM_IndicatorWidth) +
                    control.style()->pixelMetric(QStyle::PM_CheckBoxLabelSpacing));
    return addCaption(*row);
}

/// The texts of a row share a base line with those of its first control.
void SettingsPane::alignLabels()
{
    m_grid->setColumnMinimumWidth(0, Appearance::current().scaled(labelColumn));
    for (const auto &[label, column] : m_rows) {
        const auto *control = column->itemAt(0)->widget();
        const bool isText = !control || qobject_cast<const QLabel *>(control);
        const int above = isText ? 0 : (control->sizeHint().height() - label->fontMetrics().height()) / 2;
        label->setContentsMargins(0, std::max(0, above), 0, 0);
    }
}

} // namespace quillmark::app

// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "app/widgets/TextLabel.h"

#include <QWidget>

#include <vector>

class QAbstractButton;
class QGridLayout;
class QLayout;
class QVBoxLayout;

namespace quillmark::app {

/// One pane of the settings: rows of a label and what is chosen there. Choices apply at once.
class SettingsPane : public QWidget
{
    Q_OBJECT

public:
    explicit SettingsPane(QWidget *parent = nullptr);

    /// Sets all texts, in the language of now.
    virtual void retranslate() = 0;
    /// Shows what is chosen now.
    virtual void refresh() = 0;

protected:
    /// A row, with the column that its controls go into. The label belongs to the pane.
    QVBoxLayout *addRow();
    /// Of the rows in their order.
    void setLabels(const QStringList &labels);
    TextLabel *addCaption(QLayout &column);
    /// The caption of a check box or radio button, which stands below its text.
    TextLabel *addCaptionOf(QAbstractButton &control, QVBoxLayout &column);

private:
    void alignLabels();

    struct Row
    {
        TextLabel *label;
        QVBoxLayout *column;
    };
    QGridLayout *m_grid;
    std::vector<Row> m_rows;
};

} // namespace quillmark::app

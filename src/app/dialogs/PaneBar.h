// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QButtonGroup>
#include <QStringList>
#include <QWidget>

namespace quillmark::app {

/// A row of buttons with a symbol above a word, of which one is chosen: the panes of the settings. One stop
/// for the Tab key; the arrows choose.
class PaneBar : public QWidget
{
    Q_OBJECT

public:
    /// One for each symbol; the first one is chosen.
    PaneBar(const QStringList &symbols, QWidget *parent = nullptr);

    void setNames(const QStringList &names);
    void choose(int index);

Q_SIGNALS:
    void chosen(int index);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QButtonGroup m_group;
};

} // namespace quillmark::app

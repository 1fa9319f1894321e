// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "app/AppContext.h"
#include "app/widgets/Card.h"

#include <QElapsedTimer>
#include <QList>

class QVBoxLayout;

namespace quillmark::app {

class Button;
class MonitorRowView;
class TextLabel;

/// The live figures in a pop-up below the menu bar. Closes by Esc, and by a click anywhere else.
class MenuBarMonitorView : public Card
{
    Q_OBJECT

public:
    explicit MenuBarMonitorView(const AppContext &context, QWidget *parent = nullptr);

    /// Shows it in the middle below the item at this place of the screen, as far as there is room.
    void openBelow(const QRect &item);

Q_SIGNALS:
    void openAsked();
    void settingsAsked();

protected:
    void changeEvent(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void showEvent(QShowEvent *event) override;

private:
    void buildHeader(QVBoxLayout &column);
    void buildFooter(QVBoxLayout &column);
    void retranslate();
    void follow();

    const AppContext &m_context;
    QWidget *m_header;
    TextLabel *m_pace;
    QWidget *m_rows;
    QList<MonitorRowView *> m_rowViews;
    TextLabel *m_collecting;
    QWidget *m_footer;
    Button *m_open;
    Button *m_settings;
    QElapsedTimer m_described; ///< since screen readers were told the figures
};

} // namespace quillmark::app

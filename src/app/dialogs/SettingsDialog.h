// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "app/AppContext.h"
#include "app/dialogs/ContentDialog.h"

#include <vector>

class QStackedWidget;

namespace quillmark::update {
class UpdateChecker;
}

namespace quillmark::app {

class GeneralPane;
class PaneBar;
class SettingsPane;
class UpdatesPane;

/// What the user can choose, in panes. Every choice applies at once.
class SettingsDialog : public ContentDialog
{
    Q_OBJECT

public:
    enum class Pane { General, Language, Updates, MenuBar };

    SettingsDialog(const AppContext &context, update::UpdateChecker &updates, QWidget *parent);

    void showPane(Pane pane);

Q_SIGNALS:
    void historyFolderAsked();
    void clearingAsked();
    void updateCheckAsked();

protected:
    void retranslate() override;
    void showEvent(QShowEvent *event) override;

private:
    void step(int by);

    QStackedWidget *m_panes;
    PaneBar *m_bar;
};

} // namespace quillmark::app

// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "app/AppContext.h"
#include "app/dialogs/ContentDialog.h"

#include <vector>

class QCheckBox;
class QPushButton;

namespace quillmark::update {
class UpdateChecker;
}

namespace quillmark::app {

class Progress;
class TextLabel;

/// What people see first, once: what the program does, and two choices. Only the button "Get started" agrees
/// to them; closing the dialog in any other way leaves everything as it was.
class FirstRunDialog : public ContentDialog
{
    Q_OBJECT

public:
    FirstRunDialog(const AppContext &context, update::UpdateChecker &updates, QWidget *parent);

protected:
    void retranslate() override;

private:
    void addPoints();
    QWidget *makeChoices();
    QWidget *makeFooter();
    void showProgress();
    void start();

    const AppContext &m_context;
    update::UpdateChecker &m_updates;
    TextLabel *m_title;
    TextLabel *m_subtitle;
    struct Point
    {
        TextLabel *heading;
        TextLabel *text;
    };
    std::vector<Point> m_points;
    QCheckBox *m_checkForUpdates;
    TextLabel *m_asked;
    QCheckBox *m_showMonitor;
    Progress *m_progress;
    TextLabel *m_state;
    QPushButton *m_start;
};

} // namespace quillmark::app

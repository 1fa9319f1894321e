// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "app/AppContext.h"
#include "app/dialogs/SettingsPane.h"

class QCheckBox;
class QPushButton;

namespace quillmark::update {
class UpdateChecker;
}

namespace quillmark::app {

class IconTile;

class UpdatesPane : public SettingsPane
{
    Q_OBJECT

public:
    UpdatesPane(const AppContext &context, update::UpdateChecker &updates, QWidget *parent = nullptr);

    void retranslate() override;
    void refresh() override;

Q_SIGNALS:
    void checkAsked();

private:
    void showStatus();

    const AppContext &m_context;
    update::UpdateChecker &m_updates;
    QCheckBox *m_automatic;
    TextLabel *m_caption;
    QPushButton *m_check;
    IconTile *m_mark;
    TextLabel *m_status;
    TextLabel *m_last;
};

} // namespace quillmark::app

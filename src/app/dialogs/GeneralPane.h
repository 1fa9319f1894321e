// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "app/AppContext.h"
#include "app/dialogs/SettingsPane.h"

class QPushButton;
class QRadioButton;

namespace quillmark::app {

class GeneralPane : public SettingsPane
{
    Q_OBJECT

public:
    explicit GeneralPane(const AppContext &context, QWidget *parent = nullptr);

    void retranslate() override;
    void refresh() override;

Q_SIGNALS:
    void historyFolderAsked();
    void clearingAsked();

private:
    const AppContext &m_context;
    QRadioButton *m_overview;
    QRadioButton *m_last;
    TextLabel *m_scans;
    QPushButton *m_show;
    QPushButton *m_clear;
    TextLabel *m_stays;
    TextLabel *m_connection;
};

} // namespace quillmark::app

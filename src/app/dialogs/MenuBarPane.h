// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "app/AppContext.h"
#include "app/dialogs/SettingsPane.h"

#include <array>

class QCheckBox;
class QRadioButton;

namespace quillmark::app {

class MenuBarPane : public SettingsPane
{
    Q_OBJECT

public:
    explicit MenuBarPane(const AppContext &context, QWidget *parent = nullptr);

    void retranslate() override;
    void refresh() override;

private:
    const AppContext &m_context;
    QCheckBox *m_show;
    TextLabel *m_missing; ///< where there is no place to show it
    std::array<QRadioButton *, 3> m_figures;
    QCheckBox *m_keepRunning;
    TextLabel *m_keepCaption;
};

} // namespace quillmark::app

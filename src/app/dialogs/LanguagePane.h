// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "app/AppContext.h"
#include "app/dialogs/SettingsPane.h"

class QComboBox;

namespace quillmark::app {

class LanguagePane : public SettingsPane
{
    Q_OBJECT

public:
    explicit LanguagePane(const AppContext &context, QWidget *parent = nullptr);

    void retranslate() override;
    void refresh() override;

private:
    void choose(const QString &tag);

    const AppContext &m_context;
    QComboBox *m_languages; ///< their data: tags; empty: the system's
    TextLabel *m_caption;
    TextLabel *m_example;
};

} // namespace quillmark::app

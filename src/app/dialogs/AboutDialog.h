// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "app/AppContext.h"
#include "app/dialogs/ContentDialog.h"

class QPushButton;

namespace quillmark::app {

class TextLabel;

/// Which program this is.
class AboutDialog : public ContentDialog
{
    Q_OBJECT

public:
    AboutDialog(const AppContext &context, QWidget *parent);

Q_SIGNALS:
    void licencesAsked();
    void updateCheckAsked();

protected:
    void retranslate() override;

private:
    const AppContext &m_context;
    TextLabel *m_version;
    TextLabel *m_purpose;
    QPushButton *m_licences;
    QPushButton *m_updates;
};

} // namespace quillmark::app

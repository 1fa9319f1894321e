// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "app/AppContext.h"
#include "app/views/RowsPage.h"

namespace quillmark::app {

class Button;
class ElidedLabel;

/// What a search found, by section.
class ResultsPage : public RowsPage
{
    Q_OBJECT

public:
    explicit ResultsPage(const AppContext &context, QWidget *parent = nullptr);

    /// Searches for the text: trimmed, and not empty then.
    void setSearch(const QString &text);

Q_SIGNALS:
    void searchCleared();

protected:
    void rowsChanged() override;
    void explainEmptiness() override;
    void retranslate() override;
    void hideEvent(QHideEvent *event) override;

private:
    ElidedLabel *m_title;
    ElidedLabel *m_found;
    Button *m_clear;
};

} // namespace quillmark::app

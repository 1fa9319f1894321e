// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "app/AppContext.h"
#include "app/views/RowsPage.h"

namespace quillmark::app {

class ElidedLabel;
class IconTile;

/// One section of the inspection, row by row.
class SectionPage : public RowsPage
{
    Q_OBJECT

public:
    explicit SectionPage(const AppContext &context, QWidget *parent = nullptr);

    /// Shows the section of this key from now on.
    void setSection(const QString &key);
    /// The section, whatever the filter shows of it.
    bool copyAsText() override;

protected:
    void rowsChanged() override;
    void arrange() override;

private:
    IconTile *m_tile;
    ElidedLabel *m_title;
    ElidedLabel *m_rated;
};

} // namespace quillmark::app

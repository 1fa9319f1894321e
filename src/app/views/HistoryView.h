// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "app/AppContext.h"
#include "app/views/Page.h"

namespace quillmark::app {

/// The saved scans: choosing two to compare, deleting one, clearing all.
class HistoryView : public Page
{
    Q_OBJECT

public:
    explicit HistoryView(const AppContext &context, QWidget *parent = nullptr);

    QString headerTitle() const override;
    bool isSearchable() const override { return false; }
    /// Shows what differs between the newest two scans.
    void compareNewest();

Q_SIGNALS:
    /// Someone wants the machine inspected, to have a first scan.
    void inspectionAsked();

private:
    const AppContext &m_context;
};

} // namespace quillmark::app

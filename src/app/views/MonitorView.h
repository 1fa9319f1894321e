// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "app/AppContext.h"
#include "app/views/Page.h"

namespace quillmark::app {

/// Live figures and their last two minutes.
class MonitorView : public Page
{
    Q_OBJECT

public:
    explicit MonitorView(const AppContext &context, QWidget *parent = nullptr);

    QString headerTitle() const override;
    bool isSearchable() const override { return false; }

private:
    const AppContext &m_context;
};

} // namespace quillmark::app

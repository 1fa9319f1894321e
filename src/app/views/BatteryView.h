// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "app/AppContext.h"
#include "app/views/Page.h"

namespace quillmark::app {

/// How the battery is.
class BatteryView : public Page
{
    Q_OBJECT

public:
    explicit BatteryView(const AppContext &context, QWidget *parent = nullptr);

    QString headerTitle() const override;
    bool isSearchable() const override { return false; }

private:
    const AppContext &m_context;
};

} // namespace quillmark::app

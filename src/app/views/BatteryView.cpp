// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "app/views/BatteryView.h"

namespace quillmark::app {

BatteryView::BatteryView(const AppContext &context, QWidget *parent)
    : Page(parent)
    , m_context(context)
{
    setUp();
}

QString BatteryView::headerTitle() const
{
    return tr("Battery health");
}

} // namespace quillmark::app

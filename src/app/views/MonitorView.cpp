// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "app/views/MonitorView.h"

namespace quillmark::app {

MonitorView::MonitorView(const AppContext &context, QWidget *parent)
    : Page(parent)
    , m_context(context)
{
    setUp();
}

QString MonitorView::headerTitle() const
{
    return tr("Live monitor");
}

} // namespace quillmark::app

// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "app/views/HistoryView.h"

namespace quillmark::app {

HistoryView::HistoryView(const AppContext &context, QWidget *parent)
    : Page(parent)
    , m_context(context)
{
    setUp();
}

QString HistoryView::headerTitle() const
{
    return tr("Scan history");
}

void HistoryView::compareNewest() {}

} // namespace quillmark::app

// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "app/views/OverviewPage.h"

namespace quillmark::app {

OverviewPage::OverviewPage(const AppContext &context, QWidget *parent)
    : Page(parent)
    , m_context(context)
{
    setUp();
}

QString OverviewPage::headerTitle() const
{
    return tr("Overview");
}

void OverviewPage::setStatus(std::optional<inspection::CapabilityStatus>) {}

std::optional<inspection::CapabilityStatus> OverviewPage::status() const
{
    return std::nullopt;
}

} // namespace quillmark::app

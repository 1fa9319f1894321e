// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "app/views/ResultsPage.h"

namespace quillmark::app {

ResultsPage::ResultsPage(const AppContext &context, QWidget *parent)
    : Page(parent)
    , m_context(context)
{
    setUp();
}

void ResultsPage::setSearch(const QString &) {}

void ResultsPage::setStatus(std::optional<inspection::CapabilityStatus>) {}

std::optional<inspection::CapabilityStatus> ResultsPage::status() const
{
    return std::nullopt;
}

} // namespace quillmark::app

// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "app/views/SectionPage.h"

namespace quillmark::app {

SectionPage::SectionPage(const AppContext &context, QWidget *parent)
    : Page(parent)
    , m_context(context)
{
    setUp();
}

void SectionPage::setSection(const QString &) {}

void SectionPage::setStatus(std::optional<inspection::CapabilityStatus>) {}

std::optional<inspection::CapabilityStatus> SectionPage::status() const
{
    return std::nullopt;
}

} // namespace quillmark::app

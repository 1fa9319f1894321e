// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "app/AppContext.h"
#include "app/views/Page.h"
#include "inspection/CapabilityModel.h"

#include <optional>

namespace quillmark::app {

/// What a search found, by section.
class ResultsPage : public Page
{
    Q_OBJECT

public:
    explicit ResultsPage(const AppContext &context, QWidget *parent = nullptr);

    /// Searches for the text: trimmed, and not empty then.
    void setSearch(const QString &text);
    void setStatus(std::optional<inspection::CapabilityStatus> status) override;
    bool hasStatusFilter() const override { return true; }
    std::optional<inspection::CapabilityStatus> status() const override;

Q_SIGNALS:
    void searchCleared();

private:
    const AppContext &m_context;
};

} // namespace quillmark::app

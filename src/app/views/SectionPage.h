// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "app/AppContext.h"
#include "app/views/Page.h"
#include "inspection/CapabilityModel.h"

#include <optional>

namespace quillmark::app {

/// One section of the inspection, row by row.
class SectionPage : public Page
{
    Q_OBJECT

public:
    explicit SectionPage(const AppContext &context, QWidget *parent = nullptr);

    /// Shows the section of this key from now on.
    void setSection(const QString &key);
    void setStatus(std::optional<inspection::CapabilityStatus> status) override;
    bool hasStatusFilter() const override { return true; }
    std::optional<inspection::CapabilityStatus> status() const override;

private:
    const AppContext &m_context;
};

} // namespace quillmark::app

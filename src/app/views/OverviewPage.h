// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "app/AppContext.h"
#include "app/views/Page.h"
#include "inspection/CapabilityModel.h"

#include <optional>

namespace quillmark::app {

/// The answer first: which machine, how good, what needs attention.
class OverviewPage : public Page
{
    Q_OBJECT

public:
    explicit OverviewPage(const AppContext &context, QWidget *parent = nullptr);

    QString headerTitle() const override;
    /// The rows of this status in place of the cards; none: the cards.
    void setStatus(std::optional<inspection::CapabilityStatus> status) override;
    bool hasStatusFilter() const override { return true; }
    std::optional<inspection::CapabilityStatus> status() const override;

Q_SIGNALS:
    void sectionChosen(const QString &key);
    /// The comparison of the newest two scans.
    void comparisonAsked();

private:
    const AppContext &m_context;
};

} // namespace quillmark::app

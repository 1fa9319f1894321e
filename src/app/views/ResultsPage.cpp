// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "app/views/ResultsPage.h"

#include "app/painting.h"
#include "app/widgets/Button.h"
#include "app/widgets/EmptyState.h"
#include "app/widgets/TextLabel.h"

#include <QHideEvent>
#include <QVBoxLayout>

namespace quillmark::app {

using design::Role;

ResultsPage::ResultsPage(const AppContext &context, QWidget *parent)
    : RowsPage(context, parent)
    , m_title(new ElidedLabel(TextRole::Title2, Role::Text, this))
    , m_found(new ElidedLabel(TextRole::Body, Role::Text2, this))
    , m_clear(new Button(Button::Kind::Normal, {}, empty()))
{
    empty()->addButton(m_clear);
    auto *heading = new QVBoxLayout;
    heading->setSpacing(2);
    heading->addWidget(m_title);
    heading->addWidget(m_found);
    column()->addLayout(heading);
    addRows();
    connect(m_clear, &Button::clicked, this, &ResultsPage::searchCleared);
    setUp();
}

void ResultsPage::setSearch(const QString &text)
{
    showRows({}, text, true);
}

void ResultsPage::rowsChanged()
{
    const auto &query = rows().query();
    m_title->setText(tr("Results for “%1”").arg(isolated(query.search)));
    if (rows().shownRows() > 0) {
        //: Stands in "9 rows in 2 sections"
        const auto sections = tr("%n sections", nullptr, rows().shownSections());
        //: %1 is "2 sections"
        m_found->setText(tr("%n rows in %1", nullptr, rows().shownRows()).arg(sections));
    } else if (query.status) {
        //: %1 is a status: "Warning"
        m_found->setText(tr("Filtered by %1").arg(inspection::title(*query.status)));
    } else {
        m_found->clear();
    }
}

void ResultsPage::explainEmptiness()
{
    RowsPage::explainEmptiness();
    const auto &query = rows().query();
    const auto search = isolated(query.search);
    int others = 0;
    for (const auto status : inspection::allStatuses)
        others += static_cast<int>(rows().counts().of(status));
    showAllButton()->setVisible(others > 0);
    m_clear->setDefault(others == 0);
    if (others == 0) {
        empty()->setTexts(tr("No rows match"),
                          tr("Nothing contains “%1”. Check the spelling or try a shorter word.").arg(search));
        return;
    }
    empty()->setTexts(
        tr("No rows match"),
        tr("No row that contains “%1” has the status %2.").arg(search, inspection::title(*query.status)) +
            u'\n' + tr("%n rows match with other statuses.", nullptr, others));
}

void ResultsPage::retranslate()
{
    m_clear->setText(tr("Clear search"));
    RowsPage::retranslate();
}

/// The next search begins with all statuses.
void ResultsPage::hideEvent(QHideEvent *event)
{
    RowsPage::hideEvent(event);
    if (!event->spontaneous())
        setStatus(std::nullopt);
}

} // namespace quillmark::app

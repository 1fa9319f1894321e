// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "app/views/RowsPage.h"

#include "app/views/CapabilityList.h"
#include "app/widgets/Button.h"
#include "app/widgets/Chip.h"
#include "app/widgets/EmptyState.h"
#include "inspection/Quillmark.h"

#include <QScrollBar>
#include <QVBoxLayout>

namespace quillmark::app {

using namespace Qt::StringLiterals;
using inspection::CapabilityStatus;

RowsPage::RowsPage(const AppContext &context, QWidget *parent)
    : Page(parent)
    , m_context(context)
    , m_chips(new StatusChips(this))
    , m_list(new CapabilityList(m_rows, this))
    , m_empty(new EmptyState(u"line.3.horizontal.decrease.circle"_s, this))
    , m_showAll(new Button(Button::Kind::Primary, {}, m_empty))
{
    m_empty->addButton(m_showAll);
    m_empty->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Expanding);
    m_rows.setSections(m_context.inspection.sections());
    connect(&m_context.inspection, &inspection::Quillmark::refreshed, this, &RowsPage::inspected);
    connect(m_chips, &StatusChips::statusChanged, this, &RowsPage::setStatus);
    connect(m_showAll, &Button::clicked, this, [this] { setStatus(std::nullopt); });
    connect(m_list, &CapabilityList::copied, this, &Page::copied);
}

void RowsPage::addRows()
{
    column()->addWidget(m_chips);
    column()->addWidget(m_list);
    column()->addWidget(m_empty);
}

bool RowsPage::canCopy() const
{
    return m_list->isVisible() && m_list->hasSelection();
}

void RowsPage::copy()
{
    if (canCopy())
        m_list->copy();
}

void RowsPage::selectAll()
{
    if (!m_list->isHidden())
        m_list->selectAll();
}

void RowsPage::setStatus(std::optional<CapabilityStatus> status)
{
    auto query = m_rows.query();
    if (query.status == status)
        return;
    query.status = status;
    m_rows.setQuery(query);
    m_chips->setStatus(status);
    update();
    Q_EMIT statusChanged();
}

QWidget *RowsPage::firstStop()
{
    return m_list->isHidden() ? static_cast<QWidget *>(m_chips) : m_list;
}

bool RowsPage::isInspected() const
{
    return m_context.inspection.lastUpdated().has_value();
}

void RowsPage::showRows(const QString &section, const QString &search, bool keepsStatus)
{
    CapabilityQuery query{.section = section, .search = search};
    if (keepsStatus)
        query.status = m_rows.query().status;
    if (query == m_rows.query())
        return;
    m_list->clearSelection();
    verticalScrollBar()->setValue(0);
    m_rows.setQuery(query);
    m_chips->setStatus(query.status);
    update();
    Q_EMIT statusChanged();
}

void RowsPage::inspected()
{
    m_rows.setSections(m_context.inspection.sections());
    update();
}

void RowsPage::update()
{
    const bool hasRows = m_rows.shownRows() > 0;
    m_chips->setCounts(isInspected() ? std::optional(m_rows.counts()) : std::nullopt);
    m_list->setVisible(hasRows && showsList());
    m_empty->setVisible(!hasRows && showsList() && isInspected());
    setFilled(!m_empty->isHidden());
    if (!m_empty->isHidden())
        explainEmptiness();
    rowsChanged();
}

void RowsPage::explainEmptiness()
{
    if (const auto status = m_rows.query().status)
        m_empty->setTexts(tr("No rows match"),
                          //: %1 is a status: "Warning"
                          tr("No row here has the status %1.").arg(inspection::title(*status)));
    m_showAll->setVisible(m_rows.query().status.has_value());
}

void RowsPage::retranslate()
{
    m_list->setAccessibleName(tr("Capabilities"));
    m_showAll->setText(tr("Show all statuses"));
    update();
}

void RowsPage::arrange()
{
    m_chips->setCompact(isCompact());
}

} // namespace quillmark::app

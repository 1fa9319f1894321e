// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "app/models/SidebarModel.h"

#include "app/models/Place.h"
#include "inspection/DeviceProbe.h"
#include "inspection/Quillmark.h"

#include <algorithm>

namespace quillmark::app {

using namespace Qt::StringLiterals;
using inspection::CapabilityStatus;

SidebarModel::SidebarModel(const AppContext &context, QObject *parent)
    : QAbstractListModel(parent)
    , m_context(context)
    , m_rows(currentRows())
{
    connect(&m_context.inspection, &inspection::Quillmark::refreshed, this, &SidebarModel::update);
}

int SidebarModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

QVariant SidebarModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid())
        return {};
    const auto &row = m_rows[index.row()];
    switch (role) {
    case Qt::DisplayRole:
        return row.title;
    case Qt::ToolTipRole:
        return row.place == place::monitor ? tr("Real-time CPU, memory, thermal, battery and network charts")
                                           : QVariant();
    case Qt::AccessibleTextRole:
        return row.warnings > 0
                   //: Name of a section in the sidebar, for screen readers: "Security, 1 warning"
                   ? tr("%1, %n warning(s)", nullptr, static_cast<int>(row.warnings)).arg(row.title)
                   : row.title;
    case PlaceRole:
        return row.place;
    case SymbolRole:
        return row.symbol;
    case WarningsRole:
        return static_cast<int>(row.warnings);
    case HeadingRole:
        return row.place.isEmpty();
    default:
        return {};
    }
}

Qt::ItemFlags SidebarModel::flags(const QModelIndex &index) const
{
    if (!index.isValid() || m_rows[index.row()].place.isEmpty())
        return Qt::NoItemFlags;
    return Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemNeverHasChildren;
}

QModelIndex SidebarModel::indexOf(const QString &place) const
{
    const auto row = std::ranges::find(m_rows, place, &Row::place);
    return place.isEmpty() || row == m_rows.end() ? QModelIndex()
                                                  : index(static_cast<int>(row - m_rows.begin()));
}

void SidebarModel::retranslate()
{
    update();
}

QList<SidebarModel::Row> SidebarModel::currentRows() const
{
    QList<Row> rows = {{place::overview, tr("Overview"), u"square.grid.2x2"_s}, {{}, tr("Capabilities"), {}}};
    const auto &inspected = m_context.inspection.sections();
    for (const auto &section : inspected.isEmpty() ? inspection::DeviceProbe::emptySections() : inspected) {
        rows.push_back({place::ofSection(section.key.value_or(section.title)), section.title, section.symbol,
                        std::ranges::count(section.items, CapabilityStatus::Warning,
                                           &inspection::CapabilityItem::status)});
    }
    rows += {{{}, tr("Tools"), {}},
             {place::history, tr("Scan history"), u"clock.arrow.circlepath"_s},
             {place::battery, tr("Battery health"), u"battery.100"_s},
             {place::monitor, tr("Live monitor"), u"waveform.path.ecg"_s}};
    return rows;
}

/// The selection stays where it is: the rows are the same ones, whatever they say now.
void SidebarModel::update()
{
    auto rows = currentRows();
    if (rows == m_rows)
        return;
    if (std::ranges::equal(rows, m_rows, {}, &Row::place, &Row::place)) {
        m_rows = std::move(rows);
        Q_EMIT dataChanged(index(0), index(rowCount() - 1));
        return;
    }
    beginResetModel();
    m_rows = std::move(rows);
    endResetModel();
}

} // namespace quillmark::app

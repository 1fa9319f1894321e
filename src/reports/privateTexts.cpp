// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "inspection/rows.h"
#include "language/folding.h"
#include "reports/Report.h"
#include "reports/Text.h"

#include <algorithm>
#include <array>

namespace quillmark::reports {

using namespace Qt::StringLiterals;

namespace {

using inspection::CapabilityItem;
using inspection::CapabilitySection;

struct Row
{
    QStringView section;
    QStringView item; ///< its key, without the number that it may have
};

constexpr Row computerNameRow = {u"system", u"deviceName"};
constexpr Row addressRow = {u"network", u"address"};
constexpr std::array volumeRows = {Row{u"storage", u"startupVolume"}, Row{u"storage", u"volume"}};

/// These show names of devices, into which systems put the name of the computer that the device belongs to.
/// In other rows the same text comes from elsewhere: a computer may be called "debian".
constexpr std::array deviceRows = {Row{u"displays", u"display"}, Row{u"cameraAudio", u"camera"},
                                   Row{u"cameraAudio", u"soundOutput"}, Row{u"cameraAudio", u"soundInput"}};

bool isRow(const Row &row, const CapabilitySection &section, const CapabilityItem &item)
{
    if (section.key != row.section || !item.key || !item.key->startsWith(row.item))
        return false;
    const auto rest = QStringView(*item.key).sliced(row.item.size());
    return rest.isEmpty() || (rest.startsWith(u'.') && !rest.sliced(1).contains(u'.'));
}

template <typename Rows>
bool isAmong(const Rows &rows, const CapabilitySection &section, const CapabilityItem &item)
{
    return std::ranges::any_of(rows, [&](const Row &row) { return isRow(row, section, item); });
}

/// People and systems write the apostrophe of a possessive in either way.
QString comparable(const QString &text)
{
    return language::folded(text).replace(u'’', u'\'');
}

/// Whether the name stands in the text, and not as part of a longer word.
bool names(const QString &text, const QString &name)
{
    const auto where = comparable(text);
    const auto what = comparable(name);
    const auto endsWord = [&where](qsizetype place) {
        return place < 0 || place >= where.size() || !where.at(place).isLetterOrNumber();
    };
    for (auto at = where.indexOf(what); at >= 0 && !what.isEmpty(); at = where.indexOf(what, at + 1)) {
        if (endsWord(at - 1) && endsWord(at + what.size()))
            return true;
    }
    return false;
}

/// What the machine is called where it has, or may have, no name.
QString standIn(const inspection::DeviceSummary &summary)
{
    return summary.modelIdentifier == inspection::missing() ? summary.chip : summary.modelIdentifier;
}

class Redaction
{
public:
    explicit Redaction(Report report)
        : m_report(std::move(report))
    {}

    Report apply()
    {
        const auto name = computerName();
        for (auto &section : m_report.sections) {
            const bool isOnlyAddress = 1 == std::ranges::count_if(section.items, [&](const auto &item) {
                                           return isRow(addressRow, section, item);
                                       });
            for (auto &item : section.items)
                leaveOut(section, item, name, isOnlyAddress);
        }
        if (!name.isEmpty())
            leaveOut(m_report.summary.deviceName, standIn(m_report.summary), PrivateText::ComputerName);
        std::ranges::sort(m_report.leftOut);
        return std::move(m_report);
    }

private:
    /// Empty when the computer has none.
    QString computerName() const
    {
        for (const auto &section : m_report.sections) {
            for (const auto &item : section.items) {
                if (isRow(computerNameRow, section, item) && item.value == inspection::missing())
                    return {};
            }
        }
        return m_report.summary.deviceName;
    }

    void leaveOut(const CapabilitySection &section, CapabilityItem &item, const QString &name,
                  bool isOnlyAddress)
    {
        //: Stands for a name or an address.
        const auto replacement = Text::tr("Left out");
        if (isRow(addressRow, section, item)) {
            // The interface's name may be a hardware address, or that of somebody's network.
            item.label =
                isOnlyAddress ? Text::tr("Address") : Text::tr("Address %1").arg(item.key->section(u'.', 1));
            leaveOut(item.value, replacement, PrivateText::Addresses);
        } else if (isAmong(volumeRows, section, item)) {
            if (item.value != inspection::notReadable())
                leaveOut(item.value, replacement, PrivateText::VolumeNames);
        } else if (isRow(computerNameRow, section, item)
                       ? !name.isEmpty()
                       : isAmong(deviceRows, section, item) && names(item.value, name)) {
            leaveOut(item.value, replacement, PrivateText::ComputerName);
        }
    }

    void leaveOut(QString &text, const QString &replacement, PrivateText kind)
    {
        text = replacement;
        if (!m_report.leftOut.contains(kind))
            m_report.leftOut.append(kind);
    }

    Report m_report;
};

} // namespace

Report withoutPrivateTexts(Report report)
{
    return Redaction(std::move(report)).apply();
}

QString rawValue(PrivateText text)
{
    switch (text) {
    case PrivateText::ComputerName:
        return u"computerName"_s;
    case PrivateText::Addresses:
        return u"addresses"_s;
    case PrivateText::VolumeNames:
        break;
    }
    return u"volumeNames"_s;
}

} // namespace quillmark::reports

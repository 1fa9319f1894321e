// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "history/historyTexts.h"

#include "language/texts.h"

namespace quillmark::history {

using namespace Qt::StringLiterals;

namespace {

class Text
{
    QUILLMARK_TEXTS(History)
};

} // namespace

QStringList countTexts(const ChangeCounts &counts)
{
    QStringList texts;
    if (counts.changed > 0)
        texts += Text::tr("%n changed", nullptr, static_cast<int>(counts.changed));
    if (counts.added > 0)
        texts += Text::tr("%n added", nullptr, static_cast<int>(counts.added));
    if (counts.removed > 0)
        texts += Text::tr("%n removed", nullptr, static_cast<int>(counts.removed));
    return texts;
}

QString title(ChangeKind kind)
{
    switch (kind) {
    case ChangeKind::Changed:
        return Text::tr("Changed");
    case ChangeKind::Added:
        return Text::tr("Added");
    case ChangeKind::Removed:
        return Text::tr("Removed");
    }
    return {};
}

QString olderText()
{
    return Text::tr("Older");
}

QString newerText()
{
    return Text::tr("Newer");
}

QString firstScan()
{
    return Text::tr("First scan");
}

QString noDifferences()
{
    return Text::tr("No differences");
}

QString noDifferencesNote()
{
    return Text::tr("Both scans show the same capabilities. Values that change all the time, such as uptime, "
                    "are not compared.");
}

QString otherLanguageNote()
{
    return Text::tr("The two scans are in different languages, so only changes of status are shown.");
}

QString noScans()
{
    return Text::tr("No saved scans yet");
}

QString scoreText(const ScanSnapshot &scan)
{
    const auto counts = countsOf(scan);
    return counts.rated() == 0 ? u"–"_s
                               : Text::tr("%1%").arg(language::currentFormats().count(counts.scorePercent()));
}

QString valueText(const ScanSnapshot::Item &item, bool withStatus)
{
    const auto status = inspection::title(item.status);
    return withStatus && item.value != status ? u"%1 · %2"_s.arg(item.value, status) : item.value;
}

} // namespace quillmark::history

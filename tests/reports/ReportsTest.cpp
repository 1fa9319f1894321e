// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "inspection/DeviceProbe.h"
#include "reports/Report.h"
#include "support/Recordings.h"
#include "support/Rows.h"

#include <QJsonArray>
#include <QRegularExpression>
#include <QTest>
#include <QTimeZone>

using namespace quillmark;
using namespace quillmark::inspection;
using namespace quillmark::support;
using namespace Qt::StringLiterals;

namespace {

reports::Report reportOf(const platform::Machine &machine)
{
    const language::Formats english(u"en"_s);
    return {.date = QDateTime({2026, 11, 22}, {22, 35, 32}, QTimeZone(7200)),
            .language = u"en"_s,
            .summary = DeviceProbe::summary(machine, english),
            .sections = DeviceProbe::sections(machine, english, machine.network().currentPath())};
}

/// "title | label | value" of every row, in order.
QStringList rowsOf(const reports::Report &report)
{
    QStringList rows;
    for (const auto &section : report.sections) {
        for (const auto &item : section.items)
            rows += QStringList{section.title, item.label, item.value}.join(u" | "_s);
    }
    return rows;
}

/// The same from the report as plain text; a status in brackets belongs to the format.
QStringList rowsOfPlainText(const QString &text)
{
    static const QRegularExpression status(u" \\[(Supported|Not supported|Warning)\\]$"_s);
    QStringList rows;
    QString title;
    for (auto line : text.split(u'\n')) {
        if (!line.startsWith(u"  "_s)) {
            title = line;
            continue;
        }
        line = line.mid(2).remove(status);
        const auto colon = line.indexOf(u": "_s);
        rows += QStringList{title, line.left(colon), line.mid(colon + 2)}.join(u" | "_s);
    }
    return rows;
}

/// The same from the tables of the report as Markdown, as a reader of Markdown sees them.
QStringList rowsOfMarkdown(const QString &text)
{
    static const QRegularExpression row(u"^\\| (.*?[^\\\\]) \\| (.*?[^\\\\]) \\| (.*) \\|$"_s);
    const auto read = [](QString cell) {
        static const QRegularExpression escape(u"\\\\(.)"_s);
        return cell.replace(escape, u"\\1"_s).replace(u"&lt;"_s, u"<"_s).replace(u"&amp;"_s, u"&"_s);
    };
    QStringList rows;
    QString title;
    for (const auto &line : text.split(u'\n')) {
        if (line.startsWith(u"## "_s))
            title = read(line.mid(3));
        const auto match = row.match(line);
        if (match.hasMatch() && match.captured(1) != u"Capability" && match.captured(1) != u"---")
            rows += QStringList{title, read(match.captured(1)), read(match.captured(2))}.join(u" | "_s);
    }
    return rows;
}

} // namespace

class ReportsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void allFormsHoldTheSameRows_data();
    void allFormsHoldTheSameRows();
    void plainText();
    void markdown();
    void json();
    void beforeTheFirstInspection();
    void filtered();
    void oddNames_data();
    void oddNames();
};

void ReportsTest::allFormsHoldTheSameRows_data()
{
    QTest::addColumn<QString>("name");
    for (const auto &name : recordingNames())
        QTest::newRow(qPrintable(name)) << name;
}

void ReportsTest::allFormsHoldTheSameRows()
{
    QFETCH(const QString, name);
    const auto report = reportOf(*machineFrom(recordingText(name)));
    const auto rows = rowsOf(report);
    QVERIFY(rows.size() > 15);
    QVERIFY(sameLines(rowsOfPlainText(reports::plainText(report)), rows));
    QVERIFY(sameLines(rowsOfMarkdown(reports::markdown(report)), rows));

    QStringList written;
    const auto json = QJsonDocument::fromJson(reports::json(report)).object();
    for (const auto &section : json[u"sections"_s].toArray()) {
        for (const auto &item : section[u"items"_s].toArray())
            written += QStringList{section[u"title"_s].toString(), item[u"label"_s].toString(),
                                   item[u"value"_s].toString()}
                           .join(u" | "_s);
    }
    QVERIFY(sameLines(written, rows));
}

void ReportsTest::plainText()
{
    qputenv("TZ", "UTC");
    const auto report = reportOf(*changedMachine(R"({"thermalState": 2})"));
    const auto text = reports::plainText(report);
    const auto lines = text.split(u'\n');
    QCOMPARE(lines[0], u"Quillmark report"_s);
    QVERIFY2(lines[1].startsWith(u"Inspected on Sunday, November 22, 2026 at 8:35"_s), qPrintable(lines[1]));
    QVERIFY2(lines[2].startsWith(u"Capability score: "_s), qPrintable(lines[2]));
    QCOMPARE(lines[4], report.summary.deviceName);
    QVERIFY2(lines[5].startsWith(report.summary.chip + u" · "_s), qPrintable(lines[5]));
    QCOMPARE(lines[7], u"System"_s);
    QVERIFY(lines.contains(u"  Thermal state: Hot [Warning]"_s));
    QVERIFY(lines.contains(u"  Ray tracing: Supported"_s));
    QVERIFY(lines.contains(u"  Metal 4: Requires macOS 26 [Not supported]"_s));
    QVERIFY(lines.contains(u"  Memory (RAM): 16 GB"_s));
    QVERIFY(text.endsWith(u'\n') && !text.endsWith(u"\n\n"_s));
}

/// A name that looks like Markdown or HTML reads as it is, and stays in its cell.
void ReportsTest::markdown()
{
    const auto machine =
        changedMachine(R"({"hostName": "# Ada's *Mac*\n\n- <b>&amp;</b>", "graphics": {"devices": [
        {"name": "a | b `c` [d](e) **f** __g__ \\ <script>alert(1)</script> &lt; ~h~ !\r\n| x | y |\n\n## z", "families": []}]}})");
    const auto text = reports::markdown(reportOf(*machine));
    QCOMPARE(text.section(u'\n', 0, 0), u"# \\# Ada's \\*Mac\\*  - &lt;b\\>&amp;amp;&lt;/b\\>"_s);
    QVERIFY2(text.contains(u"\n| GPU | a \\| b \\`c\\` \\[d\\]\\(e\\) \\*\\*f\\*\\* \\_\\_g\\_\\_ \\\\ "
                           u"&lt;script\\>alert\\(1\\)&lt;/script\\> "
                           "&amp;lt; \\~h\\~ \\!  \\| x \\| y \\|  \\#\\# z | Info |\n"_s),
             qPrintable(text));
    QVERIFY(!text.contains(u"\n## z"_s) && !text.contains(u'\r') && !text.contains(u"<script"_s));
    // Every line of a table has three cells.
    static const QRegularExpression bar(u"(?<!\\\\)\\|"_s);
    for (const auto &line : text.split(u'\n'))
        QVERIFY2(!line.startsWith(u'|') || line.count(bar) == 4, qPrintable(line));
}

void ReportsTest::json()
{
    const auto report = reportOf(*machineFrom(recordingText(u"macbook-pro-m2-rosetta"_s)));
    const auto bytes = reports::json(report);
    QVERIFY(bytes.endsWith("}\n"));
    QJsonParseError error;
    const auto root = QJsonDocument::fromJson(bytes, &error).object();
    QCOMPARE(error.error, QJsonParseError::NoError);
    QCOMPARE(root.keys(), (QStringList{u"application"_s, u"counts"_s, u"date"_s, u"language"_s, u"schema"_s,
                                       u"score"_s, u"sections"_s, u"summary"_s}));
    QCOMPARE(root[u"schema"_s].toString(), u"report-v1"_s);
    QCOMPARE(root[u"application"_s].toObject(),
             (QJsonObject{{u"name"_s, u"Quillmark"_s}, {u"version"_s, reports::applicationVersion()}}));
    QCOMPARE(root[u"date"_s].toString(), u"2026-11-22T20:35:32Z"_s);
    QCOMPARE(root[u"language"_s].toString(), u"en"_s);
    QCOMPARE(root[u"summary"_s].toObject(), (QJsonObject{{u"deviceName"_s, u"MacBook Pro"_s},
                                                         {u"modelIdentifier"_s, u"Mac14,7"_s},
                                                         {u"chip"_s, u"Apple M2"_s},
                                                         {u"memory"_s, u"16 GB"_s},
                                                         {u"storage"_s, u"494.38 GB"_s},
                                                         {u"osVersion"_s, u"macOS 13.6.7 Ventura (22G720)"_s},
                                                         {u"isAppleSilicon"_s, true},
                                                         {u"hasBattery"_s, true}}));
    QCOMPARE(root[u"score"_s].toDouble(), capabilityScore(report.sections)); // not rounded
    QJsonObject counts;
    for (const auto status : allStatuses)
        counts[rawValue(status)] = count(report.sections, status);
    QCOMPARE(root[u"counts"_s].toObject(), counts);

    const auto sections = root[u"sections"_s].toArray();
    QCOMPARE(sections.size(), report.sections.size());
    const auto first = sections.first().toObject();
    QCOMPARE(first.keys(), (QStringList{u"items"_s, u"key"_s, u"symbol"_s, u"title"_s}));
    QCOMPARE(first[u"symbol"_s].toString(), u"info.circle"_s);
    QCOMPARE(first[u"items"_s].toArray().last().toObject(), (QJsonObject{{u"key"_s, u"thermalState"_s},
                                                                         {u"label"_s, u"Thermal state"_s},
                                                                         {u"value"_s, u"Hot"_s},
                                                                         {u"status"_s, u"warning"_s},
                                                                         {u"isVolatile"_s, true}}));

    auto thirds = reportOf(*changedMachine());
    thirds.sections = {{.items = {{.status = CapabilityStatus::Supported},
                                  {.status = CapabilityStatus::Warning},
                                  {.status = CapabilityStatus::Unsupported}}}};
    const auto third = QJsonDocument::fromJson(reports::json(thirds)).object();
    QCOMPARE(third[u"score"_s].toDouble(), 1.0 / 3.0);
    QVERIFY(!third[u"sections"_s][0].toObject().contains(
        u"key"_s)); // a row or section without a key has none here
    QVERIFY(!third[u"sections"_s][0][u"items"_s][0].toObject().contains(u"key"_s));
}

void ReportsTest::beforeTheFirstInspection()
{
    const reports::Report report{.language = u"en"_s};
    QCOMPARE(reports::plainText(report), u"Quillmark report\n"_s);
    const auto root = QJsonDocument::fromJson(reports::json(report)).object();
    QVERIFY(!root.contains(u"date"_s) && root[u"sections"_s].toArray().isEmpty());
    QCOMPARE(root[u"score"_s].toDouble(-1), 0.0);
}

/// Rows that are filtered out count nevertheless; sections without rows stand in JSON and not among what
/// people read.
void ReportsTest::filtered()
{
    auto report = reportOf(*changedMachine());
    const auto all = QJsonDocument::fromJson(reports::json(report)).object();
    const auto scoreLine = reports::plainText(report).section(u'\n', 2, 2);
    report.filter = [](const CapabilitySection &section, const CapabilityItem &item) {
        return section.key == u"graphics" && item.status == CapabilityStatus::Unsupported;
    };
    const auto some = QJsonDocument::fromJson(reports::json(report)).object();
    QCOMPARE(some[u"counts"_s], all[u"counts"_s]);
    QCOMPARE(some[u"score"_s], all[u"score"_s]);
    QCOMPARE(some[u"sections"_s].toArray().size(), all[u"sections"_s].toArray().size());
    const QStringList rows = {u"Graphics & Metal | Metal 4 | Requires macOS 26"_s};
    QCOMPARE(rowsOfPlainText(reports::plainText(report)), rows);
    QCOMPARE(rowsOfMarkdown(reports::markdown(report)), rows);
    QCOMPARE(reports::plainText(report).section(u'\n', 2, 2), scoreLine);
    QCOMPARE(reports::markdown(report).count(u"\n## "_s), 1);
}

void ReportsTest::oddNames_data()
{
    QTest::addColumn<QByteArray>("name"); // within a JSON string
    QTest::addColumn<QString>("inPlainText");
    QTest::newRow("line breaks") << QByteArray("a\\nb\\r\\nc\\td\\u2028e\\u2029f") << u"a b  c d e f"_s;
    QTest::newRow("controls") << QByteArray("\\u001b[31m\\u0000\\u007f\\u0085\\u009b")
                              << u"\uFFFD[31m\uFFFD\uFFFD\uFFFD\uFFFD"_s;
    QTest::newRow("other scripts") << QByteArray("アダ بطاقة é 😀") << u"アダ بطاقة é 😀"_s;
    QTest::newRow("what looks like a format") << QByteArray("%1 %2 %% {0}") << u"%1 %2 %% {0}"_s;
}

void ReportsTest::oddNames()
{
    QFETCH(const QByteArray, name);
    QFETCH(const QString, inPlainText);
    const auto machine = changedMachine("{\"graphics\": {\"devices\": [{\"name\": \"" + name + "\"}]}}");
    const auto report = reportOf(*machine);
    QVERIFY2(reports::plainText(report).contains(u"\n  GPU: %1\n"_s.arg(inPlainText)),
             qPrintable(reports::plainText(report)));
    QVERIFY(rowsOfMarkdown(reports::markdown(report)).contains(u"Graphics & Metal | GPU | "_s + inPlainText));
    const auto root = QJsonDocument::fromJson(reports::json(report));
    QCOMPARE(
        root[u"sections"_s][2][u"items"_s][0][u"value"_s].toString(),
        QString::fromStdString(machine->graphics().read().devices.front().name)); // nothing is changed there
}

QTEST_GUILESS_MAIN(ReportsTest)
#include "ReportsTest.moc"

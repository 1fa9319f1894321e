// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "reports/Report.h"
#include "support/Recordings.h"
#include "support/ReportRows.h"
#include "support/ReportSamples.h"
#include "support/Rows.h"

#include <QTest>

using namespace quillmark;
using namespace quillmark::inspection;
using namespace quillmark::support;
using namespace Qt::StringLiterals;

namespace {

/// A Mac to whose owner everything in it points, in every place where a name or an address may stand.
QByteArray adasRecording()
{
    return changedRecording(R"({
        "hostName": "Ada’s Mac",
        "volume": {"name": "Ada Lovelace", "total": 494384795648, "available": 200000000000},
        "volumes": [{"name": "Letters to Charles", "total": 1000000, "available": 1000, "isInternal": false},
                    {"name": "", "total": 1000000}],
        "interfaces": [
            {"name": "en0", "family": "ipv4", "up": true, "address": "192.0.2.17"},
            {"name": "enx0a1b2c3d4e5f", "family": "ipv4", "up": true, "address": "198.51.100.7"},
            {"name": "wg-lovelace", "family": "ipv4", "up": true, "address": "169.254.0.9"}],
        "displays": [{"localizedName": "Ada\u0027s Mac", "isMain": true}, {"localizedName": "Studio Display"},
                     {"localizedName": "Canada’s Machine"}],
        "cameras": [{"localizedName": "ADA’S MAC Camera", "deviceType": "External"}],
        "audioDefaults": {"output": 1, "input": 1},
        "audioDevices": [{"id": 1, "name": "Speakers of Ada’s Mac", "transport": "usb ", "outputChannels": 2}]})");
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
    void referencesInMarkdown_data();
    void referencesInMarkdown();
    void privateTexts_data();
    void privateTexts();
    void whatIsLeftOut();
    void fileNames();
    void schema();
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

    QVERIFY(sameLines(rowsOfJson(validReport(reports::json(report))), rows));
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

    // The line of the hardware leaves out what is not known.
    const auto unknown = reportOf(*changedMachine(R"({"volume": null})"));
    for (const auto &form : {reports::plainText(unknown), reports::markdown(unknown)})
        QVERIFY2(form.contains(u"\n%1 · 16 GB memory · macOS "_s.arg(unknown.summary.chip)),
                 qPrintable(form));
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
    const auto root = validReport(bytes);
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
    const auto third = validReport(reports::json(thirds));
    QCOMPARE(third[u"score"_s].toDouble(), 1.0 / 3.0);
    QVERIFY(!third[u"sections"_s][0].toObject().contains(
        u"key"_s)); // a row or section without a key has none here
    QVERIFY(!third[u"sections"_s][0][u"items"_s][0].toObject().contains(u"key"_s));
}

void ReportsTest::beforeTheFirstInspection()
{
    const reports::Report report{.language = u"en"_s};
    QCOMPARE(reports::plainText(report), u"Quillmark report\n"_s);
    QCOMPARE(reports::markdown(report).trimmed(), u"# Quillmark report"_s);
    const auto root = validReport(reports::json(report));
    QVERIFY(!root.contains(u"date"_s) && root[u"sections"_s].toArray().isEmpty());
    QCOMPARE(root[u"score"_s].toDouble(-1), 0.0);
}

/// Rows that are filtered out count nevertheless; sections without rows stand in JSON and not among what
/// people read.
void ReportsTest::filtered()
{
    auto report = reportOf(*changedMachine());
    const auto all = validReport(reports::json(report));
    const auto scoreLine = reports::plainText(report).section(u'\n', 2, 2);
    report.filter = [](const CapabilitySection &section, const CapabilityItem &item) {
        return section.key == u"graphics" && item.status == CapabilityStatus::Unsupported;
    };
    const auto some = validReport(reports::json(report));
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
    const auto root = validReport(reports::json(report));
    QCOMPARE(
        root[u"sections"_s][2][u"items"_s][0][u"value"_s].toString(),
        QString::fromStdString(machine->graphics().read().devices.front().name)); // nothing is changed there
}

void ReportsTest::referencesInMarkdown_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("written"); // ^ stands for the word joiner
    const auto row = [](const QString &name, const QString &written) {
        QTest::newRow(qPrintable(name)) << name << written;
    };
    row(u"@ada, see #12"_s, u"@^ada, see \\#^12"_s);
    row(u"ada@example.com"_s, u"ada@^example.com"_s);
    row(u"https://example.com"_s, u"https:^//example.com"_s);
    row(u"www.example.com"_s, u"www^.example.com"_s);
    row(u"GH-12 :tada: 10:30"_s, u"GH-^12 :^tada: 10:30"_s);
    row(u"$1$ 2^3 ==x=="_s, u"\\$1\\$ 2\\^3 \\=\\=x\\=\\="_s);
    row(u"1. first"_s, u"1\\. first"_s);
    row(u"- first"_s, u"\\- first"_s);
    row(u"1.5 m - 2"_s, u"1.5 m - 2"_s);
}

/// Trackers link these after Markdown has been read, so that escaping does not help; the rest is syntax.
void ReportsTest::referencesInMarkdown()
{
    QFETCH(const QString, name);
    QFETCH(QString, written);
    written.replace(u'^', u'\u2060').replace(u"\\\u2060"_s, u"\\^"_s);
    auto report = reportOf(*changedMachine());
    report.summary.deviceName = name;
    report.sections[0].items[0].value = name;
    const auto text = reports::markdown(report);
    QCOMPARE(text.section(u'\n', 0, 0), u"# "_s + written);
    QVERIFY(text.contains(u"\n| Device name | %1 | Info |\n"_s.arg(written)));
    QVERIFY(rowsOfMarkdown(text).contains(rowLine(u"System"_s, u"Device name"_s, name)));
}

void ReportsTest::privateTexts_data()
{
    QTest::addColumn<QByteArray>("recording");
    for (const auto &name : recordingNames())
        QTest::newRow(qPrintable(name)) << recordingText(name);
    QTest::newRow("named throughout") << adasRecording();
}

/// Nothing that the machine calls its own stands anywhere in a report that leaves it out, whatever its form.
void ReportsTest::privateTexts()
{
    QFETCH(const QByteArray, recording);
    const auto report = reportOf(*machineFrom(recording));
    const auto publicReport = withoutPrivateTexts(report);
    const auto machine = QJsonDocument::fromJson(recording);
    QStringList secrets = {machine[u"hostName"_s].toString(), machine[u"volume"_s][u"name"_s].toString()};
    for (const auto &volume : machine[u"volumes"_s].toArray())
        secrets += volume[u"name"_s].toString();
    for (const auto &entry : machine[u"interfaces"_s].toArray()) {
        if (!entry[u"loopback"_s].toBool())
            secrets += entry[u"address"_s].toString();
    }
    secrets.removeIf(
        [](const QString &text) { return text.size() <= 1; }); // the root folder "/" stands for a name

    const auto forms = [](const reports::Report &of) {
        return QStringList{reports::plainText(of), reports::markdown(of),
                           QString::fromUtf8(reports::json(of)), reports::suggestedFileName(of, u"pdf"_s)};
    };
    for (const auto &form : forms(publicReport)) {
        for (const auto &secret : secrets) {
            const QRegularExpression word(u"(?<!\\w)%1(?!\\w)"_s.arg(QRegularExpression::escape(secret)),
                                          QRegularExpression::CaseInsensitiveOption);
            QVERIFY2(!form.contains(word), qPrintable(secret + u'\n' + form));
        }
    }
    for (const auto &form : forms(report).first(3)) // the address is there all along
        QVERIFY(std::ranges::any_of(secrets, [&](const QString &secret) { return form.contains(secret); }));

    // Everything else is as it was.
    for (qsizetype i = 0; i < report.sections.size(); ++i) {
        const auto &before = report.sections[i].items;
        const auto &after = publicReport.sections[i].items;
        QCOMPARE(after.size(), before.size());
        for (qsizetype row = 0; row < after.size(); ++row) {
            QCOMPARE(after[row].key, before[row].key);
            QCOMPARE(after[row].status, before[row].status);
            QVERIFY(after[row].value == u"Left out" || after[row] == before[row]);
        }
    }
    QCOMPARE(reports::json(withoutPrivateTexts(publicReport)), reports::json(publicReport));
}

void ReportsTest::whatIsLeftOut()
{
    const auto report = withoutPrivateTexts(reportOf(*machineFrom(adasRecording())));
    const auto all = rowsOf(report);
    for (const auto &row :
         {u"System | Device name | Left out"_s, u"Displays | Display 1 | Left out"_s,
          u"Displays | Display 2 | Studio Display"_s, u"Displays | Display 3 | Canada’s Machine"_s,
          u"Camera & Audio | Camera | Left out"_s, u"Camera & Audio | Sound output | Left out"_s,
          u"Storage | Start-up volume | Left out"_s, u"Storage | Volume 1 | Left out"_s,
          u"Network | Address 1 | Left out"_s, u"Network | Address 3 | Left out"_s})
        QVERIFY2(all.contains(row), qPrintable(row + u'\n' + all.join(u'\n')));
    QVERIFY(!all.join(u'\n').contains(u"enx"_s) && !all.join(u'\n').contains(u"lovelace"_s));
    QCOMPARE(report.summary.deviceName, u"Mac15,3"_s);

    const auto note = u"\nLeft out of this report: computer name, addresses, and volume names.\n"_s;
    QVERIFY(reports::plainText(report).endsWith(note));
    QVERIFY(reports::markdown(report).endsWith(note));
    const auto json = validReport(reports::json(report));
    QCOMPARE(json[u"leftOut"_s].toArray(), (QJsonArray{u"computerName"_s, u"addresses"_s, u"volumeNames"_s}));

    // What is not there is not left out; a name that many machines have does not blot out their system's.
    const auto nameless =
        withoutPrivateTexts(reportOf(*changedMachine(R"({"hostName": null, "volume": null})")));
    QCOMPARE(nameless.summary.deviceName, u"Mac"_s);
    QVERIFY(rowsOf(nameless).contains(u"System | Device name | —"_s));
    QVERIFY(leftOutNote(nameless).isEmpty() && !validReport(reports::json(nameless)).contains(u"leftOut"_s));
    const auto debian = withoutPrivateTexts(reportOf(
        *changedMachine(R"({"hostName": "debian", "words": {"operatingSystem": "Debian GNU/Linux 12"}})")));
    QVERIFY(rowsOf(debian).contains(u"System | Operating system | Debian GNU/Linux 12"_s));
}

void ReportsTest::fileNames()
{
    qputenv("TZ", "UTC");
    reports::Report report{.date = QDateTime({2026, 11, 22}, {22, 35, 32}, QTimeZone::utc())};
    QCOMPARE(reports::suggestedFileName(report, u"pdf"_s), u"Quillmark – 2026-11-22.pdf"_s);
    const auto tooLong = QString(59, u'a');
    for (const auto &[name, expected] :
         {std::pair(u"Nora’s MacBook Pro"_s, u"Nora’s MacBook Pro"_s),
          std::pair(u" ../a\\b:c\n*"_s, u"..-a-b-c -"_s), std::pair(tooLong + u"😀"_s, tooLong)}) {
        report.summary.deviceName = name;
        QCOMPARE(reports::suggestedFileName(report, u"pdf"_s),
                 u"Quillmark – %1 – 2026-11-22.pdf"_s.arg(expected));
    }
}

/// The schema has something against each of these.
void ReportsTest::schema()
{
    JsonSchema schema(contents(sourcePath(u"docs/report-v1.schema.json"_s)));
    const auto good = validReport(reports::json(reportOf(*changedMachine())));
    for (const char *changes :
         {R"({"schema": "report-v2"})", R"({"score": 1.5})", R"({"score": null})",
          R"({"date": "2026-11-22"})", R"({"counts": {"info": 0.5}})", R"({"more": 1})", R"({"leftOut": []})",
          R"({"sections": [{"items": []}]})", R"({"leftOut": ["addresses", "addresses"]})",
          R"({"summary": {"hasBattery": "yes"}})"})
        QVERIFY2(!schema.errors(merged(good, QJsonDocument::fromJson(changes).object())).isEmpty(), changes);
    QVERIFY(!JsonSchema(R"({"type": "object", "maxProperties": 99})")
                 .errors(good)
                 .isEmpty()); // not a keyword it knows
}

QTEST_GUILESS_MAIN(ReportsTest)
#include "ReportsTest.moc"

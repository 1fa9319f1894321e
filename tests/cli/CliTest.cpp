// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "reports/Report.h"
#include "support/Recordings.h"
#include "support/ReportRows.h"
#include "support/Rows.h"
#include "support/runWith.h"

#include <QJsonArray>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

using namespace quillmark;
using namespace quillmark::support;
using namespace Qt::StringLiterals;

namespace {

/// The text of a Mac whose names hold everything that a terminal has trouble with.
QByteArray troublesomeRecording()
{
    return changedRecording(R"({
        "hostName": "アダのマックブック プロ \u001b[31mred\u001b[0m\u0007 e\u0301\u0301 \u202eabc \u009b2J line\nbreak",
        "graphics": {"devices": [
            {"name": "とても長い名前のグラフィックスプロセッサ、一行には収まらない", "isLowPower": true},
            {"name": "e\u0301a\u0308o\u0302 n\u0303e\u0301a\u0308o\u0302n\u0303e\u0301a\u0308o\u0302n\u0303"},
            {"name": "بطاقة الرسومات الخارجية", "isRemovable": true, "hasUnifiedMemory": true},
            {"name": "\u001b]0;title\u0007\u001b[2J\r\n\tafter\u007f\u0085\u2068"},
            {"name": "%LONG%"},
            {"name": "😀😀😀😀😀😀😀😀😀😀😀😀😀😀😀😀😀😀😀😀😀😀😀😀😀😀"}]}})")
        .replace("%LONG%", QByteArray(112, 'y'));
}

/// What a terminal makes of the code point, for those that stand in these tests.
int columnsOf(char32_t c)
{
    switch (QChar::category(c)) {
    case QChar::Mark_NonSpacing:
    case QChar::Mark_Enclosing:
    case QChar::Other_Format:
        return 0;
    default:
        break;
    }
    const bool wide =
        (c >= 0x2E80 && c <= 0xA4CF) || (c >= 0xFF00 && c <= 0xFF60) || (c >= 0x1F300 && c <= 0x1FAFF);
    return wide ? 2 : 1;
}

int columnsOf(const QString &text)
{
    int columns = 0;
    for (const char32_t c : text.toUcs4())
        columns += columnsOf(c);
    return columns;
}

/// What of the line stands from that column on.
QString fromColumn(const QString &line, int column)
{
    qsizetype at = 0;
    while (at < line.size() && columnsOf(line.left(at)) < column)
        ++at;
    return line.mid(at);
}

/// The keys of the rows that stand in a JSON report, "graphics.metal3", without sections other than those
/// pinned here.
QStringList rowKeys(const QJsonObject &report)
{
    QStringList keys;
    for (const auto &section : report[u"sections"_s].toArray()) {
        const auto key = section[u"key"_s].toString();
        for (const auto &item : section[u"items"_s].toArray()) {
            if (key == u"system" || key == u"processor" || key == u"graphics")
                keys += key + u'.' + item[u"key"_s].toString();
        }
    }
    return keys;
}

bool holdsControlCharacters(const QString &text)
{
    return std::ranges::any_of(
        text, [](QChar c) { return c.category() == QChar::Other_Control && c != u'\n' && c != QChar(0x7F); });
}

} // namespace

class CliTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void wrongCommandLines_data();
    void wrongCommandLines();
    void failures_data();
    void failures();
    void helpAndVersion_data();
    void helpAndVersion();
    void forms();
    void filters_data();
    void filters();
    void filteredJson();
    void environment();
    void terminal_data();
    void terminal();
    void colors();
    void otherFormsHoldNoControlCharacters();
    void recordsToAFile();

private:
    QString write(const QString &name, const QByteArray &text) const;

    QTemporaryDir m_folder;
};

void CliTest::init()
{
    QVERIFY(m_folder.isValid());
    qunsetenv("QUILLMARK_MACHINE");
}

QString CliTest::write(const QString &name, const QByteArray &text) const
{
    const auto path = m_folder.filePath(name);
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size())
        qFatal("%s", qPrintable(file.errorString()));
    return path;
}

void CliTest::wrongCommandLines_data()
{
    QTest::addColumn<QString>("arguments");
    QTest::addColumn<QString>("named"); // the command whose help is pointed at
    const auto row = [](const QString &arguments, const QString &named) {
        QTest::newRow(qPrintable(arguments.isEmpty() ? u"(nothing)"_s : arguments)) << arguments << named;
    };
    row(u""_s, u"quillmark"_s);
    row(u"nonsense"_s, u"quillmark"_s);
    row(u"--bogus"_s, u"quillmark"_s);
    row(u"--machine"_s, u"quillmark"_s);
    row(u"--language xx inspect"_s, u"quillmark inspect"_s);
    row(u"inspect --language"_s, u"quillmark inspect"_s);
    row(u"inspect --bogus"_s, u"quillmark inspect"_s);
    row(u"inspect extra"_s, u"quillmark inspect"_s);
    row(u"inspect --machine="_s, u"quillmark inspect"_s);
    row(u"inspect two\n\u001b[31mlines"_s, u"quillmark inspect"_s);
    row(u"inspect --status"_s, u"quillmark inspect"_s);
    row(u"inspect --status bad"_s, u"quillmark inspect"_s);
    row(u"inspect --status Warning"_s, u"quillmark inspect"_s);
    row(u"inspect --status warning info"_s, u"quillmark inspect"_s);
    row(u"inspect --section nope"_s, u"quillmark inspect"_s);
    row(u"inspect --section system --section nope"_s, u"quillmark inspect"_s);
    row(u"inspect --search"_s, u"quillmark inspect"_s);
    row(u"inspect --json --text"_s, u"quillmark inspect"_s);
    row(u"inspect --markdown --json"_s, u"quillmark inspect"_s);
    row(u"monitor --samples 0"_s, u"quillmark monitor"_s);
    row(u"monitor --samples x"_s, u"quillmark monitor"_s);
    row(u"machine"_s, u"quillmark machine"_s);
    row(u"machine play"_s, u"quillmark machine"_s);
    row(u"machine record --output"_s, u"quillmark machine record"_s);
    row(u"machine record file.json"_s, u"quillmark machine record"_s);
    row(u"battery extra"_s, u"quillmark battery"_s);
    row(u"machine record --output a --output b"_s, u"quillmark machine record"_s);
    row(u"inspect --json=maybe"_s, u"quillmark inspect"_s);
    row(u"export"_s, u"quillmark export"_s);
    row(u"export --format text"_s, u"quillmark export"_s);
    row(u"export --output report"_s, u"quillmark export"_s);
    row(u"export --output -"_s, u"quillmark export"_s);
    row(u"export --output report.docx"_s, u"quillmark export"_s);
    row(u"export --output report.txt --format docx"_s, u"quillmark export"_s);
    row(u"export --output report.txt --section nope"_s, u"quillmark export"_s);
}

void CliTest::wrongCommandLines()
{
    QFETCH(const QString, arguments);
    QFETCH(const QString, named);
    const auto outcome = runWith(arguments);
    QCOMPARE(outcome.status, 2);
    QCOMPARE(outcome.out, QString());
    const auto lines = outcome.err.split(u'\n');
    QCOMPARE(lines.size(), 3);
    QVERIFY2(lines[0].startsWith(u"quillmark: "_s) && lines[0].size() > 15, qPrintable(outcome.err));
    // Words of the library that reads the command line, which speaks to programmers.
    for (const auto &word : {u"required but"_s, u"TEXT"_s, u"convert"_s, u"allowed value"_s, u"subcommand"_s,
                             u"arguments were"_s})
        QVERIFY2(!outcome.err.contains(word), qPrintable(outcome.err));
    QCOMPARE(lines[1], u"Try '%1 --help'."_s.arg(named));
}

void CliTest::failures_data()
{
    QTest::addColumn<QString>("arguments"); // %1 is the folder of the test
    QTest::addColumn<QString>("reason");
    QTest::newRow("no such recording")
        << u"inspect --machine %1/missing.json"_s << u"%1/missing.json: No such file or directory"_s;
    QTest::newRow("folder as recording") << u"inspect --json --machine %1"_s << u"%1: Is a directory"_s;
    QTest::newRow("no JSON") << u"machine record --machine %1/text"_s
                             << u"%1/text: not a JSON object: line 1, column 1: this is no value"_s;
    QTest::newRow("steering the terminal")
        << u"inspect --machine %1/steering.json"_s
        << u"%1/steering.json: \"sysctl.a\uFFFD[2J b\" must be a text, a whole number or an "
           "object, not true or false"_s;
    QTest::newRow("output exists")
        << u"machine record --output %1/text"_s
        << u"%1/text: There is a file with this name already. (--force replaces it)"_s;
    QTest::newRow("output is a folder") << u"machine record --output %1"_s << u"%1: This is a folder."_s;
    QTest::newRow("output is a folder, by force")
        << u"machine record --force --output %1"_s << u"%1: This is a folder."_s;
    QTest::newRow("output in no folder") << u"machine record --output %1/missing/file.json"_s
                                         << u"%1/missing/file.json: The folder does not exist."_s;
}

/// One line that says why, and no half of an answer.
void CliTest::failures()
{
    QFETCH(const QString, arguments);
    QFETCH(const QString, reason);
    write(u"text"_s, "hello");
    write(u"steering.json"_s, changedRecording(R"({"sysctl": {"a\u001b[2J\nb": true}})"));
    const auto outcome = runWith(arguments.arg(m_folder.path()));
    QCOMPARE(outcome.err, u"quillmark: %1\n"_s.arg(reason.arg(m_folder.path())));
    QCOMPARE(outcome.status, 1);
    QCOMPARE(outcome.out, QString());
    QCOMPARE(contents(m_folder.filePath(u"text"_s)), QByteArray("hello"));
}

void CliTest::helpAndVersion_data()
{
    QTest::addColumn<QString>("arguments");
    QTest::addColumn<QString>("expected");
    QTest::newRow("version") << u"--version"_s << u"quillmark %1\n"_s.arg(reports::applicationVersion());
    QTest::newRow("help") << u"--help"_s << u"inspect"_s;
    QTest::newRow("options") << u"inspect --help"_s << u"  --status STATUS  "_s;
    // Every command has an example of itself.
    for (const auto *command : {"inspect", "battery", "monitor", "history", "history list", "history show",
                                "history compare", "history remove", "history clear", "history record",
                                "export", "machine", "machine record", "update", "app"}) {
        const auto name = QString::fromLatin1(command);
        QTest::newRow(command) << name + u" --help"_s << u"\nExamples:\n  quillmark "_s + name;
    }
}

void CliTest::helpAndVersion()
{
    QFETCH(const QString, arguments);
    QFETCH(const QString, expected);
    const auto outcome = runWith(arguments);
    QCOMPARE(outcome.status, 0);
    QCOMPARE(outcome.err, QString());
    if (arguments == u"--version")
        QCOMPARE(outcome.out, expected);
    QVERIFY2(outcome.out.contains(expected), qPrintable(outcome.out));
}

void CliTest::forms()
{
    const auto json = runWith(u"inspect --json"_s);
    const auto report = validReport(json.out.toUtf8());
    QCOMPARE(report[u"schema"_s].toString(), u"report-v1"_s);
    QCOMPARE(report[u"summary"_s][u"deviceName"_s].toString(), u"Test Mac"_s);
    QVERIFY(rowKeys(report).contains(u"graphics.metal4"_s));
    QVERIFY(runWith(u"inspect --text"_s).out.contains(u"\n  Device name: Test Mac\n"_s));
    QVERIFY(runWith(u"inspect --markdown"_s).out.startsWith(u"# Test Mac\n"_s));

    const auto plain = runWith(u"inspect"_s);
    QCOMPARE(plain.err, QString());
    QVERIFY(plain.out.startsWith(u"Test Mac\n"_s));
    QVERIFY(QRegularExpression(u"\n  ✓ Ray tracing +Supported\n"_s).match(plain.out).hasMatch());
    QVERIFY(QRegularExpression(u"\n  ✗ Metal 4 +Requires macOS 26 +Not supported\n"_s)
                .match(plain.out)
                .hasMatch());
    QVERIFY(QRegularExpression(u"\n  · Device name +Test Mac +Info\n"_s).match(plain.out).hasMatch());
}

void CliTest::filters_data()
{
    QTest::addColumn<QString>("arguments");
    QTest::addColumn<QString>("expected");
    const auto row = [](const QString &arguments, const QString &expected) {
        QTest::newRow(qPrintable(arguments)) << arguments << expected;
    };
    row(u"--status warning"_s, u"system.thermalState"_s);
    row(u"--status warning --status unsupported --section system --section processor"_s,
        u"system.thermalState processor.sme"_s);
    row(u"--section graphics --status unsupported"_s, u"graphics.metal4"_s);
    row(u"--section processor --section system --status supported"_s,
        u"processor.neuralEngine processor.bf16"_s);
    row(u"--search eclair"_s, u"system.deviceName"_s);
    row(u"--search ÉCLAIR"_s, u"system.deviceName"_s);
    row(u"--search E\u0301clair"_s, u"system.deviceName"_s);
    row(u"--search ｅｃｌａｉｒ"_s, u"system.deviceName"_s);
    row(u"--search ~Éclair~"_s, u"system.deviceName"_s);
    row(u"--search STRASSE"_s, u"graphics.gpu.1"_s);
    row(u"--search ray~TRACING"_s, u"graphics.rayTracing graphics.hardwareRayTracing"_s);
    row(u"--search macos --status unsupported"_s, u"graphics.metal4"_s);
    row(u"--search metal --section system"_s, u""_s);
    row(u"--search thermalState"_s, u""_s); // keys are not what people read
    row(u"--search ~ --section system --status info"_s,
        u"system.deviceName system.modelIdentifier system.os system.architecture system.uptime"_s);
}

void CliTest::filters()
{
    QFETCH(const QString, arguments);
    QFETCH(const QString, expected);
    const auto file =
        write(u"filtered.json"_s, changedRecording(R"({"hostName": "Éclair", "thermalState": 2, "graphics":
        {"devices": [{"name": "Straße", "supportsRaytracing": true, "families": [1009, 5001]}]}})"));
    const auto outcome = runWith(u"inspect --json --machine %1 %2"_s.arg(file, arguments));
    QCOMPARE(outcome.status, 0);
    QCOMPARE(rowKeys(validReport(outcome.out.toUtf8())).join(u' '), expected);
}

/// A filter takes rows away, and nothing else: sections, counts and score are those of the inspection.
void CliTest::filteredJson()
{
    const auto reportOf = [](const QString &filter) {
        auto report = validReport(runWith(u"inspect --json "_s + filter).out.toUtf8());
        report.remove(u"date"_s);
        return report;
    };
    auto all = reportOf({});
    auto some = reportOf(u"--search metal~4"_s);
    QCOMPARE(rowKeys(some), QStringList{u"graphics.metal4"_s});
    const auto keys = [](const QJsonObject &report) {
        QStringList result;
        for (const auto &section : report[u"sections"_s].toArray())
            result += section[u"key"_s].toString();
        return result;
    };
    QCOMPARE(keys(some), keys(all));
    all.remove(u"sections"_s);
    some.remove(u"sections"_s);
    QCOMPARE(some, all);

    const auto none = runWith(u"inspect --search nosuchrow"_s);
    QCOMPARE(none.status, 0);
    QVERIFY(none.out.startsWith(u"Test Mac\n"_s) && none.out.endsWith(u"\nNo rows match.\n"_s));
}

void CliTest::environment()
{
    const auto first = write(u"first.json"_s, changedRecording(R"({"hostName": "First"})"));
    const auto second = write(u"second one.json"_s, changedRecording(R"({"hostName": "Second"})"));
    const auto name = [](const QString &arguments) { return runWith(arguments).out.section(u'\n', 0, 0); };
    QCOMPARE(name(u"inspect"_s), u"Test Mac"_s);
    qputenv("QUILLMARK_MACHINE", second.toUtf8());
    QCOMPARE(name(u"inspect"_s), u"Second"_s);
    QVERIFY(runWith(u"machine record --with-names"_s).out.contains(u"\"Second\""_s));
    QCOMPARE(name(u"--machine %1 inspect"_s.arg(first)), u"First"_s);
    QCOMPARE(name(u"inspect --machine %1"_s.arg(first)), u"First"_s);
    qputenv("QUILLMARK_MACHINE", "");
    QCOMPARE(name(u"inspect"_s), u"Test Mac"_s);
    qputenv("QUILLMARK_MACHINE", "/no/such/file");
    QCOMPARE(runWith(u"inspect"_s).err, u"quillmark: /no/such/file: No such file or directory\n"_s);
    QCOMPARE(runWith(u"--version"_s).status, 0);

    qunsetenv("QUILLMARK_MACHINE");
    qputenv("QUILLMARK_COMMAND", "inspect");
    QCOMPARE(name({}), u"Test Mac"_s);
    QVERIFY(runWith(u"battery"_s).out != runWith({}).out); // what is typed comes first
    qunsetenv("QUILLMARK_COMMAND");
}

void CliTest::terminal_data()
{
    QTest::addColumn<int>("columns");
    QTest::addColumn<bool>("hasColumns"); // wide enough for label, value and status side by side
    QTest::newRow("40") << 40 << false;
    QTest::newRow("80") << 80 << true;
    QTest::newRow("200") << 200 << true;
}

void CliTest::terminal()
{
    QFETCH(const int, columns);
    QFETCH(const bool, hasColumns);
    const auto file = write(u"troublesome.json"_s, troublesomeRecording());
    const auto outcome =
        runWith(u"inspect --section system --section graphics --machine "_s + file, {.columns = columns});
    QVERIFY2(!holdsControlCharacters(outcome.out), qPrintable(outcome.out));
    QVERIFY(!outcome.out.contains(QChar(0x202E))); // reorders what follows

    static const QRegularExpression row(u"^  [✓✗!·] (GPU \\d|[A-Z][A-Za-z]+( [A-Za-z0-9]+)*)"_s);
    static const QRegularExpression status(u"  (Supported|Not supported|Warning|Info)$"_s);
    QSet<int> statusColumns;
    int rows = 0;
    for (const auto &line : outcome.out.split(u'\n')) {
        QVERIFY2(columnsOf(line) <= columns, qPrintable(u"%1: %2"_s.arg(columnsOf(line)).arg(line)));
        if (!row.match(line).hasMatch())
            continue;
        ++rows;
        if (!hasColumns)
            continue;
        const int valueColumn = 4 + columnsOf(u"Recommended GPU memory"_s) + 2;
        const auto match = status.match(line);
        QVERIFY2(match.hasMatch(), qPrintable(line));
        const int statusColumn = columnsOf(line.left(match.capturedStart(1)));
        if (statusColumn != valueColumn) // elsewhere the value itself is the word
            statusColumns += statusColumn;
        QVERIFY2(line.left(line.size() - fromColumn(line, valueColumn).size()).endsWith(u"  "_s),
                 qPrintable(line));
        QVERIFY2(!fromColumn(line, valueColumn).startsWith(u' '), qPrintable(line));
    }
    QVERIFY2(rows >= 6 + 6, qPrintable(outcome.out));
    QCOMPARE(statusColumns.size(), hasColumns ? 1 : 0);

    // Nothing is lost by breaking lines.
    QString letters = outcome.out;
    letters.remove(QRegularExpression(u"[\\s\u2068\u2069]"_s));
    QVERIFY(letters.count(u'y') >= 112);
    QCOMPARE(letters.count(u"😀"_s), 26);
}

void CliTest::colors()
{
    const auto file = write(u"troublesome.json"_s, troublesomeRecording());
    const auto arguments = u"inspect --machine "_s + file;
    for (const int columns : {40, 80}) {
        const auto plain = runWith(arguments, {.columns = columns}).out;
        auto colored = runWith(arguments, {.columns = columns, .color = true}).out;
        QVERIFY(!plain.contains(u'\x1b') && colored.contains(u'\x1b'));
        colored.remove(QRegularExpression(u"\x1b\\[[0-9;]*m"_s));
        QVERIFY(sameLines(colored.split(u'\n'), plain.split(u'\n')));
        QCOMPARE(runWith(arguments + u" --no-color"_s, {.columns = columns, .color = true}).out, plain);
    }
    for (const auto &form : {u" --json"_s, u" --text"_s, u" --markdown"_s})
        QVERIFY(!runWith(arguments + form, {.columns = 80, .color = true}).out.contains(u'\x1b'));
}

/// They are printed on terminals and pasted into them too.
void CliTest::otherFormsHoldNoControlCharacters()
{
    const auto file = write(u"troublesome.json"_s, troublesomeRecording());
    for (const auto &command : {u"inspect --json"_s, u"inspect --text"_s, u"inspect --markdown"_s,
                                u"inspect"_s, u"machine record --with-names"_s}) {
        const auto outcome = runWith(command + u" --machine "_s + file);
        QCOMPARE(outcome.status, 0);
        QVERIFY2(!holdsControlCharacters(outcome.out), qPrintable(command));
    }
    const auto json = runWith(u"inspect --json --machine "_s + file).out.toUtf8();
    QVERIFY(
        QJsonDocument::fromJson(json)[u"summary"_s][u"deviceName"_s].toString().contains(u"\u001b[31m"_s));
}

void CliTest::recordsToAFile()
{
    const auto path = m_folder.filePath(u"recorded.json"_s);
    const auto record = [&path](const QString &options) {
        return runWith(u"machine record --output %1 %2"_s.arg(path, options));
    };
    const auto first = record({});
    QCOMPARE(first.status, 0);
    QCOMPARE(first.out + first.err, QString());
    QCOMPARE(QString::fromUtf8(contents(path)), runWith(u"machine record"_s).out);
    QVERIFY(!contents(path).contains("Test Mac") && !contents(path).contains("Macintosh HD"));

    QCOMPARE(record(u"--with-names"_s).status, 1);
    QVERIFY(!contents(path).contains("Test Mac"));
    QCOMPARE(record(u"--with-names --force"_s).status, 0);
    QVERIFY(contents(path).contains("Test Mac") && contents(path).contains("Macintosh HD"));
    QCOMPARE(runWith(u"inspect --machine "_s + path).out, runWith(u"inspect"_s).out);
    QCOMPARE(QDir(m_folder.path()).entryList({u"recorded*"_s}).size(),
             1); // nothing half-written is left behind
}

QTEST_GUILESS_MAIN(CliTest)
#include "CliTest.moc"

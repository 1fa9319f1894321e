// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "support/Recordings.h"
#include "support/ReportRows.h"
#include "support/Rows.h"
#include "support/runWith.h"

#include <QTemporaryDir>
#include <QTest>

using namespace quillmark::support;
using namespace Qt::StringLiterals;

class ExportCommandTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void formats_data();
    void formats();
    void sameRowsAsAnInspection();
    void privacy();
    void sections();
    void badTargets_data();
    void badTargets();
    void aDocumentIsNothingForATerminal();

private:
    QString path(const QString &name) const { return m_folder.filePath(name); }

    QTemporaryDir m_folder;
};

void ExportCommandTest::formats_data()
{
    QTest::addColumn<QString>("options"); // %1 is the folder of the test
    QTest::addColumn<QString>("file");    // empty: standard output
    QTest::addColumn<QString>("beginning");
    QTest::newRow("text") << u"--output %1/a.txt"_s << u"a.txt"_s << u"Quillmark report\n"_s;
    QTest::newRow("by name") << u"--output %1/b --format text"_s << u"b"_s << u"Quillmark report\n"_s;
    QTest::newRow("Markdown") << u"--output %1/c.MD"_s << u"c.MD"_s << u"# Mac15,3\n"_s;
    QTest::newRow("JSON") << u"--output %1/d.json"_s << u"d.json"_s << u"{\n  \"schema\": \"report-v1\""_s;
    QTest::newRow("name over extension") << u"--format json --output %1/e.txt"_s << u"e.txt"_s << u"{"_s;
    QTest::newRow("standard output") << u"--format markdown --output -"_s << QString() << u"# Mac15,3\n"_s;
}

void ExportCommandTest::formats()
{
    QFETCH(const QString, options);
    QFETCH(const QString, file);
    QFETCH(const QString, beginning);
    const auto outcome = runWith(u"export "_s + (file.isEmpty() ? options : options.arg(m_folder.path())));
    QCOMPARE(outcome.err, QString());
    QCOMPARE(outcome.status, 0);
    QCOMPARE(outcome.out.isEmpty(), !file.isEmpty());
    const auto written = file.isEmpty() ? outcome.out : QString::fromUtf8(contents(path(file)));
    QVERIFY2(written.startsWith(beginning), qPrintable(written));
}

/// The same rows in each form, and those of `inspect`.
void ExportCommandTest::sameRowsAsAnInspection()
{
    const auto machine = u" --machine "_s + sourcePath(u"machines/macbook-pro-m3-max.json"_s);
    const auto inspected = validReport(runWith(u"inspect --json"_s + machine).out.toUtf8());
    const auto exported = [&machine](const QString &format) {
        return runWith(u"export --with-names --output - --format "_s + format + machine).out;
    };
    auto json = validReport(exported(u"json"_s).toUtf8());
    json[u"date"_s] = inspected[u"date"_s];
    QCOMPARE(json, inspected);
    QVERIFY(sameLines(rowsOfPlainText(exported(u"text"_s)), rowsOfJson(inspected)));
    QVERIFY(sameLines(rowsOfMarkdown(exported(u"markdown"_s)), rowsOfJson(inspected)));
}

void ExportCommandTest::privacy()
{
    const auto exported = [](const QString &options) {
        return runWith(u"export --output - "_s + options).out;
    };
    for (const auto &format : {u"text"_s, u"markdown"_s, u"json"_s}) {
        const auto bare = exported(u"--format "_s + format);
        const auto named = exported(u"--with-names --format "_s + format);
        QVERIFY(!bare.contains(u"Test Mac"_s) && !bare.contains(u"Macintosh HD"_s));
        QVERIFY(named.contains(u"Test Mac"_s) && named.contains(u"Macintosh HD"_s));
        QVERIFY(bare.contains(u"eft out"_s) && !named.contains(u"eft out"_s) &&
                !named.contains(u"leftOut"_s));
    }
}

void ExportCommandTest::sections()
{
    const auto report = runWith(u"export --output - --format text --section system --section graphics"_s).out;
    QVERIFY(report.contains(u"\nSystem\n"_s) && report.contains(u"\nGraphics & Metal\n"_s));
    QVERIFY(!report.contains(u"\nStorage\n"_s));
    QVERIFY(report.contains(u"\nCapability score: "_s) && report.contains(u"\nLeft out of this report: "_s));
}

void ExportCommandTest::badTargets_data()
{
    QTest::addColumn<QString>("options"); // %1 is the folder of the test
    QTest::addColumn<QString>("reason");  // its beginning, as far as that is the same everywhere
    const auto row = [](const QString &target, const QString &reason, const QString &force = {}) {
        QTest::newRow(qPrintable(target + force))
            << u"--format text --output "_s + target + force
            << u"The report couldn’t be saved. %1: %2"_s.arg(target, reason);
    };
    row(u"%1/old.txt"_s, u"There is a file with this name already. (--force replaces it)"_s);
    row(u"%1"_s, u"This is a folder."_s);
    row(u"%1"_s, u"This is a folder."_s, u" --force"_s);
    row(u"%1/missing/report.txt"_s, u"The folder does not exist."_s);
    if (QFile::exists(u"/dev/full"_s))
        row(u"/dev/full"_s, u"There is not enough free space on “"_s);
    QTest::newRow("no machine") << u"--output %1/new.txt --machine %1/none.json"_s
                                << u"%1/none.json: No such file or directory"_s;
}

/// One line that says why; nothing is lost, and nothing comes into being.
void ExportCommandTest::badTargets()
{
    QFETCH(QString, options);
    QFETCH(QString, reason);
    QFile old(path(u"old.txt"_s));
    QVERIFY(old.open(QIODevice::WriteOnly) && old.write("old") == 3 && old.flush());
    const auto before = QDir(m_folder.path()).entryList(QDir::AllEntries | QDir::Hidden);
    const auto outcome = runWith(u"export "_s + options.replace(u"%1"_s, m_folder.path()));
    QCOMPARE(outcome.status, 1);
    QCOMPARE(outcome.out, QString());
    const auto beginning = u"quillmark: "_s + reason.replace(u"%1"_s, m_folder.path());
    QVERIFY2(outcome.err.startsWith(beginning) && outcome.err.count(u'\n') == 1, qPrintable(outcome.err));
    QCOMPARE(contents(old.fileName()), QByteArray("old"));
    QCOMPARE(QDir(m_folder.path()).entryList(QDir::AllEntries | QDir::Hidden), before);
}

void ExportCommandTest::aDocumentIsNothingForATerminal()
{
    const auto outcome = runWith(u"export --format pdf --output -"_s, {.columns = 80});
    QCOMPARE(outcome.status, 1);
    QCOMPARE(outcome.out, QString());
    QCOMPARE(outcome.err,
             u"quillmark: a PDF document is nothing for a terminal: name a file with --output\n"_s);
}

QTEST_GUILESS_MAIN(ExportCommandTest)
#include "ExportCommandTest.moc"

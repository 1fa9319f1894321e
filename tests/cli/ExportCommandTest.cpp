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
    void badTargets_data();
    void badTargets();

private:
    QTemporaryDir m_folder;
};

void ExportCommandTest::formats_data()
{
    QTest::addColumn<QString>("options");
    QTest::addColumn<QString>("file"); // empty: standard output
    QTest::addColumn<QString>("beginning");
    QTest::newRow("text") << u""_s << u"a.txt"_s << u"Quillmark report\n"_s;
    QTest::newRow("no extension") << u"--format text"_s << u"b"_s << u"Quillmark report\n"_s;
    QTest::newRow("Markdown") << u""_s << u"c.MD"_s << u"# Mac15,3\n"_s;
    QTest::newRow("with names") << u"--with-names"_s << u"d.md"_s << u"# Test Mac\n"_s;
    QTest::newRow("not what the extension says") << u"--format json"_s << u"e.txt"_s << u"{\n  \"schema\""_s;
    QTest::newRow("standard output") << u"--format markdown"_s << QString() << u"# Mac15,3\n"_s;
}

void ExportCommandTest::formats()
{
    QFETCH(const QString, options);
    QFETCH(const QString, file);
    QFETCH(const QString, beginning);
    const auto path = file.isEmpty() ? u"-"_s : m_folder.filePath(file);
    const auto outcome = runWith(u"export --section graphics --output %1 %2"_s.arg(path, options));
    QCOMPARE(outcome.err, QString());
    QCOMPARE(outcome.status, 0);
    QCOMPARE(outcome.out.isEmpty(), !file.isEmpty());
    const auto written = file.isEmpty() ? outcome.out : QString::fromUtf8(contents(path));
    QVERIFY2(written.startsWith(beginning), qPrintable(written));
    QVERIFY(written.contains(u"Metal 4"_s) &&
            !written.contains(u"Macintosh HD"_s)); // the section that was asked for
    QCOMPARE(written.contains(u"Left out of this report: "_s) || written.contains(u"leftOut"_s),
             !options.contains(u"--with-names"_s));
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

void ExportCommandTest::badTargets_data()
{
    QTest::addColumn<QString>("options"); // %1 is the folder of the test
    QTest::addColumn<QString>("reason");
    const auto row = [](const QString &target, const QString &reason, const QString &force = {}) {
        QTest::newRow(qPrintable(target + force))
            << u"--format text --output "_s + target + force
            << u"The report couldn’t be saved. %1: %2"_s.arg(target, reason);
    };
    row(u"%1/old.txt"_s, u"There is a file with this name already. (--force replaces it)"_s);
    row(u"%1"_s, u"This is a folder."_s, u" --force"_s);
    row(u"%1/missing/report.txt"_s, u"The folder does not exist."_s);
    QTest::newRow("no machine") << u"--output %1/new.txt --machine %1/none.json"_s
                                << u"%1/none.json: No such file or directory"_s;
    QTest::newRow("PDF on a terminal")
        << u"--output - --format pdf"_s
        << u"a PDF document is nothing for a terminal: name a file with --output"_s;
}

/// One line that says why; nothing is lost, and nothing comes into being.
void ExportCommandTest::badTargets()
{
    QFETCH(QString, options);
    QFETCH(QString, reason);
    QFile old(m_folder.filePath(u"old.txt"_s));
    QVERIFY(old.open(QIODevice::WriteOnly) && old.write("old") == 3 && old.flush());
    const auto before = QDir(m_folder.path()).entryList(QDir::AllEntries | QDir::Hidden);
    const auto outcome = runWith(u"export "_s + options.replace(u"%1"_s, m_folder.path()), {.columns = 80});
    QCOMPARE(outcome.err, u"quillmark: %1\n"_s.arg(reason.replace(u"%1"_s, m_folder.path())));
    QCOMPARE(outcome.status, 1);
    QCOMPARE(outcome.out, QString());
    QCOMPARE(contents(old.fileName()), QByteArray("old"));
    QCOMPARE(QDir(m_folder.path()).entryList(QDir::AllEntries | QDir::Hidden), before);
}

QTEST_GUILESS_MAIN(ExportCommandTest)
#include "ExportCommandTest.moc"

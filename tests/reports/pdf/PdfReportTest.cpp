// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "reports/pdf/PdfReport.h"

#include "inspection/CapabilityModel.h"
#include "language/LanguageManager.h"
#include "language/texts.h"
#include "reports/pdf/paginate.h"
#include "support/ReadPdf.h"
#include "support/ReportSamples.h"
#include "support/Rows.h"

#include <QDir>
#include <QScopeGuard>
#include <QTest>

using namespace quillmark;
using namespace quillmark::inspection;
using namespace quillmark::support;
using language::Paper;
using reports::Block;
using reports::Group;
using reports::Portion;

namespace {

/// "label|value|status" of every row without white space, as ReadPdf gives them.
QStringList rowsOf(const reports::Report &report)
{
    QStringList rows;
    for (const auto &section : report.sections) {
        for (const auto &item : section.items)
            rows += ReadPdf::dense(QStringList{item.label, item.value, title(item.status)}.join(u'|'));
    }
    return rows;
}

QStringList statusWords()
{
    QStringList words;
    for (const auto status : allStatuses)
        words += title(status);
    return words;
}

/// The report drawn. The document is left in the folder that QUILLMARK_PDF_FOLDER names, to be looked at.
ReadPdf drawn(const reports::Report &report, Paper paper = Paper::A4)
{
    const auto document = reports::pdf(report, {.paper = paper});
    if (const auto folder = qEnvironmentVariable("QUILLMARK_PDF_FOLDER"); !folder.isEmpty()) {
        const auto name = u"%1 %2.pdf"_s.arg(QString::fromLatin1(QTest::currentTestFunction()),
                                             QString::fromLatin1(QTest::currentDataTag()));
        QFile file(QDir(folder).filePath(name));
        if (file.open(QIODevice::WriteOnly))
            file.write(document);
    }
    return ReadPdf(document);
}

void checkWhatEveryReportHas(const reports::Report &report, const ReadPdf &pdf)
{
    const auto pages = pdf.pages().size();
    QCOMPARE(pdf.info(u"Pages"_s), QString::number(pages));
    for (qsizetype page = 0; page < pages; ++page) {
        const auto number = language::translated("Report", "Page %1 of %2").arg(page + 1).arg(pages);
        QVERIFY2(pdf.text(page).contains(ReadPdf::dense(number)), qPrintable(pdf.text(page)));
    }
    for (const auto &page : pdf.pages()) {
        for (const auto &word : page.words)
            QVERIFY2(QRectF({}, page.size).adjusted(46, 40, -46, -20).contains(word.box),
                     qPrintable(word.text));
    }
    QCOMPARE(pdf.info(u"Author"_s), u"Quillmark"_s);
    QCOMPARE(pdf.info(u"Creator"_s), u"Quillmark "_s + reports::applicationVersion());
    QVERIFY(pdf.info(u"Title"_s).contains(report.summary.deviceName));
    QCOMPARE(pdf.attachment(), reports::json(report));
    static const QRegularExpression embedded(
        u" yes +(yes|no) +yes +\\d+ +\\d+$"_s); // embedded, with its characters
    QVERIFY(!pdf.fonts().isEmpty());
    for (const auto &font : pdf.fonts())
        QVERIFY2(embedded.match(font).hasMatch(), qPrintable(font));
}

} // namespace

class PdfReportTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void recordings_data();
    void recordings();
    void languages_data();
    void languages();
    void fromRightToLeft();
    void longSection();
    void oddReports_data();
    void oddReports();
    void attention();
    void filtered();
    void leftOutHasNoPageOfItsOwn();
    void pagination_data();
    void pagination();
};

void PdfReportTest::recordings_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<Paper>("paper");
    for (const auto &name : recordingNames())
        QTest::newRow(qPrintable(name)) << name << Paper::A4;
    QTest::newRow("on Letter") << u"macbook-pro-m3-max"_s << Paper::Letter;
}

void PdfReportTest::recordings()
{
    QFETCH(const QString, name);
    QFETCH(const Paper, paper);
    const auto report = reportOf(*machineFrom(recordingText(name)));
    const auto pdf = drawn(report, paper);
    checkWhatEveryReportHas(report, pdf);
    QVERIFY(sameLines(pdf.rows(statusWords()), rowsOf(report)));
    QCOMPARE(pdf.pages().first().size, paper == Paper::A4 ? QSizeF(595, 842) : QSizeF(612, 792));

    const auto contents = pdf.contents();
    QCOMPARE(contents.size(), report.sections.size());
    for (const auto &section : report.sections) {
        const auto title = ReadPdf::dense(section.title);
        const auto headings = pdf.headings(contents.value(title, 1) - 1);
        QVERIFY2(std::ranges::any_of(headings, [&](const QString &one) { return one.startsWith(title); }),
                 qPrintable(title));
    }
}

void PdfReportTest::languages_data()
{
    QTest::addColumn<QString>("language");
    for (const auto *language : {"de", "fr", "pl", "ja"})
        QTest::newRow(language) << QString::fromLatin1(language);
}

/// Every text comes out of the document again, whichever font its glyphs are from.
void PdfReportTest::languages()
{
    QFETCH(const QString, language);
    const language::LanguageManager manager({language});
    const auto backToEnglish = qScopeGuard([] { language::LanguageManager({u"en"_s}); });
    const auto report = reportOf(*machineFrom(recordingText(u"macbook-pro-m2-rosetta"_s)), language);
    const auto pdf = drawn(report);
    checkWhatEveryReportHas(report, pdf);
    const auto expected = rowsOf(report);
    const auto rows = pdf.rows(statusWords()); // where texts are long, tables of the cover go on before them
    QVERIFY(sameLines(rows.mid(rows.size() - expected.size()), expected));
    for (const auto source : {"Quillmark report", "Worth a look", "In this report", "Capability score"})
        QVERIFY2(pdf.text().contains(ReadPdf::dense(language::translated("Report", source))), source);
}

void PdfReportTest::fromRightToLeft()
{
    auto report = reportOf(*changedMachine(R"({"hostName": "המק של עדה"})"), u"he"_s);
    const auto pdf = drawn(report);
    checkWhatEveryReportHas(report, pdf);
    const auto &page = pdf.pages()[1];
    const auto place = [&page](const QString &text) {
        const auto word = std::ranges::find(page.words, text, &ReadPdf::Word::text);
        return word == page.words.end() ? QRectF() : word->box;
    };
    QVERIFY(place(u"Uptime"_s).left() > page.size.width() / 2);
    QVERIFY(qAbs(place(u"Info"_s).left() - 48) < 1);
}

/// It fills its pages, with the heading on each and nothing lost.
void PdfReportTest::longSection()
{
    auto report = reportOf(*changedMachine());
    report.sections.insert(1, manyRows(40));
    const auto pdf = drawn(report);
    checkWhatEveryReportHas(report, pdf);
    QVERIFY(sameLines(pdf.rows(statusWords()), rowsOf(report)));
    QVERIFY(!pdf.text(1).contains(u"(continued)"_s));
    QVERIFY(pdf.text(2).contains(u"Manyrows(continued)"_s) && pdf.text(2).contains(u"Label40"_s));
    QCOMPARE(pdf.text().count(u"(continued)"_s), 1);
}

void PdfReportTest::oddReports_data()
{
    QTest::addColumn<reports::Report>("report");
    const auto with = [](const QString &label, const QString &value) {
        auto report = reportOf(*changedMachine());
        report.sections[2].items.prepend({.label = label, .value = value});
        return report;
    };
    const QString prose = u"so on and so forth, "_s.repeated(25).trimmed();
    QTest::newRow("a value of 499 characters") << with(u"Label"_s, prose);
    QTest::newRow("words wider than their columns") << with(QString(90, u'm'), QString(200, u'w'));
    QTest::newRow("a row taller than a page") << with(u"Label"_s, prose.repeated(12));
    QTest::newRow("empty texts") << with({}, {});
    auto nameless = reportOf(*changedMachine());
    nameless.summary.deviceName.clear();
    nameless.date.reset();
    QTest::newRow("no name, no date") << nameless;
    auto named = reportOf(*changedMachine());
    named.summary.deviceName = u"a name as long as a tale "_s.repeated(20).trimmed();
    QTest::newRow("a long name") << named;
    QTest::newRow("no inspection yet") << reports::Report{.language = u"en"_s};
    reports::Report unrated{.language = u"en"_s, .sections = {manyRows(3)}};
    for (auto &item : unrated.sections[0].items)
        item.status = CapabilityStatus::Info;
    QTest::newRow("nothing rated") << unrated;
    auto privately = reportOf(*changedMachine());
    privately.leftOut = {reports::PrivateText::ComputerName, reports::PrivateText::VolumeNames};
    QTest::newRow("something left out") << privately;
}

void PdfReportTest::oddReports()
{
    QFETCH(const reports::Report, report);
    const auto pdf = drawn(report);
    checkWhatEveryReportHas(report, pdf);
    QVERIFY(sameLines(pdf.rows(statusWords()), rowsOf(report)));
    QCOMPARE(pdf.text(0).contains(u"Nothingisrated"_s), inspection::ratedCount(report.sections) == 0);
    QVERIFY(pdf.text(pdf.pages().size() - 1).contains(ReadPdf::dense(leftOutNote(report))));
}

/// Warnings come first; of more than twelve rows the cover says how many there are.
void PdfReportTest::attention()
{
    auto report = reportOf(*changedMachine());
    report.sections = {manyRows(8), manyRows(24)};
    const auto pdf = drawn(report);
    const auto cover = pdf.text(0);
    QVERIFY2(cover.contains(u"and4more"_s), qPrintable(cover));
    const auto table = cover.mid(cover.indexOf(u"Worthalook"_s), cover.indexOf(u"and4more"_s));
    QVERIFY(table.contains(u"Label3Value3ManyrowsWarning"_s));
    QVERIFY(table.indexOf(u"Warning"_s) < table.indexOf(u"Notsupported"_s));

    report.sections = {manyRows(1)};
    QVERIFY(!drawn(report).text(0).contains(u"Worthalook"_s));
}

void PdfReportTest::filtered()
{
    auto report = reportOf(*changedMachine());
    report.filter = [](const CapabilitySection &section, const CapabilityItem &) {
        return section.key == u"graphics";
    };
    const auto some = drawn(report);
    checkWhatEveryReportHas(report, some);
    QCOMPARE(some.rows(statusWords()).size(), report.sections[2].items.size());
    QVERIFY(!some.text().contains(u"Uptime"_s));

    report.filter = [](const CapabilitySection &, const CapabilityItem &) { return false; };
    const auto none = drawn(report);
    QCOMPARE(none.pages().size(), 1);
    QVERIFY(none.text().contains(u"Norowsmatch."_s) && !none.text().contains(u"Inthisreport"_s));
}

/// However full the last page is.
void PdfReportTest::leftOutHasNoPageOfItsOwn()
{
    auto report = reportOf(*changedMachine());
    report.leftOut = {reports::PrivateText::Addresses};
    for (int rows = 32; rows <= 36; ++rows) {
        report.sections = {manyRows(rows)};
        const auto pdf = drawn(report);
        const auto last = pdf.text(pdf.pages().size() - 1);
        QVERIFY2(last.contains(u"Label%1"_s.arg(rows - 1)) && last.contains(u"Leftout"_s), qPrintable(last));
    }
}

void PdfReportTest::pagination_data()
{
    // Pages hold 100, the cover 60; a heading takes 20, and 5 stand between groups.
    QTest::addColumn<QList<QList<qreal>>>("groups"); // heights of the rows
    QTest::addColumn<QString>("pages");              // "group:first-end@top" for each portion
    using Groups = QList<QList<qreal>>;
    const auto rows = [](int count, qreal height = 10) { return QList<qreal>(count, height); };
    QTest::newRow("side by side") << Groups{rows(3), rows(2)} << u"| 0:0-3@0 1:0-2@55"_s;
    QTest::newRow("kept together") << Groups{rows(3), rows(4)} << u"| 0:0-3@0 | 1:0-4@0"_s;
    QTest::newRow("a page to the full") << Groups{rows(8)} << u"| 0:0-8@0"_s;
    QTest::newRow("continued") << Groups{rows(17)} << u"| 0:0-8@0 | 0:8-15@0 | 0:15-17@0"_s;
    QTest::newRow("begun below another") << Groups{rows(4), rows(9)} << u"| 0:0-4@0 | 1:0-7@0 | 1:7-9@0"_s;
    QTest::newRow("begun with two rows") << Groups{rows(3), rows(9)} << u"| 0:0-3@0 1:0-2@55 | 1:2-9@0"_s;
    QTest::newRow("taller than a page") << Groups{{150}, rows(1)} << u"| 0:0-1@0 | 1:0-1@0"_s;
    QTest::newRow("tall rows") << Groups{{70, 70, 10}} << u"| 0:0-1@0 | 0:1-3@0"_s;
    QTest::newRow("none") << Groups{} << QString();
}

void PdfReportTest::pagination()
{
    QFETCH(const QList<QList<qreal>>, groups);
    QFETCH(const QString, pages);
    std::vector<Group> measured;
    for (const auto &rows : groups) {
        measured.push_back({.gap = 5, .heading = {.height = 20}, .continued = {.height = 20}});
        for (const auto row : rows)
            measured.back().rows.push_back({.height = row});
    }
    QStringList placed;
    for (const auto &page : reports::paginate(measured, {.coverTop = 40, .top = 0, .bottom = 100})) {
        QStringList portions;
        for (const auto &portion : page)
            portions +=
                u"%1:%2-%3@%4"_s.arg(portion.group).arg(portion.first).arg(portion.end).arg(portion.top);
        placed += portions.join(u' ');
    }
    QCOMPARE(placed.join(u" | "_s).trimmed(), pages);
}

QTEST_MAIN(PdfReportTest)
#include "PdfReportTest.moc"

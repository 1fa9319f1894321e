// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "support/Recordings.h"

#include <QProcess>
#include <QProcessEnvironment>
#include <QTemporaryDir>
#include <QTest>

using namespace quillmark::support;
using namespace Qt::StringLiterals;

namespace {

struct Result
{
    int status;
    QByteArray out;
    QString err;
};

QStringList exportTo(const QString &file)
{
    return {u"export"_s,   u"--machine"_s, sourcePath(u"machines/linux-laptop.json"_s),
            u"--format"_s, u"pdf"_s,       u"--output"_s,
            file};
}

/// Runs the program in an environment that holds these variables alone.
Result run(const QString &program, const QStringList &arguments,
           const QList<std::pair<QString, QString>> &variables = {})
{
    QProcessEnvironment environment;
    for (const auto &[name, value] : variables)
        environment.insert(name, value);
    // The sanitizers' own; nothing else is passed on.
    for (const auto &name : {u"ASAN_OPTIONS"_s, u"UBSAN_OPTIONS"_s, u"LSAN_OPTIONS"_s}) {
        if (qEnvironmentVariableIsSet(qPrintable(name)))
            environment.insert(name, qEnvironmentVariable(qPrintable(name)));
    }
    QProcess process;
    process.setProcessEnvironment(environment);
    process.start(program, arguments);
    process.waitForFinished();
    return {process.exitCode(), process.readAllStandardOutput(),
            QString::fromUtf8(process.readAllStandardError()).trimmed()};
}

/// What the program draws of a recording.
Result draw(const QString &program, const QList<std::pair<QString, QString>> &variables = {})
{
    return run(program, exportTo(u"-"_s), variables);
}

} // namespace

/// The program as it is installed, with the module that draws.
class PdfModuleTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void drawsWithoutSession_data();
    void drawsWithoutSession();
    void throughLink();
    void noModule();
    void brokenModule();
    void noFont();
    void fileTooLong();

private:
    const QString m_program = QStringLiteral(QUILLMARK_PROGRAM);
};

void PdfModuleTest::drawsWithoutSession_data()
{
    QTest::addColumn<QString>("locale");
    QTest::addColumn<QByteArray>("paper");
    QTest::newRow("no locale") << QString() << QByteArray("595");
    QTest::newRow("C") << u"C"_s << QByteArray("595");
    QTest::newRow("Germany") << u"de_DE.UTF-8"_s << QByteArray("595");
    QTest::newRow("United Kingdom, not UTF-8") << u"en_GB.ISO-8859-1"_s << QByteArray("595");
    QTest::newRow("United States") << u"en_US.UTF-8"_s << QByteArray("612");
    QTest::newRow("Mexico") << u"es_MX.UTF-8"_s << QByteArray("612");
}

/// No display, no folder of a session; nothing is said that was not asked for.
void PdfModuleTest::drawsWithoutSession()
{
    QFETCH(const QString, locale);
    QFETCH(const QByteArray, paper);
    const auto result = draw(m_program, {{u"LC_ALL"_s, locale},
                                         {u"QT_QPA_PLATFORM"_s, u"xcb"_s},
                                         {u"QT_QPA_PLATFORMTHEME"_s, u"gtk3"_s},
                                         {u"QT_IM_MODULE"_s, u"ibus"_s}});
    QCOMPARE(result.err, QString());
    QCOMPARE(result.status, 0);
    QVERIFY(result.out.startsWith("%PDF-1.") && result.out.trimmed().endsWith("%%EOF"));
    QVERIFY(result.out.contains("/MediaBox [0 0 " + paper + '.'));
}

void PdfModuleTest::throughLink()
{
    const QTemporaryDir folder;
    const auto link = folder.filePath(u"link"_s);
    QVERIFY(QFile::link(m_program, link));
    QCOMPARE(draw(link).err, QString());
}

void PdfModuleTest::noModule()
{
    const QTemporaryDir folder;
    const auto copy = folder.filePath(u"copy"_s);
    QVERIFY(QFile::copy(m_program, copy));
    const auto result = draw(copy);
    QCOMPARE(result.status, 1);
    QCOMPARE(result.err, u"quillmark: the module quillmark-pdf is neither in %1 nor in %2"_s.arg(
                             QDir::cleanPath(folder.filePath(u"../" QUILLMARK_LIBDIR "/quillmark"_s)),
                             QDir::cleanPath(folder.filePath(u"../PlugIns"_s))));
}

void PdfModuleTest::brokenModule()
{
    const QTemporaryDir folder;
    const QDir root(folder.path());
    QVERIFY(root.mkpath(u"bin"_s) && root.mkpath(u"PlugIns"_s));
    QVERIFY(QFile::copy(m_program, root.filePath(u"bin/copy"_s)));
    const auto module = root.filePath(u"PlugIns/quillmark-pdf.so"_s);
    QFile file(module);
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write("not a library") > 0);
    file.close();
    const auto result = draw(root.filePath(u"bin/copy"_s));
    QCOMPARE(result.status, 1);
    QVERIFY2(result.err.contains(module), qPrintable(result.err));
}

void PdfModuleTest::noFont()
{
    const QTemporaryDir folder;
    const auto fonts = folder.filePath(u"fonts.conf"_s);
    QFile file(fonts);
    QVERIFY(file.open(QIODevice::WriteOnly) &&
            file.write("<?xml version='1.0'?><fontconfig></fontconfig>") > 0);
    file.close();
    const auto result = draw(m_program, {{u"FONTCONFIG_FILE"_s, fonts}});
    QCOMPARE(result.status, 1);
    QCOMPARE(result.err, u"quillmark: no PDF document could be drawn: no font is installed"_s);
}

/// Beyond what a file may take the system would end the program, with half a document left behind.
void PdfModuleTest::fileTooLong()
{
    const QTemporaryDir folder;
    const QStringList limited = {u"-c"_s, u"ulimit -f 1; exec \"$@\""_s, u"sh"_s, m_program};
    const auto result = run(u"sh"_s, limited + exportTo(folder.filePath(u"report.pdf"_s)),
                            {{u"PATH"_s, qEnvironmentVariable("PATH")}});
    QCOMPARE(result.status, 1);
    QVERIFY2(result.err.contains(u"There is not enough free space on "_s), qPrintable(result.err));
    QCOMPARE(QDir(folder.path()).entryList(QDir::Files | QDir::Hidden), QStringList());
}

QTEST_GUILESS_MAIN(PdfModuleTest)
#include "PdfModuleTest.moc"

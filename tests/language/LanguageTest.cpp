// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "language/Formats.h"
#include "language/LanguageManager.h"
#include "language/Paper.h"
#include "language/folding.h"
#include "language/texts.h"

#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QTimeZone>

#include <algorithm>
#include <limits>

using namespace quillmark::language;
using namespace Qt::StringLiterals;

namespace {

QString memory(const QString &language, qint64 bytes)
{
    return Formats(language).byteCount(bytes, ByteCountStyle::Memory);
}

QString file(const QString &language, qint64 bytes)
{
    return Formats(language).byteCount(bytes, ByteCountStyle::File);
}

} // namespace

class LanguageTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void byteCounts_data();
    void byteCounts();
    void byteCountsOfLanguages_data();
    void byteCountsOfLanguages();
    void germanByteCounts();
    void uptime_data();
    void uptime();
    void noUptime();
    void lists_data();
    void lists();
    void datesAndTimes_data();
    void datesAndTimes();
    void papers_data();
    void papers();
    void folds_data();
    void folds();
    void findsFolded_data();
    void findsFolded();
    void matches_data();
    void matches();
    void manager();
    void choice();
    void texts_data();
    void texts();
    void names();
};

void LanguageTest::byteCounts_data()
{
    QTest::addColumn<qint64>("bytes");
    QTest::addColumn<QString>("inMemory");
    QTest::addColumn<QString>("inFile");
    const auto row = [](qint64 bytes, const QString &inMemory, const QString &inFile) {
        QTest::newRow(QByteArray::number(bytes).constData()) << bytes << inMemory << inFile;
    };
    row(0, u"Zero kB"_s, u"Zero kB"_s);
    row(1, u"1 byte"_s, u"1 byte"_s);
    row(999, u"999 bytes"_s, u"1 kB"_s);
    row(1000, u"1,000 bytes"_s, u"1 kB"_s);
    row(1023, u"1 kB"_s, u"1 kB"_s);
    row(1024, u"1 kB"_s, u"1 kB"_s);
    row(1500, u"1 kB"_s, u"2 kB"_s);
    row(1536, u"2 kB"_s, u"2 kB"_s);
    row(2560, u"2 kB"_s, u"3 kB"_s); // halves go to the even digit
    row(999498, u"976 kB"_s, u"999 kB"_s);
    row(999499, u"976 kB"_s, u"1 MB"_s);
    row(1048062, u"1,023 kB"_s, u"1 MB"_s);
    row(1048063, u"1 MB"_s, u"1 MB"_s);
    row(1250000, u"1.2 MB"_s, u"1.2 MB"_s);
    row(1350000, u"1.3 MB"_s, u"1.4 MB"_s);
    row(999949998, u"953.6 MB"_s, u"999.9 MB"_s);
    row(999949999, u"953.6 MB"_s, u"1 GB"_s);
    row(1073689394, u"1,023.9 MB"_s, u"1.07 GB"_s);
    row(1073689395, u"1 GB"_s, u"1.07 GB"_s);
    row(7516192768, u"7 GB"_s, u"7.52 GB"_s);
    row(11453251584, u"10.67 GB"_s, u"11.45 GB"_s);
    row(17179869184, u"16 GB"_s, u"17.18 GB"_s);
    row(494384795648, u"460.43 GB"_s, u"494.38 GB"_s);
    row(999994999998, u"931.32 GB"_s, u"999.99 GB"_s);
    row(999994999999, u"931.32 GB"_s, u"1 TB"_s);
    row(1099511627776, u"1 TB"_s, u"1.1 TB"_s);
    row(-1, u"-1 byte"_s, u"-1 byte"_s);
    row(999994999999998, u"909.49 TB"_s, u"999.99 TB"_s);
    row(999994999999999, u"909.49 TB"_s, u"1 PB"_s);
    row(1125894409284485, u"1 PB"_s, u"1.13 PB"_s);
    row(std::numeric_limits<qint64>::max(), u"8,192 PB"_s, u"9,223.37 PB"_s);
    row(std::numeric_limits<qint64>::min(), u"-8,192 PB"_s, u"-9,223.37 PB"_s);
}

void LanguageTest::byteCounts()
{
    QFETCH(const qint64, bytes);
    QTEST(memory(u"en"_s, bytes), "inMemory");
    QTEST(file(u"en"_s, bytes), "inFile");
}

void LanguageTest::byteCountsOfLanguages_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<bool>("spellsZero");
    for (const auto *language :
         {"ar", "da", "el", "fr", "hi", "hr", "id", "it", "ms", "pt-BR", "pt-PT", "ro", "th"})
        QTest::newRow(language) << QString::fromLatin1(language) << true;
    for (const auto *language : {"cs", "de", "de-AT", "es", "fi", "ja", "ko", "nl", "pl", "ru", "sv", "tr",
                                 "uk", "vi", "zh-Hans", "zh-Hant"})
        QTest::newRow(language) << QString::fromLatin1(language) << false;
}

/// The words are the locale data's business; here it is that there are some, and that they differ where they
/// must.
void LanguageTest::byteCountsOfLanguages()
{
    QFETCH(const QString, language);
    QFETCH(const bool, spellsZero);
    const auto hasDigit = [](const QString &text) {
        return std::ranges::any_of(text, [](QChar c) { return c.isDigit(); });
    };
    const auto zero = memory(language, 0);
    QCOMPARE(!hasDigit(zero), spellsZero);
    QVERIFY2(zero.size() > 2 && !zero.front().isLower(), qPrintable(zero));
    QCOMPARE(file(language, 0), zero);
    QSet<QString> texts = {zero};
    for (int unit = 0; unit < 6; ++unit) {
        const auto text = memory(language, qint64(512) << (10 * unit));
        QVERIFY2(hasDigit(text) && std::ranges::any_of(text, [](QChar c) { return c.isLetter(); }),
                 qPrintable(text));
        texts += text;
    }
    QCOMPARE(texts.size(), 7); // zero, and 512 of six units
    QVERIFY(memory(language, 17179869184) != file(language, 17179869184));
}

void LanguageTest::germanByteCounts()
{
    QCOMPARE(memory(u"de"_s, 0), u"0 kB"_s);
    QCOMPARE(memory(u"de"_s, 512), u"512 Byte"_s);
    QCOMPARE(memory(u"de"_s, 1022), u"1.022 Byte"_s);
    QCOMPARE(memory(u"de-AT"_s, 17179869184), u"16\u00a0GB"_s);
    QCOMPARE(file(u"de"_s, 494384795648), u"494,38\u00a0GB"_s);
}

void LanguageTest::uptime_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<double>("seconds");
    QTest::addColumn<QString>("text");
    const auto row = [](const char *name, const QString &language, double seconds, const QString &text) {
        QTest::newRow(name) << language << seconds << text;
    };
    row("nothing", u"en"_s, 0, u"0m"_s);
    row("less than a minute", u"en"_s, 59.99, u"0m"_s);
    row("minutes, seconds cut", u"en"_s, 359.9, u"5m"_s);
    row("an hour without minutes", u"en"_s, 3610, u"1h"_s);
    row("days and hours", u"en"_s, 273600.5, u"3d 4h"_s);
    row("days and minutes", u"en"_s, 86400 + 60, u"1d 1m"_s);
    row("all three", u"en"_s, 90061.4, u"1d 1h 1m"_s);
    row("just before a day", u"en"_s, 86399.9, u"23h 59m"_s);
    row("days do not become weeks", u"en"_s, 86400.0 * 400, u"400d"_s);
    row("German", u"de"_s, 273600, u"3 T, 4 Std."_s);
}

void LanguageTest::uptime()
{
    QFETCH(const QString, language);
    QFETCH(const double, seconds);
    QTEST(Formats(language).uptime(seconds).value_or(u"none"_s), "text");
}

void LanguageTest::noUptime()
{
    const Formats english(u"en"_s);
    QVERIFY(!english.uptime(std::nullopt));
    using Limits = std::numeric_limits<double>;
    for (const double seconds :
         {-1.0, -0.001, 1e300, Limits::infinity(), -Limits::infinity(), Limits::quiet_NaN()})
        QVERIFY2(!english.uptime(seconds), QByteArray::number(seconds).constData());
}

void LanguageTest::lists_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<QStringList>("items");
    QTest::addColumn<QString>("text");
    QTest::newRow("none") << u"en"_s << QStringList{} << QString();
    QTest::newRow("one") << u"en"_s << QStringList{u"A"_s} << u"A"_s;
    QTest::newRow("two") << u"en"_s << QStringList{u"A"_s, u"B"_s} << u"A and B"_s;
    QTest::newRow("three") << u"en"_s << QStringList{u"A"_s, u"B"_s, u"C"_s} << u"A, B, and C"_s;
    QTest::newRow("four, not only letters")
        << u"en"_s << QStringList{u"A, a"_s, u"{0}"_s, u"C"_s, u"😀"_s} << u"A, a, {0}, C, and 😀"_s;
    QTest::newRow("German") << u"de"_s << QStringList{u"A"_s, u"B"_s, u"C"_s} << u"A, B und C"_s;
    QTest::newRow("Japanese") << u"ja"_s << QStringList{u"A"_s, u"B"_s} << u"A、B"_s;
}

void LanguageTest::lists()
{
    QFETCH(const QString, language);
    QFETCH(const QStringList, items);
    QTEST(Formats(language).list(items), "text");
}

void LanguageTest::datesAndTimes_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<QString>("text");
    QTest::newRow("English") << u"en"_s << u"November 22, 2025 at 8:41 AM"_s;
    QTest::newRow("German") << u"de"_s << u"22. November 2025 um 08:41"_s;
    QTest::newRow("Japanese") << u"ja"_s << u"2025年11月22日 8:41"_s;
}

/// As the clock on the wall says, whichever zone it hangs in.
void LanguageTest::datesAndTimes()
{
    QFETCH(const QString, language);
    for (const int offset : {0, 9 * 3600, -8 * 3600}) {
        auto text = Formats(language).dateAndTime(QDateTime({2025, 11, 22}, {8, 41}, QTimeZone(offset)));
        QTEST(text.replace(QChar::Nbsp, u' '), "text");
    }
}

void LanguageTest::papers_data()
{
    QTest::addColumn<QString>("locale");
    QTest::addColumn<Paper>("paper");
    for (const auto &locale : {u"en_US"_s, u"fr_CA"_s, u"es_MX"_s, u"fil_PH"_s})
        QTest::newRow(qPrintable(locale)) << locale << Paper::Letter;
    for (const auto &locale : {u"C"_s, u"en_GB"_s, u"de_DE"_s, u"ja_JP"_s, u"pt_BR"_s})
        QTest::newRow(qPrintable(locale)) << locale << Paper::A4;
}

void LanguageTest::papers()
{
    QFETCH(const QString, locale);
    QTEST(usualPaper(QLocale(locale)), "paper");
}

void LanguageTest::folds_data()
{
    QTest::addColumn<QString>("one");
    QTest::addColumn<QString>("other");
    QTest::addColumn<bool>("same");
    const auto row = [](const QString &one, const QString &other, bool same) {
        QTest::newRow(qPrintable(one + u" and "_s + other)) << one << other << same;
    };
    row(u"Éclair"_s, u"eclair"_s, true);
    row(u"E\u0301CLAIR"_s, u"éclair"_s, true);
    row(u"Straße"_s, u"STRASSE"_s, true);
    row(u"ΟΔΟΣ"_s, u"οδός"_s, true);
    row(u"ＧＰＵ"_s, u"gpu"_s, true);
    row(u"ﬁne"_s, u"FINE"_s, true);
    row(u"Ångström"_s, u"angstrom"_s, true);
    row(u"ガ"_s, u"か"_s, false); // another syllabary is not another case
    row(u"Metal 3"_s, u"metal 4"_s, false);
    row(u"ab"_s, u"a b"_s, false);
}

void LanguageTest::folds()
{
    QFETCH(const QString, one);
    QFETCH(const QString, other);
    QTEST(folded(one) == folded(other), "same");
}

void LanguageTest::findsFolded_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("search");
    QTest::addColumn<QStringList>("found");
    QTest::newRow("several") << u"Metal and METAL"_s << u"metal"_s << QStringList{u"Metal"_s, u"METAL"_s};
    QTest::newRow("no overlap") << u"aaa"_s << u"aa"_s << QStringList{u"aa"_s};
    QTest::newRow("composed") << u"Café 2"_s << u"cafe"_s << QStringList{u"Café"_s};
    QTest::newRow("with marks") << u"Cafe\u0301 2"_s << u"cafe"_s << QStringList{u"Cafe\u0301"_s};
    QTest::newRow("a letter that folds to two") << u"Straße 1"_s << u"STRASSE"_s << QStringList{u"Straße"_s};
    QTest::newRow("half of such a letter") << u"Maß"_s << u"mas"_s << QStringList{u"Maß"_s};
    QTest::newRow("after two units") << u"😀 Wi-Fi"_s << u"wi"_s << QStringList{u"Wi"_s};
    QTest::newRow("only a mark") << u"\u0301"_s << u"a"_s << QStringList();
}

void LanguageTest::findsFolded()
{
    QFETCH(const QString, text);
    QFETCH(const QString, search);
    QStringList found;
    for (const auto &range : foldedMatches(text, folded(search)))
        found += text.sliced(range.start, range.length);
    QTEST(found, "found");
}

void LanguageTest::matches_data()
{
    QTest::addColumn<QString>("tag");
    QTest::addColumn<QString>("match");
    const auto row = [](const QString &tag, const QString &match) {
        QTest::newRow(qPrintable(u"'%1'"_s.arg(tag))) << tag << match;
    };
    for (const auto &tag :
         {u"en"_s, u"EN"_s, u"en-GB"_s, u"en_US.UTF-8"_s, u"en_US@euro"_s, u"en-Latn-US-x-private"_s})
        row(tag, u"en"_s);
    for (const auto &tag : {u"zh"_s, u"zh_CN.UTF-8"_s, u"zh-SG"_s, u"zh-Hans-CN"_s})
        row(tag, u"zh-Hans"_s);
    for (const auto &tag : {u"pt"_s, u"pt_BR.UTF-8"_s, u"pt-PT"_s})
        row(tag, u"pt-BR"_s);
    row(u"de_CH.UTF-8@euro"_s, u"de"_s);
    row(u"ar_EG"_s, u"ar"_s);
    for (const auto &tag :
         {u""_s, u"C"_s, u"C.UTF-8"_s, u"POSIX"_s, u"e"_s, u"eng"_s, u"xx"_s, u"-"_s, u"-en"_s, u"tlh-en"_s,
          u"."_s, u"@en"_s, u"zh_TW.UTF-8"_s, u"zh-Hant"_s, u"zh-HK"_s})
        row(tag, QString());
}

void LanguageTest::matches()
{
    QFETCH(const QString, tag);
    QTEST(LanguageManager::match(tag), "match");
}

void LanguageTest::manager()
{
    QVERIFY(LanguageManager::available().contains(u"en"_s));
    for (const auto &language : LanguageManager::available())
        QCOMPARE(LanguageManager::match(language), language);
    QCOMPARE(LanguageManager().language(), u"en"_s);
    QCOMPARE(LanguageManager({u"C"_s, u"tlh"_s}).language(), u"en"_s);

    LanguageManager manager({u"tlh"_s, u"en_GB.UTF-8"_s});
    const QSignalSpy changes(&manager, &LanguageManager::languageChanged);
    QCOMPARE(manager.language(), u"en"_s);
    QCOMPARE(manager.formats().language(), u"en"_s);
    QVERIFY(!manager.setLanguage(u"tlh"_s) && !manager.setLanguage(QString()));
    QVERIFY(manager.setLanguage(u"en-AU"_s));
    QCOMPARE(manager.language(), u"en"_s);
    QCOMPARE(changes.size(), 0); // it was that already
}

/// What is chosen holds at once, is kept, and is above what the system asks for.
void LanguageTest::choice()
{
    const QTemporaryDir folder;
    quillmark::settings::Settings settings(folder.filePath(u"settings.conf"_s));
    LanguageManager manager(settings, {u"de-AT"_s, u"fr"_s});
    const QSignalSpy changes(&manager, &LanguageManager::languageChanged);
    QCOMPARE(manager.language(), u"de"_s);
    QCOMPARE(manager.direction(), Qt::LeftToRight);

    settings.setValue(languageKey, u"ar"_s);
    QVERIFY(
        !(QFile::permissions(folder.filePath(u"settings.conf"_s)) & (QFile::ReadGroup | QFile::ReadOther)));
    QCOMPARE(manager.language(), u"ar"_s);
    QCOMPARE(manager.direction(), Qt::RightToLeft);
    QCOMPARE(LanguageManager(settings, {u"de"_s}).language(), u"ar"_s);
    settings.setValue(languageKey, u"tlh"_s); // of another version, say
    QCOMPARE(manager.language(), u"de"_s);
    QCOMPARE(LanguageManager(settings, {u"fr"_s}).language(), u"fr"_s);
    settings.setValue(languageKey, u"ja"_s);
    settings.remove(languageKey);
    QCOMPARE(manager.language(), u"de"_s);
    QCOMPARE(changes.size(), 4);
}

/// Texts of this program's layers, of its widgets and of Qt itself, with their plurals and figures.
void LanguageTest::texts_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<QString>("one");
    QTest::addColumn<QString>("many");
    QTest::addColumn<QString>("cancel");
    QTest::newRow("English") << u"en"_s << u"1 saved scan"_s << u"1,234 saved scans"_s << u"Cancel"_s;
    QTest::newRow("German") << u"de"_s << u"1 gesicherte Untersuchung"_s
                            << u"1.234 gesicherte Untersuchungen"_s << u"Abbrechen"_s;
    QTest::newRow("Chinese") << u"zh-Hans"_s << u"1 次已存储的扫描"_s << u"1,234 次已存储的扫描"_s
                             << u"取消"_s;
    QTest::newRow("Arabic") << u"ar"_s << u"فحص محفوظ واحد"_s << u"١٬٢٣٤ فحصًا محفوظًا"_s << u"ألغِ"_s;
}

void LanguageTest::texts()
{
    QFETCH(const QString, language);
    const LanguageManager manager({language});
    for (const auto &[count, text] : {std::pair(1, "one"), std::pair(1234, "many")}) {
        QTEST(translated("Terminal", "%n saved scans", nullptr, count), text);
        QTEST(QCoreApplication::translate("Terminal", "%n saved scans", nullptr, count), text);
    }
    QTEST(QCoreApplication::translate("QPlatformTheme", "Cancel"), "cancel");
    QCOMPARE(translated("Terminal", "%n texts of none", nullptr, 2),
             currentFormats().count(2) + u" texts of none"_s);
    QCOMPARE(currentFormats().language(), language);
    QCOMPARE(QLocale().language(), QLocale(language).language());
}

void LanguageTest::names()
{
    QCOMPARE(LanguageManager::nativeName(u"de"_s), u"Deutsch"_s);
    QCOMPARE(LanguageManager::nativeName(u"pt-BR"_s), u"Português (Brasil)"_s);
    QCOMPARE(LanguageManager::nativeName(u"zh-Hans"_s), u"简体中文"_s);
    QCOMPARE(LanguageManager({u"en"_s}).name(u"zh-Hans"_s), u"Simplified Chinese"_s);
    QCOMPARE(LanguageManager({u"fr"_s}).name(u"de"_s), u"Allemand"_s);
    QVERIFY(LanguageManager({u"de"_s}).systemChoiceName().contains(u"Deutsch"));
}

QTEST_GUILESS_MAIN(LanguageTest)
#include "LanguageTest.moc"

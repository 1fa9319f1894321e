// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "cli/TextWidth.h"
#include "inspection/CapabilityModel.h"
#include "language/LanguageManager.h"
#include "support/runWith.h"

#include <QJsonArray>
#include <QRegularExpression>
#include <QTest>
#include <QXmlStreamReader>

using namespace quillmark;
using namespace Qt::StringLiterals;

namespace {

/// What matches the English texts of the catalogue that are others in the language, with values in their
/// places.
QRegularExpression englishTexts(const QString &language)
{
    QXmlStreamReader xml(
        support::contents(support::sourcePath(u"translations/quillmark_%1.ts"_s.arg(language))));
    QSet<QString> english;
    QSet<QString> same; // "Normal" can be the word in the language too
    QString source;
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement)
            continue;
        if (xml.name() == u"source") {
            source = xml.readElementText();
        } else if (xml.name() == u"translation") {
            const auto text = xml.readElementText(QXmlStreamReader::SkipChildElements).trimmed();
            if (!text.isEmpty())
                (text == source ? same : english) += source;
        }
    }
    static const QRegularExpression place(u"\\\\%\\d"_s);
    QStringList patterns;
    for (const auto &text : english - same)
        patterns += QRegularExpression::escape(text).replace(place, u"[\\d.,]+(?:.[A-Za-z]{2})?"_s);
    return QRegularExpression(QRegularExpression::anchoredPattern(u"(?:%1)"_s.arg(patterns.join(u'|'))));
}

/// The texts of a report that the program made, or may have made.
QStringList textsOf(const QJsonObject &report)
{
    QStringList texts;
    for (const auto &section : report["sections"_L1].toArray()) {
        texts += section["title"_L1].toString();
        for (const auto &item : section["items"_L1].toArray())
            texts += {item["label"_L1].toString(), item["value"_L1].toString()};
    }
    return texts;
}

/// The columns in which the words of the statuses stand: behind the rows, and as values.
QSet<int> placesOfStatuses(const QString &page)
{
    QSet<int> places;
    for (const auto &line : page.split(u'\n')) {
        for (const auto status : inspection::allStatuses) {
            const auto word = u"  "_s + title(status);
            if (line.startsWith("  "_L1) && line.endsWith(word))
                places += cli::textWidth(line.chopped(word.size()));
        }
    }
    return places;
}

} // namespace

class LanguagesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void inspections_data();
    void inspections();
};

void LanguagesTest::inspections_data()
{
    QTest::addColumn<QString>("language");
    for (const auto &language : language::LanguageManager::available())
        QTest::newRow(qPrintable(language)) << language;
}

/// Of each recorded machine: the whole report is in the language, and a terminal shows it in straight
/// columns.
void LanguagesTest::inspections()
{
    QFETCH(const QString, language);
    const auto english = englishTexts(language);
    for (const auto &name : support::recordingNames()) {
        const auto command = u"inspect --language %1 --machine %2"_s.arg(
            language, support::sourcePath(u"machines/%1.json"_s.arg(name)));
        const auto run = support::runWith(command + u" --json"_s);
        QCOMPARE(run.err, QString());
        const auto report = QJsonDocument::fromJson(run.out.toUtf8()).object();
        QCOMPARE(report["language"_L1].toString(), language);
        for (const auto &text : textsOf(report)) {
            const bool isEnglish = language != u"en" && english.match(text).hasMatch();
            QVERIFY2(!isEnglish, qPrintable(u"%1: “%2” is left in English"_s.arg(name, text)));
        }

        const auto page = support::runWith(command, {.columns = 110}).out;
        const auto places = placesOfStatuses(page);
        QVERIFY2(!places.isEmpty() && places.size() <= 2, qPrintable(page));
    }
}

QTEST_GUILESS_MAIN(LanguagesTest)
#include "LanguagesTest.moc"

// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "language/LanguageManager.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>
#include <QXmlStreamReader>

#include <algorithm>

using namespace quillmark::language;
using namespace Qt::StringLiterals;

namespace {

struct Message
{
    QString context;
    QString source;
    bool isCounted = false;
    bool isFinished = true;
    QStringList translations; ///< one, or the plural forms
};

QString fileOf(const QString &language,
               const QString &folder = QStringLiteral(QUILLMARK_SOURCE_DIR "/translations"))
{
    return u"%1/quillmark_%2.ts"_s.arg(folder, language);
}

QByteArray contents(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QList<Message> messagesOf(const QString &language)
{
    QXmlStreamReader xml(contents(fileOf(language)));
    QList<Message> messages;
    QString context;
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement)
            continue;
        if (xml.name() == u"name") {
            context = xml.readElementText();
        } else if (xml.name() == u"message") {
            messages += Message{.context = context, .isCounted = xml.attributes().hasAttribute("numerus"_L1)};
        } else if (xml.name() == u"source") {
            messages.last().source = xml.readElementText();
        } else if (xml.name() == u"translation") {
            auto &message = messages.last();
            message.isFinished = !xml.attributes().hasAttribute("type"_L1);
            if (!message.isCounted)
                message.translations += xml.readElementText();
        } else if (xml.name() == u"numerusform") {
            messages.last().translations += xml.readElementText();
        }
    }
    return messages;
}

/// The plural forms that Qt knows of the language.
qsizetype formsOf(const QString &language)
{
    const QMap<QString, qsizetype> others = {
        {u"ja"_s, 1}, {u"ko"_s, 1}, {u"zh-Hans"_s, 1}, {u"pl"_s, 3}, {u"ar"_s, 6}};
    return others.value(language, 2);
}

/// What a translation must have too: places for values, tags.
QStringList fixedParts(const QString &text)
{
    static const QRegularExpression part(u"%L?(?:n|\\d+)|<[^>]*>"_s);
    QStringList parts;
    for (const auto &match : part.globalMatch(text))
        parts += match.captured();
    parts.sort();
    return parts;
}

/// What is wrong with a translation; empty when nothing is.
QString faultOf(const Message &message, const QString &text)
{
    if (text.isEmpty())
        return u"is empty"_s;
    auto expected = fixedParts(message.source);
    auto given = fixedParts(text);
    // "One scan" may go without its number.
    expected.removeAll(u"%n"_s);
    if (message.isCounted)
        given.removeAll(u"%n"_s);
    if (given != expected)
        return u"has other placeholders or tags"_s;
    if (text.trimmed() != text && message.source.trimmed() == message.source)
        return u"begins or ends with a space"_s;
    if (message.source.endsWith(u'…') != text.endsWith(u'…'))
        return u"has an ellipsis at its end, or lacks it"_s;
    if (text.contains("..."_L1) || text.contains(u'"') || text.contains(u'\''))
        return u"has typewriter's dots or quotation marks"_s;
    if (message.source.count(u'\n') != text.count(u'\n'))
        return u"has other lines"_s;
    static const QRegularExpression mnemonic(u"&\\w"_s);
    return text.contains(mnemonic) && !message.source.contains(mnemonic) ? u"has a mnemonic"_s : QString();
}

} // namespace

class CatalogueTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void languages_data();
    void languages();
    void hasAllTexts();
};

void CatalogueTest::languages_data()
{
    QTest::addColumn<QString>("language");
    for (const auto &language : LanguageManager::available())
        QTest::newRow(qPrintable(language)) << language;
}

void CatalogueTest::languages()
{
    QFETCH(const QString, language);
    const auto messages = messagesOf(language);
    QVERIFY(!messages.isEmpty());
    QStringList faults;
    for (const auto &message : messages) {
        const auto complain = [&](const QString &fault) {
            faults += u"%1: “%2” %3"_s.arg(message.context, message.source, fault);
        };
        // It stands for a class that script/update-translations did not find the context of.
        if (message.context == u"Text")
            complain(u"has no context"_s);
        if (!message.isFinished)
            complain(u"is not translated"_s);
        else if (message.translations.size() != (message.isCounted ? formsOf(language) : 1))
            complain(u"has another count of plural forms"_s);
        else
            for (const auto &text : message.translations) {
                if (const auto fault = faultOf(message, text); !fault.isEmpty())
                    complain(u"– “%1” %2"_s.arg(text, fault));
            }
    }
    QVERIFY2(faults.isEmpty(), qPrintable(faults.join(u'\n')));
}

/// Bringing copies of the catalogues up to date with the sources changes nothing in them.
void CatalogueTest::hasAllTexts()
{
    const QTemporaryDir folder;
    for (const auto &language : LanguageManager::available())
        QVERIFY(QFile::copy(fileOf(language), fileOf(language, folder.path())));
    QProcess script;
    script.start(QStringLiteral(QUILLMARK_SOURCE_DIR "/script/update-translations"), {folder.path()});
    QVERIFY2(script.waitForFinished() && script.exitCode() == 0, script.readAllStandardError().constData());
    for (const auto &language : LanguageManager::available())
        QVERIFY2(contents(fileOf(language)) == contents(fileOf(language, folder.path())),
                 "run script/update-translations, and translate what is new");
}

QTEST_GUILESS_MAIN(CatalogueTest)
#include "CatalogueTest.moc"

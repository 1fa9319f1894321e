// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "support/Certificates.h"
#include "support/FeedServer.h"
#include "support/runWith.h"
#include "update/UpdateChecker.h"

#include <QJsonArray>
#include <QTemporaryDir>
#include <QTest>

using namespace quillmark;
using namespace quillmark::support;
using namespace Qt::StringLiterals;

namespace {

const QByteArray feed =
    "<rss xmlns:sparkle='http://www.andymatuschak.org/xml-namespaces/sparkle'><channel><item>"
    "<link>https://example.com/get</link><sparkle:version>99.0</sparkle:version>"
    "<sparkle:shortVersionString>99</sparkle:shortVersionString>"
    "<sparkle:releaseNotesLink>https://example.com/notes</sparkle:releaseNotesLink>"
    "<description><![CDATA[<ul><li>Faster</li><li>Calmer</li></ul>]]></description>"
    "<pubDate>Mon, 05 Oct 2026 19:20:11 +0000</pubDate></item></channel></rss>";

} // namespace

/// The command, with the module that it loads, against a server on this computer.
class UpdateCommandTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void notAsked();
    void asksOnce_data();
    void asksOnce();
    void agreedForOnce();
    void text();
    void json();
    void ledger();
    void failures_data();
    void failures();

private:
    void setFeed(const QString &address)
    {
        settings::Settings settings;
        settings.setValue(update::feedKey, address);
    }

    QTemporaryDir m_folder;
    Reply m_reply;
    std::unique_ptr<FeedServer> m_server;
};

void UpdateCommandTest::initTestCase()
{
    qputenv("XDG_CONFIG_HOME", QFile::encodeName(m_folder.filePath(u"config"_s)));
    qputenv("XDG_DATA_HOME", QFile::encodeName(m_folder.filePath(u"data"_s)));
    settings::Settings::nameApplication();
    const CertificateAuthority authority;
    auto trusted = QSslConfiguration::defaultConfiguration();
    trusted.addCaCertificate(authority.certificate());
    m_server = std::make_unique<FeedServer>(authority.serverNamed(u"localhost"_s),
                                            [this](const QByteArray &) { return m_reply; });
    QSslConfiguration::setDefaultConfiguration(trusted);
}

void UpdateCommandTest::init()
{
    settings::Settings settings;
    settings.setValue(update::feedKey, m_server->url().toString());
    settings.remove(update::automaticKey);
    QDir(update::UpdateChecker::defaultFolder()).removeRecursively();
    m_reply = answer("200 OK", {}, feed);
    m_server->requests.clear();
}

void UpdateCommandTest::notAsked()
{
    const auto outcome = runWith(u"update"_s);
    QCOMPARE(outcome.status, 1);
    QCOMPARE(outcome.out, QString());
    QCOMPARE(outcome.err, u"quillmark: localhost was not asked, because you have not agreed to it; --yes "
                          u"agrees to this one request, "
                          "and the window's settings change the answer\n"_s);
    QCOMPARE(m_server->requests, QByteArrayList());
    QCOMPARE(runWith(u"update --ledger"_s).out, u"Quillmark has sent no request.\n"_s);
}

void UpdateCommandTest::asksOnce_data()
{
    QTest::addColumn<bool>("answer");
    QTest::newRow("yes") << true;
    QTest::newRow("no") << false;
}

void UpdateCommandTest::asksOnce()
{
    QFETCH(const bool, answer);
    QStringList questions;
    const Terminal terminal{.ask = [&](const QString &question) {
        questions += question;
        return answer ? u"y"_s : u"n"_s;
    }};
    for (int i = 0; i < 2; ++i)
        QCOMPARE(runWith(u"update"_s, terminal).status, answer ? 0 : 1);
    QCOMPARE(questions.size(), 1);
    QVERIFY2(questions.first().contains(u"localhost"_s), qPrintable(questions.first()));
    QCOMPARE(runWith(u"update"_s).status, answer ? 0 : 1); // by the answer that was kept
    QCOMPARE(m_server->requests.size(), answer ? 3 : 0);
}

void UpdateCommandTest::agreedForOnce()
{
    QCOMPARE(runWith(u"update --yes"_s).status, 0);
    QCOMPARE(m_server->requests.size(), 1);
    QCOMPARE(runWith(u"update"_s).status, 1);
    QCOMPARE(m_server->requests.size(), 1);
}

void UpdateCommandTest::text()
{
    const auto version = QStringLiteral(QUILLMARK_VERSION);
    QCOMPARE(runWith(u"update --yes"_s).out, uR"(Quillmark 99 is available. You have version %1.
Download: https://example.com/get
Release notes: https://example.com/notes

• Faster
• Calmer
)"_s.arg(version));
    const auto onLinux = u"update --yes --machine "_s + sourcePath(u"machines/linux-laptop.json"_s);
    QCOMPARE(runWith(onLinux).out, u"Quillmark %1 is up to date.\n"_s.arg(version));
}

void UpdateCommandTest::json()
{
    auto object = QJsonDocument::fromJson(runWith(u"update --yes --json"_s).out.toUtf8()).object();
    QVERIFY(QDateTime::fromString(object.take(u"date"_s).toString(), Qt::ISODate).isValid());
    const QJsonObject expected = {{u"schema"_s, u"update-v1"_s},
                                  {u"version"_s, QStringLiteral(QUILLMARK_VERSION)},
                                  {u"feed"_s, m_server->url().toString()},
                                  {u"status"_s, u"available"_s},
                                  {u"item"_s, QJsonObject{{u"version"_s, u"99.0"_s},
                                                          {u"title"_s, u"99"_s},
                                                          {u"isCritical"_s, false},
                                                          {u"downloadPage"_s, u"https://example.com/get"_s},
                                                          {u"releaseNotes"_s, u"https://example.com/notes"_s},
                                                          {u"notes"_s, u"• Faster\n• Calmer"_s},
                                                          {u"published"_s, u"2026-10-05T19:20:11Z"_s}}}};
    QCOMPARE(object, expected);

    const auto status = [](const QString &arguments) {
        return QJsonDocument::fromJson(runWith(arguments).out.toUtf8())[u"status"_s].toString();
    };
    settings::Settings().setValue(update::skippedVersionKey, u"99.0"_s);
    QCOMPARE(status(u"update --yes --json"_s), u"skipped"_s);
    settings::Settings().remove(update::skippedVersionKey);
    m_reply = answer("200 OK", {}, "<rss/>");
    QCOMPARE(status(u"update --yes --json"_s), u"upToDate"_s);
}

void UpdateCommandTest::ledger()
{
    QCOMPARE(runWith(u"update --ledger --json"_s).out, u"[]\n"_s);
    QCOMPARE(runWith(u"update --yes"_s).status, 0);
    auto entries = QJsonDocument::fromJson(runWith(u"update --ledger --json"_s).out.toUtf8()).array();
    QCOMPARE(entries.size(), 1);
    auto entry = entries.first().toObject();
    QVERIFY(QDateTime::fromString(entry.take(u"date"_s).toString(), Qt::ISODate).isValid());
    QCOMPARE(
        entry,
        QJsonObject({{u"url"_s, m_server->url().toString()}, {u"status"_s, 200}, {u"bytes"_s, feed.size()}}));
    QVERIFY(runWith(u"update --ledger"_s).out.contains(m_server->url().toString()));
    QCOMPARE(runWith(u"update --ledger --yes"_s).status, 2);
    QCOMPARE(m_server->requests.size(), 1);
}

void UpdateCommandTest::failures_data()
{
    QTest::addColumn<QString>("address"); // empty: the server's
    QTest::addColumn<Reply>("reply");
    QTest::addColumn<QString>("expected");
    QTest::newRow("another status") << QString() << answer("404 Not Found")
                                    << u"localhost answered with status 404 instead of a feed."_s;
    QTest::newRow("no feed") << QString() << answer("200 OK", {}, "<html/>")
                             << u"What localhost answered is not a feed: it is another kind of XML."_s;
    QTest::newRow("led on") << QString() << answer("302 Found", "Location: http://\x1b/\r\n")
                            << u"localhost leads to another address, which was not followed: "_s;
    QTest::newRow("not https")
        << u"http://localhost/feed"_s << Reply()
        << u"The address of the update feed is not one of https: http://localhost/feed"_s;
}

void UpdateCommandTest::failures()
{
    QFETCH(const QString, address);
    QFETCH(const Reply, reply);
    QFETCH(const QString, expected);
    m_reply = reply;
    if (!address.isEmpty())
        setFeed(address);
    const auto outcome = runWith(u"update --yes --json"_s);
    QCOMPARE(outcome.status, 1);
    QCOMPARE(outcome.out, QString());
    QCOMPARE(outcome.err, u"quillmark: "_s + expected + u'\n');
    if (!address.isEmpty()) // then there is no host to name in a question either
        QCOMPARE(runWith(u"update"_s, {.ask = [](const QString &) { return u"y"_s; }}).err, outcome.err);
}

QTEST_GUILESS_MAIN(UpdateCommandTest)
#include "UpdateCommandTest.moc"

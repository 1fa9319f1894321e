// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "history/HistoryFile.h"
#include "support/Recordings.h"
#include "support/runWith.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

using namespace quillmark;
using namespace quillmark::support;
using namespace Qt::StringLiterals;

/// Two scans of one Mac, before and after an update that brought Metal 4.
class HistoryCommandTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { qunsetenv("QT_FATAL_WARNINGS"); } // a save that fails is logged as a warning
    void init();
    void list();
    void narrowList();
    void show();
    void compare();
    void scansMeant_data();
    void scansMeant();
    void removeAndClear();
    void failures();

private:
    Outcome history(const QString &arguments, const Terminal &terminal = {}) const
    {
        return runWith(u"history %1 --history %2"_s.arg(arguments, m_file), terminal);
    }
    QJsonDocument historyJson(const QString &arguments) const
    {
        return QJsonDocument::fromJson(history(arguments + u" --json"_s).out.toUtf8());
    }
    QString recorded(QByteArray recording) const
    {
        const auto path = m_folder->filePath(u"machine.json"_s);
        write(path, recording);
        return history(u"record --machine %1"_s.arg(path)).out;
    }
    static void write(const QString &path, const QByteArray &text)
    {
        QFile file(path);
        if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size())
            qFatal("%s", qPrintable(file.errorString()));
    }
    QByteArray stored() const
    {
        QFile file(m_file);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    QString m_file;
};

void HistoryCommandTest::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    m_file = m_folder->filePath(u"History/snapshots.json"_s);
    const auto before = recordingText(u"macbook-pro-m3-max"_s);
    auto after = QJsonDocument::fromJson(before).object();
    after[u"operatingSystem"_s] =
        QJsonObject{{u"name"_s, u"macOS"_s}, {u"major"_s, 26}, {u"minor"_s, 1}, {u"patch"_s, 0}};
    auto graphics = after[u"graphics"_s].toObject();
    auto device = graphics[u"devices"_s].toArray()[0].toObject();
    auto families = device[u"families"_s].toArray();
    families += 5002; // Metal 4
    device[u"families"_s] = families;
    graphics[u"devices"_s] = QJsonArray{device};
    after[u"graphics"_s] = graphics;
    QCOMPARE(recorded(before).left(5), u"Scan "_s);
    QCOMPARE(recorded(QJsonDocument(after).toJson()).right(11), u"was saved.\n"_s);
    QVERIFY(recorded(QJsonDocument(after).toJson()).startsWith(u"Nothing has changed"));
}

void HistoryCommandTest::list()
{
    const auto scans = historyJson(u"list"_s).array();
    const auto file = QJsonDocument::fromJson(stored()).array();
    QCOMPARE(scans.size(), 2);
    for (qsizetype i = 0; i < scans.size(); ++i) {
        auto scan = scans[i].toObject();
        const auto counts = scan.take(u"counts"_s).toObject();
        const auto supported = counts[u"supported"_s].toDouble();
        const auto rated = supported + counts[u"unsupported"_s].toDouble() + counts[u"warning"_s].toDouble();
        QCOMPARE(scan.take(u"score"_s).toDouble(), supported / rated);
        for (const auto &name : {u"chip"_s, u"sections"_s})
            QVERIFY(!scan.contains(name));
        for (const auto &name : scan.keys())
            QCOMPARE(scan[name], file[i].toObject()[name]);
        QCOMPARE(scan.size(), 6);
    }
    const auto page = history(u"list"_s).out;
    QVERIFY(page.contains(scans[0].toObject()[u"id"_s].toString().first(8)));
    QVERIFY2(page.contains(u"First scan"), qPrintable(page));
    QVERIFY2(page.contains(u" changed"), qPrintable(page));
}

/// What matters least goes first; no line is wider than the terminal.
void HistoryCommandTest::narrowList()
{
    for (const int columns : {120, 80, 50, 36}) {
        const auto page = history(u"list"_s, {.columns = columns, .color = false}).out;
        for (const auto &line : page.split(u'\n'))
            QVERIFY2(line.size() <= columns, qPrintable(line));
        QVERIFY(page.contains(u"Taken"));
        QCOMPARE(page.contains(u"macOS 26.1"), columns >= 120);
    }
}

void HistoryCommandTest::show()
{
    const auto shown = history(u"show 1 --json"_s).out.toUtf8();
    QVERIFY(shown.endsWith("}\n"));
    QVERIFY(stored().contains(shown.trimmed()));
    const auto page = history(u"show 1"_s).out;
    QVERIFY2(page.startsWith(u"Scan of ") && page.contains(u"Capability score") &&
                 page.contains(u"Graphics & Metal"),
             qPrintable(page));
}

void HistoryCommandTest::compare()
{
    const auto changes = historyJson(u"compare 1 0"_s).array();
    QCOMPARE(changes.size(), 2);
    const QJsonObject metal{{u"section"_s, u"Graphics & Metal"_s},
                            {u"label"_s, u"Metal 4"_s},
                            {u"oldValue"_s, u"Requires macOS 26"_s},
                            {u"newValue"_s, u"Supported"_s}};
    QCOMPARE(changes[1].toObject(), metal);

    const auto page = history(u"compare 1 0"_s, {.columns = 100, .color = false}).out;
    QVERIFY2(page.startsWith(u"2 changed\n"), qPrintable(page));
    QVERIFY2(page.contains(u"  ~ Metal 4           Requires macOS 26 · Not supported → Supported"),
             qPrintable(page));
    // In the order typed, whichever is the older.
    QCOMPARE(historyJson(u"compare 0 1"_s).array()[1].toObject()[u"newValue"_s], metal[u"oldValue"_s]);
    QVERIFY(history(u"compare 0 0"_s).out.startsWith(u"No differences\n"));
    QCOMPARE(history(u"compare 0 0 --json"_s).out, u"[]\n"_s);

    // The same text with another status, a row less, a row more.
    auto other = QJsonDocument::fromJson(stored()).array();
    auto text = QJsonDocument(other[0].toObject()).toJson(QJsonDocument::Compact);
    text.replace(R"("label":"Metal 3","status":"supported")", R"("label":"Metal 3","status":"warning")");
    text.replace(R"("key":"bf16","label":"BF16)", R"("key":"new","label":"BF17)");
    other[0] = QJsonDocument::fromJson(text).object();
    write(m_file, QJsonDocument(other).toJson());
    const auto odd = history(u"compare 1 0"_s).out;
    QVERIFY2(odd.contains(u"Supported → Supported · Warning"), qPrintable(odd));
    QVERIFY2(odd.contains(u"+ BF17"), qPrintable(odd));
    QVERIFY2(odd.contains(u"− BF16"), qPrintable(odd));
}

void HistoryCommandTest::scansMeant_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("expected"); // the device's name, or what the error says

    QTest::newRow("newest") << u"0"_s << u"first"_s;
    QTest::newRow("position") << u"2"_s << u"third"_s;
    QTest::newRow("past the end") << u"3"_s << u"there is no scan '3'"_s;
    QTest::newRow("whole") << u"ABCD0000-0000-4000-8000-000000000002"_s << u"second"_s;
    QTest::newRow("prefix in small letters") << u"abcd0000-0000-4000-8000-000000000001"_s << u"first"_s;
    QTest::newRow("prefix of one") << u"1234"_s << u"third"_s;
    QTest::newRow("prefix of two") << u"abcd"_s << u"more than one scan"_s;
    QTest::newRow("prefix of none") << u"ffff"_s << u"there is no scan 'ffff'"_s;
    QTest::newRow("too short") << u"abc"_s << u"names no scan"_s;
    QTest::newRow("no name at all") << u"latest"_s << u"names no scan"_s;
}

void HistoryCommandTest::scansMeant()
{
    QFETCH(QString, typed);
    QFETCH(QString, expected);
    const auto scan = [](const char *id, const char *date, const char *name) {
        return QByteArray(R"({"id":")") + id + R"(","date":")" + date + R"(","deviceName":")" + name +
               R"(","modelIdentifier":"M","chip":"C","osVersion":"O","sections":[]})";
    };
    write(m_file, '[' + scan("ABCD0000-0000-4000-8000-000000000002", "2026-01-02T00:00:00Z", "second") + ',' +
                      scan("ABCD0000-0000-4000-8000-000000000001", "2026-01-03T00:00:00Z", "first") + ',' +
                      scan("12340000-0000-4000-8000-000000000003", "2026-01-01T00:00:00Z", "third") + ']');
    const auto outcome = history(u"show %1"_s.arg(typed));
    const auto &text = outcome.status == 0 ? outcome.out : outcome.err;
    QVERIFY2(text.contains(expected), qPrintable(text));
    QCOMPARE(outcome.status, text.contains(u"names no scan") ? 2 : outcome.err.isEmpty() ? 0 : 1);
}

void HistoryCommandTest::removeAndClear()
{
    QCOMPARE(history(u"remove 1"_s).status, 0);
    QCOMPARE(historyJson(u"list"_s).array().size(), 1);
    QString asked;
    const auto refuse = [&](const QString &question) {
        asked = question;
        return u"nö"_s;
    };
    const auto refused = history(u"clear"_s, {.columns = 80, .ask = refuse});
    QCOMPARE(refused.status, 1);
    QVERIFY2(asked.startsWith(u"1 saved scan will be"), qPrintable(asked));
    QCOMPARE(historyJson(u"list"_s).array().size(), 1);
    QCOMPARE(history(u"clear --yes"_s, {.columns = 80, .ask = refuse}).status, 0);
    QCOMPARE(stored(), "[]");

    const auto agree = [](const QString &) { return u"Tak "_s; };
    for (const auto &[command, left] : {std::pair(u"clear"_s, 1), std::pair(u"clear --language pl"_s, 0)}) {
        history(u"record"_s);
        history(command, {.columns = 80, .ask = agree});
        QCOMPARE(historyJson(u"list"_s).array().size(), left);
    }
    QVERIFY(history(u"list"_s).out.startsWith(u"No saved scans yet"));
}

/// Each has its reason, and nothing is lost.
void HistoryCommandTest::failures()
{
    history::HistoryFile window(m_file);
    window.read();
    QVERIFY(window.claim());
    const auto before = stored();
    const QRegularExpression logged(u"could not save snapshots: another Quillmark"_s);
    QTest::ignoreMessage(QtWarningMsg, logged);
    const auto held = history(u"remove 0"_s);
    QCOMPARE(held.status, 1);
    QVERIFY2(held.err.startsWith(u"quillmark: %1: another Quillmark"_s.arg(m_file)), qPrintable(held.err));
    QCOMPARE(stored(), before);

    m_file = m_folder->path();
    const auto folder = history(u"list"_s);
    QCOMPARE(folder.status, 1);
    QVERIFY2(folder.err.contains(u"directory"), qPrintable(folder.err));

    // What cannot be looked at is not an empty history.
    m_file = m_folder->filePath(u"broken.json/inside.json"_s);
    write(m_folder->filePath(u"broken.json"_s), "");
    for (const auto &command : {u"list"_s, u"list --json"_s, u"show 0"_s}) {
        const auto unreachable = history(command);
        QCOMPARE(unreachable.status, 1);
        QVERIFY2(unreachable.err.contains(u"Not a directory"), qPrintable(unreachable.err));
    }

    m_file = m_folder->filePath(u"broken.json"_s);
    write(m_file, R"([{"id": 7}])");
    const auto broken = history(u"list"_s);
    QCOMPARE(broken.status, 1);
    QVERIFY2(broken.err.contains(u"broken.json") && broken.err.contains(u"id"), qPrintable(broken.err));
}

QTEST_GUILESS_MAIN(HistoryCommandTest)
#include "HistoryCommandTest.moc"

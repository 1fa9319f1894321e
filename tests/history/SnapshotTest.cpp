// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "history/SnapshotChange.h"
#include "history/snapshotJson.h"
#include "support/Rows.h"

#include <QHash>
#include <QTest>

#include <random>

using namespace quillmark;
using namespace quillmark::history;
using namespace quillmark::support;
using namespace Qt::StringLiterals;

namespace {

/// A snapshot of the lines: "[key] Title" begins a section, "key | label | value | status" is a row,
/// "volatile" after it marks it; a key may be left empty.
ScanSnapshot snapshotOf(const QStringList &lines, std::optional<QString> language = u"en"_s)
{
    const auto optional = [](const QString &key) {
        return key.isEmpty() ? std::nullopt : std::optional(key);
    };
    ScanSnapshot snapshot{.id = inspection::freshId(),
                          .date = QDateTime::fromSecsSinceEpoch(1795379732, Qt::UTC),
                          .deviceName = u"Ada’s Mac"_s,
                          .modelIdentifier = u"Mac15,3"_s,
                          .chip = u"Apple M3"_s,
                          .osVersion = u"macOS 15.0"_s,
                          .language = std::move(language)};
    for (const auto &line : lines) {
        if (line.startsWith(u'[')) {
            const auto end = line.indexOf(u']');
            snapshot.sections.append(
                {line.mid(end + 1).trimmed(), u"cpu"_s, {}, optional(line.mid(1, end - 1))});
            continue;
        }
        auto fields = line.split(u'|');
        for (auto &field : fields)
            field = field.trimmed();
        snapshot.sections.last().items.append({fields[1], fields[2],
                                               *inspection::statusFromRawValue(fields[3]),
                                               optional(fields[0]), fields.size() > 4});
    }
    return snapshot;
}

/// "section/label: old -> new" for each change; "-" for a value that there is not.
QStringList changesBetween(const ScanSnapshot &older, const ScanSnapshot &newer)
{
    QStringList lines;
    for (const auto &change : changeRows(diff(older, newer)))
        lines += u"%1/%2: %3 -> %4"_s.arg(change.section, change.label, change.oldValue.value_or(u"-"_s),
                                          change.newValue.value_or(u"-"_s));
    return lines;
}

/// The comparison as it is defined: by the texts of entries().
QList<SnapshotChange> plainDiff(const ScanSnapshot &older, const ScanSnapshot &newer)
{
    const auto byKey = [](const QList<std::pair<QString, Entry>> &all) {
        QHash<QString, Entry> result;
        for (const auto &[key, entry] : all)
            result.insert(key, entry);
        return result;
    };
    const auto oldEntries = entries(older);
    const auto newEntries = entries(newer);
    const auto oldByKey = byKey(oldEntries);
    const auto newByKey = byKey(newEntries);
    QList<SnapshotChange> changes;
    for (const auto &[key, entry] : newEntries) {
        const auto old = oldByKey.find(key);
        if (old == oldByKey.end())
            changes.append({entry.section, entry.item.label, std::nullopt, entry.item.value});
        else if (old->item.status != entry.item.status ||
                 (older.language == newer.language && old->item.value != entry.item.value))
            changes.append({entry.section, entry.item.label, old->item.value, entry.item.value});
    }
    for (const auto &[key, entry] : oldEntries) {
        if (!newByKey.contains(key))
            changes.append({entry.section, entry.item.label, entry.item.value, std::nullopt});
    }
    return changes;
}

bool isDigestOf(const ScanDigest &digest, const ScanSnapshot &snapshot)
{
    const auto counts = countsOf(snapshot);
    return digest.id == snapshot.id && digest.date == snapshot.date &&
           digest.deviceName == snapshot.deviceName && digest.modelIdentifier == snapshot.modelIdentifier &&
           digest.chip == snapshot.chip && digest.osVersion == snapshot.osVersion &&
           digest.language == snapshot.language &&
           std::ranges::all_of(inspection::allStatuses, [&](inspection::CapabilityStatus status) {
               return digest.counts.of(status) == counts.of(status);
           });
}

/// The beginning of snapshotOf({}) in a file.
QByteArray head()
{
    return R"({"id":"E621E1F8-C36C-495A-93FC-0C247A3E6E5F","date":"2026-11-22T20:35:32Z",)"
           R"("deviceName":"Ada’s Mac","modelIdentifier":"Mac15,3","chip":"Apple M3",)"
           R"("osVersion":"macOS 15.0",)";
}

} // namespace

class SnapshotTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void form();
    void otherForms_data();
    void otherForms();
    void refuses_data();
    void refuses();
    void newestFirst();
    void keys();
    void differences_data();
    void differences();
    void comparesAsDefined();
};

/// The very bytes, which other programs read.
void SnapshotTest::form()
{
    auto snapshot = snapshotOf({u"[processor] Processor / Memory"_s, u"cores | Cores | 8 | info"_s,
                                u" | Load | 12 % | warning | volatile"_s, u"[] Empty"_s});
    snapshot.id = QUuid::fromString(u"e621e1f8-c36c-495a-93fc-0c247a3e6e5f"_s);
    const QByteArray sections =
        R"("sections":[{"title":"Processor / Memory","symbol":"cpu","items":[)"
        R"({"label":"Cores","value":"8","status":"info","isVolatile":false,"key":"cores"},)"
        R"({"label":"Load","value":"12 %","status":"warning","isVolatile":true}],"key":"processor"},)"
        R"({"title":"Empty","symbol":"cpu","items":[]}])";
    QCOMPARE(encoded(snapshot), head() + sections + R"(,"language":"en"})");
    const auto text = '[' + encoded(snapshot) + ']';
    const auto decoded = decodeHistory(text);
    QVERIFY(decoded && decoded->size() == 1);
    QCOMPARE(decoded->front().snapshot, snapshot);
    QCOMPARE(decoded->front().json.toByteArray(), encoded(snapshot));
    QVERIFY(isDigestOf(decodeDigests(text).value().front(), snapshot));

    snapshot.language.reset();
    QCOMPARE(encoded(snapshot), head() + sections + '}');
}

void SnapshotTest::otherForms_data()
{
    QTest::addColumn<QByteArray>("sections");
    QTest::newRow("no language") << QByteArray(R"([])");
    QTest::newRow("null where there may be none") << QByteArray(
        R"([{"title":"a","symbol":"b","items":[{"key":null,"label":"c","value":"d","status":"info","isVolatile":false}],"key":null}],"language":null)");
    QTest::newRow("another order, spaces, unknown members, escapes") << QByteArray(
        R"([ { "future": [{"a": [1, {}]}, null], "items": [{"isVolatile": false, "status": "info",
            "value": "\u0064", "label": "c", "id": 5}], "symbol": "b", "title": "a"} ], "version": 2)");
}

void SnapshotTest::otherForms()
{
    QFETCH(const QByteArray, sections);
    const auto text = '[' + head() + R"("sections":)" + sections + "}]";
    const auto decoded = decodeHistory(text);
    QVERIFY2(decoded, decoded ? "" : qPrintable(decoded.error()));
    const auto &snapshot = decoded->front().snapshot;
    QCOMPARE(snapshot.language, std::nullopt);
    QVERIFY(isDigestOf(decodeDigests(text).value().front(), snapshot));
    if (sections != "[]")
        QCOMPARE(snapshot.sections,
                 (QList<ScanSnapshot::Section>{{u"a"_s, u"b"_s, {{u"c"_s, u"d"_s}}, std::nullopt}}));
}

void SnapshotTest::refuses_data()
{
    QTest::addColumn<QByteArray>("from"); // in a good file
    QTest::addColumn<QByteArray>("to");
    QTest::addColumn<QString>("fault");
    const auto date = u"scan 2: \"date\" must be a date like 2026-11-22T20:35:32Z"_s;
    for (const char *wrong :
         {"2026-11-22T20:35:32", "2026-11-22T20:35:32.0Z", "2026-11-22T20:35:32+00:00",
          "2026-11-22 20:35:32Z", "2026-11-22t20:35:32z", "2026-02-29T00:00:00Z", "2026-13-01T00:00:00Z",
          "2026-00-10T00:00:00Z", "2026-11-22T24:00:00Z", "2026-11-22T23:59:60Z", "0000-01-01T00:00:00Z",
          "+026-11-22T20:35:32Z", " 2026-11-22T20:35:32Z", "2026-11-22", ""})
        QTest::addRow("date '%s'", wrong) << QByteArray("2026-11-22T20:35:32Z") << QByteArray(wrong) << date;
    const auto row = [](const char *from, const char *to, const QString &fault) {
        QTest::addRow("%s: %s", from, to) << QByteArray(from) << QByteArray(to) << fault;
    };
    row(R"("2026-11-22T20:35:32Z")", "1795379732", date);
    row("E621E1F8-", "E621E1F8", u"scan 2: \"id\" must be a UUID"_s);
    row("\"E6", "\"{E6", u"scan 2: \"id\" must be a UUID"_s);
    row("\"osVersion\"", "\"osversion\"", u"scan 2 lacks \"osVersion\""_s);
    row("\"isVolatile\"", "\"volatile\"", u"scan 2 lacks \"isVolatile\""_s);
    row("\"symbol\"", "\"Symbol\"", u"scan 2 lacks \"symbol\""_s);
    row(R"("Apple M3")", "null", u"scan 2: \"chip\" must be a text"_s);
    row(R"("value":"d")", R"("value":5)", u"scan 2: \"value\" must be a text"_s);
    row("false", "0", u"scan 2: \"isVolatile\" must be true or false"_s);
    row("\"info\"", "\"Info\"", u"scan 2: \"status\" must be a status"_s);
    row(R"("key":"k")", R"("key":1)", u"scan 2: \"key\" must be a text"_s);
    row(R"({"label")", R"(["label")", u"scan 2: \"items\" must be an object"_s);
    row(R"("sections":[)", R"("sections":[5,)", u"scan 2: \"sections\" must be an object"_s);
    row("}]}]}", "}]}]},", u"not JSON: line 1, column 592: this is no value"_s);
    row("}]}]}]", "}]}]}] 1", u"not JSON: line 1, column 593: something follows the end of the value"_s);
    row("}]}]}]", "", u"not JSON: line 1, column 586: a comma or the end of the object is missing"_s);
}

/// One fault, and the file is none of ours.
void SnapshotTest::refuses()
{
    QFETCH(const QByteArray, from);
    QFETCH(const QByteArray, to);
    const QByteArray good =
        head() +
        R"("sections":[{"title":"a","symbol":"b","items":[{"label":"c","value":"d","status":"info","isVolatile":false,"key":"k"}]}]})";
    auto text = '[' + good + ',' + good + ']';
    QVERIFY(decodeHistory(text));
    const auto place = text.lastIndexOf(from);
    QVERIFY(place > 0);
    text.replace(place, from.size(), to);
    const auto decoded = decodeHistory(text);
    QVERIFY(!decoded);
    QTEST(decoded.error(), "fault");
    QCOMPARE(decodeDigests(text).error(), decoded.error());
    for (const char *noHistory : {"{}", "null", "", "\"[]\""})
        QVERIFY2(!decodeHistory(noHistory), noHistory);
}

void SnapshotTest::newestFirst()
{
    QByteArray text;
    for (const char *dateAndName : {"2025-01-01T00:00:00Z a", "2027-01-01T00:00:00Z b",
                                    "2026-01-01T00:00:00Z c", "2027-01-01T00:00:00Z d"}) {
        auto snapshot = snapshotOf({});
        snapshot.date = QDateTime::fromString(QString::fromLatin1(dateAndName).left(20), Qt::ISODate);
        snapshot.chip = QChar::fromLatin1(dateAndName[21]);
        text += (text.isEmpty() ? "[" : ",") + encoded(snapshot);
    }
    text += ']';
    const auto decoded = decodeHistory(text);
    QVERIFY(decoded);
    const auto digests = decodeDigests(text);
    QVERIFY(digests);
    QString order;
    for (const auto &stored : *decoded)
        order += stored.snapshot.chip;
    for (const auto &digest : *digests)
        order += digest.chip;
    QCOMPARE(order, u"bdcabdca"_s);
}

void SnapshotTest::keys()
{
    const auto snapshot = snapshotOf({u"[gpu] Graphics"_s, u"name | GPU | A | info"_s, u" | GPU | B | info"_s,
                                      u" | GPU | C | info"_s, u" | Load | 5 | info | volatile"_s,
                                      u" | GPU | D | info"_s, u"[] Graphics/A"_s, u" | B | E | info"_s,
                                      u"[] Graphics"_s, u" | A/B | F | info"_s, u" | A/B#2 | G | info"_s});
    QStringList actual;
    for (const auto &[key, entry] : entries(snapshot))
        actual += u"%1 = %2 %3"_s.arg(key, entry.section, entry.item.value);
    QVERIFY(
        sameLines(actual, {u"gpu/name = Graphics A"_s, u"gpu/GPU = Graphics B"_s, u"gpu/GPU#2 = Graphics C"_s,
                           u"gpu/GPU#3 = Graphics D"_s, u"Graphics/A/B = Graphics/A E"_s,
                           u"Graphics/A/B#2 = Graphics F"_s, u"Graphics/A/B#2 = Graphics G"_s}));
}

void SnapshotTest::differences_data()
{
    QTest::addColumn<QStringList>("older");
    QTest::addColumn<QStringList>("newer");
    QTest::addColumn<QStringList>("changes");
    const QStringList base = {u"[a] A"_s, u"x | X | 1 | info"_s, u"y | Y | 2 | supported"_s};
    QTest::newRow("added and changed in the new order, then removed")
        << QStringList{u"[a] A"_s, u"r | R | 0 | info"_s, u"x | X | 1 | info"_s, u"[b] B"_s,
                       u"s | S | 9 | info"_s}
        << QStringList{u"[b] B2"_s, u"n | N | 3 | info"_s, u"[a] A"_s, u"x | X2 | 7 | info"_s}
        << QStringList{u"B2/N: - -> 3"_s, u"A/X2: 1 -> 7"_s, u"A/R: 0 -> -"_s, u"B/S: 9 -> -"_s};
    QTest::newRow("status alone") << base
                                  << QStringList{u"[a] A"_s, u"x | X | 1 | info"_s, u"y | Y | 2 | warning"_s}
                                  << QStringList{u"A/Y: 2 -> 2"_s};
    QTest::newRow("volatile rows, titles and labels of what has a key")
        << base + QStringList{u"v | V | 5 | info | volatile"_s}
        << QStringList{u"[a] Other"_s, u"y | Other | 2 | supported"_s, u"x | X | 1 | info"_s,
                       u"w | W | 6 | info | volatile"_s}
        << QStringList{};
    QTest::newRow("another title of a section without a key")
        << QStringList{u"[] A"_s, u"x | X | 1 | info"_s} << QStringList{u"[] B"_s, u"x | X | 1 | info"_s}
        << QStringList{u"B/X: - -> 1"_s, u"A/X: 1 -> -"_s};
    QTest::newRow("the first of two alike is gone")
        << QStringList{u"[a] A"_s, u" | X | 1 | info"_s, u" | X | 2 | info"_s}
        << QStringList{u"[a] A"_s, u" | X | 2 | info"_s} << QStringList{u"A/X: 1 -> 2"_s, u"A/X: 2 -> -"_s};
}

void SnapshotTest::differences()
{
    QFETCH(const QStringList, older);
    QFETCH(const QStringList, newer);
    QFETCH(const QStringList, changes);
    QVERIFY(sameLines(changesBetween(snapshotOf(older), snapshotOf(newer)), changes));
    QVERIFY(diff(snapshotOf(newer), snapshotOf(newer)).isEmpty());

    // In different languages all values differ, and only statuses, new and missing rows are told.
    QStringList inAnyLanguage = changes;
    inAnyLanguage.removeIf([](const QString &line) {
        const auto values = line.section(u": "_s, 1).split(u" -> "_s);
        return !values.contains(u"-"_s) && values[0] != values[1];
    });
    for (const auto &language : {std::optional(u"de"_s), std::optional<QString>()})
        QVERIFY(sameLines(changesBetween(snapshotOf(older), snapshotOf(newer, language)), inAnyLanguage));
    QVERIFY(sameLines(changesBetween(snapshotOf(older, {}), snapshotOf(newer, {})), changes));
}

/// On snapshots full of like rows, keys with "/" and "#", and rows out of order.
void SnapshotTest::comparesAsDefined()
{
    std::mt19937 random(20260301);
    const auto pick = [&random](std::initializer_list<const char *> texts) {
        return QString::fromLatin1(texts.begin()[random() % texts.size()]);
    };
    const auto randomSnapshot = [&] {
        QStringList lines;
        for (auto sections = random() % 4; sections > 0; --sections) {
            lines += u"[%1] %2"_s.arg(pick({"", "", "k", "a/b"}), pick({"a", "b", "a/b", ""}));
            for (auto items = random() % 6; items > 0; --items)
                lines += u"%1 | %2 | %3 | %4%5"_s.arg(
                    pick({"", "", "m", "b/m"}), pick({"b", "m", "b/m", ""}), pick({"1", "1", "2"}),
                    pick({"info", "info", "warning"}), pick({"", "", "", "| volatile"}));
        }
        return snapshotOf(lines, random() % 3 == 0 ? std::nullopt : std::optional(u"en"_s));
    };
    for (int i = 0; i < 20000; ++i) {
        const auto older = randomSnapshot();
        const auto newer = randomSnapshot();
        if (diff(older, newer) != plainDiff(older, newer))
            QCOMPARE(encoded(older) + "\n" + encoded(newer), QByteArray());
    }
}

QTEST_GUILESS_MAIN(SnapshotTest)
#include "SnapshotTest.moc"

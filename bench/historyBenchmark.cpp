// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "history/ScanHistory.h"
#include "support/Snapshots.h"

#include <QJsonArray>
#include <QTemporaryDir>

#include <chrono>
#include <cstdio>

#include <benchmark/benchmark.h>
#include <fcntl.h>
#include <unistd.h>

namespace {

using namespace quillmark;
using namespace quillmark::history;
using namespace Qt::StringLiterals;

constexpr int fullHistory = ScanHistory::mostSnapshots;

QByteArray joined(const QList<ScanSnapshot> &snapshots)
{
    QByteArray text;
    text.reserve(3'000'000);
    for (const auto &snapshot : snapshots) {
        text += text.isEmpty() ? '[' : ',';
        text += encoded(snapshot);
    }
    return text + ']';
}

const QList<ScanSnapshot> &exampleHistory()
{
    static const auto history = support::laptopHistory(fullHistory);
    return history;
}

const QByteArray &exampleText()
{
    static const auto text = joined(exampleHistory());
    return text;
}

// What Qt's own JSON takes for the same.

std::optional<QString> optionalText(const QJsonValue &value)
{
    return value.isString() ? std::optional(value.toString()) : std::nullopt;
}

QList<ScanSnapshot> decodedByQt(const QByteArray &text)
{
    QList<ScanSnapshot> snapshots;
    const auto document = QJsonDocument::fromJson(text);
    for (const auto &snapshotValue : document.array()) {
        const auto object = snapshotValue.toObject();
        ScanSnapshot snapshot{.id = QUuid::fromString(object[u"id"_s].toString()),
                              .date = QDateTime::fromString(object[u"date"_s].toString(), Qt::ISODate),
                              .deviceName = object[u"deviceName"_s].toString(),
                              .modelIdentifier = object[u"modelIdentifier"_s].toString(),
                              .chip = object[u"chip"_s].toString(),
                              .osVersion = object[u"osVersion"_s].toString(),
                              .language = optionalText(object[u"language"_s])};
        for (const auto &sectionValue : object[u"sections"_s].toArray()) {
            const auto section = sectionValue.toObject();
            QList<ScanSnapshot::Item> items;
            for (const auto &itemValue : section[u"items"_s].toArray()) {
                const auto item = itemValue.toObject();
                items.append({item[u"label"_s].toString(), item[u"value"_s].toString(),
                              inspection::statusFromRawValue(item[u"status"_s].toString())
                                  .value_or(inspection::CapabilityStatus::Info),
                              optionalText(item[u"key"_s]), item[u"isVolatile"_s].toBool()});
            }
            snapshot.sections.append({section[u"title"_s].toString(), section[u"symbol"_s].toString(),
                                      std::move(items), optionalText(section[u"key"_s])});
        }
        snapshots.append(std::move(snapshot));
    }
    return snapshots;
}

QByteArray encodedByQt(const QList<ScanSnapshot> &snapshots)
{
    const auto insertOptional = [](QJsonObject &object, const QString &name, const auto &text) {
        if (text)
            object.insert(name, *text);
    };
    QJsonArray history;
    for (const auto &snapshot : snapshots) {
        QJsonArray sections;
        for (const auto &section : snapshot.sections) {
            QJsonArray items;
            for (const auto &item : section.items) {
                QJsonObject object{{u"label"_s, item.label},
                                   {u"value"_s, item.value},
                                   {u"status"_s, rawValue(item.status)},
                                   {u"isVolatile"_s, item.isVolatile}};
                insertOptional(object, u"key"_s, item.key);
                items.append(object);
            }
            QJsonObject object{
                {u"title"_s, section.title}, {u"symbol"_s, section.symbol}, {u"items"_s, items}};
            insertOptional(object, u"key"_s, section.key);
            sections.append(object);
        }
        QJsonObject object{{u"id"_s, snapshot.id.toString(QUuid::WithoutBraces)},
                           {u"date"_s, snapshot.date.toString(Qt::ISODate)},
                           {u"deviceName"_s, snapshot.deviceName},
                           {u"modelIdentifier"_s, snapshot.modelIdentifier},
                           {u"chip"_s, snapshot.chip},
                           {u"osVersion"_s, snapshot.osVersion},
                           {u"sections"_s, sections}};
        insertOptional(object, u"language"_s, snapshot.language);
        history.append(object);
    }
    return QJsonDocument(history).toJson(QJsonDocument::Compact);
}

void decodeHistoryByQt(benchmark::State &state)
{
    if (decodedByQt(exampleText()) != exampleHistory())
        state.SkipWithError("does not decode the same");
    for (auto _ : state)
        benchmark::DoNotOptimize(decodedByQt(exampleText()));
}

void decodeHistoryOfOurs(benchmark::State &state)
{
    for (auto _ : state)
        benchmark::DoNotOptimize(decodeHistory(exampleText()));
    state.counters["bytes"] = static_cast<double>(exampleText().size());
}

void encodeHistoryByQt(benchmark::State &state)
{
    for (auto _ : state)
        benchmark::DoNotOptimize(encodedByQt(exampleHistory()));
}

void encodeHistoryOfOurs(benchmark::State &state)
{
    for (auto _ : state)
        benchmark::DoNotOptimize(joined(exampleHistory()));
}

/// How long the window stands still: the first change after the start, which takes the file, and later ones.
void recordIntoFullHistory(benchmark::State &state)
{
    const QTemporaryDir folder;
    const auto path = folder.filePath(u"snapshots.json"_s);
    static_cast<void>(HistoryFile(path).write({exampleText().sliced(1).chopped(1)}));
    const language::LanguageManager language;
    ScanHistory history(language, path);
    auto inspection =
        support::inspectionOf(*support::machineFrom(support::recordingText(u"macbook-pro-m3-max"_s)));
    double longest = 0;
    int number = 0;
    for (auto _ : state) {
        inspection.sections.first().items.first().value = QString::number(++number);
        const auto start = std::chrono::steady_clock::now();
        history.record(inspection.summary, inspection.sections);
        const std::chrono::duration<double> time = std::chrono::steady_clock::now() - start;
        state.SetIterationTime(time.count());
        longest = std::max(longest, time.count());
        if (!history.flush() || history.snapshots().size() != fullHistory)
            state.SkipWithError("not saved");
    }
    state.counters["longest_ms"] = 1000 * longest;
}

/// Two scans of that many rows: a hundredth is gone, as many are new, a tenth has changed.
void compareSnapshots(benchmark::State &state)
{
    const int rows = static_cast<int>(state.range(0));
    ScanSnapshot older;
    ScanSnapshot newer;
    for (int i = 0; i < rows; ++i) {
        if (i % 10 == 0) {
            const auto name = u"Section %1"_s.arg(i / 10);
            for (auto *snapshot : {&older, &newer})
                snapshot->sections.append({name, {}, {}, name});
        }
        const ScanSnapshot::Item item{
            .label = u"Row %1"_s.arg(i), .value = u"value %1"_s.arg(i), .key = u"row.number.%1"_s.arg(i)};
        auto changed = item;
        changed.value += i % 10 == 5 ? u" changed"_s : QString();
        if (i % 100 != 33)
            newer.sections.last().items.append(changed);
        if (i % 100 != 66)
            older.sections.last().items.append(item);
    }
    for (auto _ : state)
        benchmark::DoNotOptimize(diff(older, newer));
}

void saveHistory(benchmark::State &state)
{
    const QTemporaryDir folder;
    HistoryFile file(folder.filePath(u"snapshots.json"_s));
    QList<QByteArray> snapshots;
    for (const auto &snapshot : exampleHistory())
        snapshots += encoded(snapshot);
    for (auto _ : state) {
        if (!file.write(snapshots))
            state.SkipWithError("not saved");
    }
}

/// The least that a save can be: a temporary file, fsync, rename.
void saveByHand(benchmark::State &state)
{
    const QTemporaryDir folder;
    const auto path = folder.filePath(u"snapshots.json"_s).toLocal8Bit();
    const QByteArray temporary = path + ".new";
    for (auto _ : state) {
        const int descriptor = open(temporary.constData(), O_WRONLY | O_CREAT | O_TRUNC, 0600);
        const auto &text = exampleText();
        if (write(descriptor, text.constData(), static_cast<std::size_t>(text.size())) != text.size() ||
            fsync(descriptor) != 0 || close(descriptor) != 0 ||
            std::rename(temporary.constData(), path.constData()) != 0)
            state.SkipWithError("not saved");
    }
}

BENCHMARK(decodeHistoryByQt)->Unit(benchmark::kMillisecond);
BENCHMARK(decodeHistoryOfOurs)->Unit(benchmark::kMillisecond);
BENCHMARK(encodeHistoryByQt)->Unit(benchmark::kMillisecond);
BENCHMARK(encodeHistoryOfOurs)->Unit(benchmark::kMillisecond);
BENCHMARK(recordIntoFullHistory)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(compareSnapshots)->Arg(90)->Arg(100000)->Unit(benchmark::kMicrosecond);
BENCHMARK(saveHistory)->UseRealTime()->Unit(benchmark::kMillisecond);
BENCHMARK(saveByHand)->UseRealTime()->Unit(benchmark::kMillisecond);

} // namespace

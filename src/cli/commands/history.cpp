// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "cli/HistoryPages.h"
#include "cli/commands/Command.h"
#include "cli/commands/options.h"
#include "cli/historyJson.h"
#include "cli/inspectMachine.h"
#include "history/HistoryFile.h"
#include "history/ScanHistory.h"
#include "history/historyTexts.h"
#include "language/folding.h"
#include "language/texts.h"

#include <QRegularExpression>

#include <algorithm>
#include <chrono>
#include <memory>
#include <string>

namespace quillmark::cli {

using namespace Qt::StringLiterals;

namespace {

using history::HistoryFile;
using history::ScanHistory;
using history::StoredSnapshot;

using Result = std::expected<void, Failure>;

/// Another command is done by then; a window keeps the history for longer.
constexpr std::chrono::milliseconds patience(1000);
constexpr qsizetype shortestPrefix = 4;

class Text
{
    QUILLMARK_TEXTS(Terminal)
};

struct HistoryOptions
{
    bool json = false;
    bool isConfirmed = false;
    std::string id;
    std::string newerId;
};

Failure unreadable(const Session &session, const QString &fault)
{
    return {u"%1: %2"_s.arg(session.historyFile(), fault)};
}

std::expected<HistoryFile::Contents, Failure> readHistory(const Session &session)
{
    auto contents = HistoryFile(session.historyFile()).read();
    if (!contents.fault.isEmpty())
        return std::unexpected(unreadable(session, contents.fault));
    return contents;
}

/// The scan that a position, an identifier or the beginning of one stands for.
std::expected<StoredSnapshot, Failure> findScan(const std::vector<StoredSnapshot> &scans,
                                                const std::string &given)
{
    const auto text = QString::fromStdString(given).toUpper();
    bool isNumber = false;
    const auto position = text.toUInt(&isNumber);
    std::vector<const StoredSnapshot *> meant;
    if (text.size() >= shortestPrefix) {
        for (const auto &scan : scans) {
            if (history::idText(scan.snapshot.id).startsWith(text))
                meant.push_back(&scan);
        }
    }
    if (meant.empty() && isNumber && position < scans.size())
        meant.push_back(&scans[position]);
    if (meant.empty())
        return std::unexpected(Failure{u"there is no scan '%1' in the history, which has %2"_s.arg(
            QString::fromStdString(given), QString::number(scans.size()))});
    if (meant.size() > 1)
        return std::unexpected(
            Failure{u"'%1' is the beginning of more than one scan's identifier"_s.arg(text)});
    return *meant.front();
}

Result list(const Session &session, const HistoryOptions &options)
{
    if (options.json) {
        const auto scans = HistoryFile(session.historyFile()).readDigests();
        if (!scans)
            return std::unexpected(unreadable(session, scans.error()));
        session.output().write(scansJson(*scans));
        return {};
    }
    const auto history = readHistory(session);
    if (!history)
        return std::unexpected(history.error());
    session.output().write(
        historyPage(history->snapshots, session.language().formats(), session.terminalStyle()));
    return {};
}

Result show(const Session &session, const HistoryOptions &options)
{
    const auto history = readHistory(session);
    if (!history)
        return std::unexpected(history.error());
    const auto scan = findScan(history->snapshots, options.id);
    if (!scan)
        return std::unexpected(scan.error());
    if (options.json)
        session.output().write(scan->json.toByteArray() + '\n');
    else
        session.output().write(
            scanPage(scan->snapshot, session.language().formats(), session.terminalStyle()));
    return {};
}

Result compare(const Session &session, const HistoryOptions &options)
{
    const auto history = readHistory(session);
    if (!history)
        return std::unexpected(history.error());
    const auto older = findScan(history->snapshots, options.id);
    if (!older)
        return std::unexpected(older.error());
    const auto newer = findScan(history->snapshots, options.newerId);
    if (!newer)
        return std::unexpected(newer.error());
    if (options.json)
        session.output().write(changesJson(diff(older->snapshot, newer->snapshot)));
    else
        session.output().write(comparisonPage(older->snapshot, newer->snapshot, session.language().formats(),
                                              session.terminalStyle()));
    return {};
}

/// Waits until the history is saved, or tells why it is not.
Result saved(const Session &session, ScanHistory &history)
{
    const auto outcome = history.flush();
    if (outcome)
        return {};
    return std::unexpected(Failure{u"%1: %2"_s.arg(session.historyFile(), outcome.error().reason)});
}

Result remove(const Session &session, const HistoryOptions &options)
{
    const auto stored = readHistory(session);
    if (!stored)
        return std::unexpected(stored.error());
    const auto scan = findScan(stored->snapshots, options.id);
    if (!scan)
        return std::unexpected(scan.error());

    ScanHistory history(session.language(), session.historyFile(), patience);
    history.remove(scan->snapshot.id);
    const auto result = saved(session, history);
    if (!result)
        return result;
    if (options.json)
        session.output().write("{\"removed\": 1}\n"_ba);
    else
        session.output().write(Text::tr("The scan of %1 was removed.")
                                   .arg(dateOf(scan->snapshot, session.language().formats())) +
                               u'\n');
    return {};
}

Result clear(const Session &session, const HistoryOptions &options)
{
    ScanHistory history(session.language(), session.historyFile(), patience);
    const auto count = history.snapshots().size();
    const auto &output = session.output();
    if (output.ask && !options.isConfirmed && count > 0 &&
        !output.confirms(Text::tr("%n saved scans will be removed. This can’t be undone. Remove them? [y/N]",
                                  nullptr, static_cast<int>(count)) +
                         u' '))
        return std::unexpected(Failure{u"nothing was removed"_s});
    history.clear();
    const auto result = saved(session, history);
    if (!result)
        return result;
    if (options.json)
        session.output().write("{\"removed\": %1}\n"_ba.replace("%1", QByteArray::number(count)));
    else
        session.output().write((count == 0 ? history::noScans() : Text::tr("All saved scans were removed.")) +
                               u'\n');
    return {};
}

Result record(const Session &session, const HistoryOptions &options)
{
    const auto machine = session.openMachine();
    if (!machine)
        return std::unexpected(machine.error());
    const auto &formats = session.language().formats();
    const auto inspection = inspectMachine(**machine, formats);

    ScanHistory history(session.language(), session.historyFile(), patience);
    const bool isNews = history.record(inspection.summary, inspection.sections);
    const auto result = saved(session, history);
    if (!result)
        return result;
    const auto &newest = history.snapshots().first();
    if (options.json)
        session.output().write("{\"recorded\": "_ba + (isNews ? "true" : "false") + ", \"id\": \"" +
                               history::idText(newest.id).toLatin1() + "\"}\n");
    else
        session.output().write((isNews
                                    ? Text::tr("Scan %1 was saved.").arg(history::idText(newest.id).first(8))
                                    : Text::tr("Nothing has changed since the scan of %1, so none was saved.")
                                          .arg(dateOf(newest, formats))) +
                               u'\n');
    return {};
}

/// Lets through what may stand for a scan.
std::string namesAScan(const std::string &given)
{
    static const QRegularExpression form(u"^([0-9]{1,9}|[0-9a-fA-F-]{%1,36})$"_s.arg(shortestPrefix));
    if (form.match(QString::fromStdString(given)).hasMatch())
        return {};
    return "'" + given +
           "' names no scan: give its position (0 is the newest), its identifier, or the first 4 characters "
           "of it or more";
}

constexpr auto idMeaning =
    "An ID is a scan's identifier, the first 4 characters of it or more, or its position in the "
    "list: 0 is the newest.";

} // namespace

void addHistory(CLI::App &program, Command &chosen)
{
    const auto options = std::make_shared<HistoryOptions>();
    auto *command = program.add_subcommand("history", "Look at saved scans, compare them, and save new ones");
    command->require_subcommand(1);
    command->footer(helpFooter({"history record", "history list", "history compare 1 0"}, idMeaning));

    const auto add = [&](const char *name, const char *description, auto action,
                         const std::vector<std::string> &examples, const std::string &notes = {}) {
        auto *part = command->add_subcommand(name, description);
        part->add_flag("--json", options->json, "Print JSON");
        part->footer(helpFooter(examples, notes));
        part->callback([options, action, &chosen] {
            chosen = [options, action](const Session &session) { return action(session, *options); };
        });
        return part;
    };
    const auto addScan = [](CLI::App *part, const char *name, std::string &id, const char *description) {
        part->add_option(name, id, description)->required()->check(namesAScan)->type_name("");
    };

    add("list", "List the saved scans, the newest first", list,
        {"history list", "history list --json | jq -r '.[0].id'"});
    addScan(add("show", "Show a saved scan, row by row", show, {"history show 0", "history show 4F1C"},
                idMeaning),
            "ID", options->id, "The scan");
    auto *comparison = add("compare", "Show what differs between two saved scans", compare,
                           {"history compare 1 0", "history compare 4F1C 0 --json"}, idMeaning);
    addScan(comparison, "OLD", options->id, "The older scan");
    addScan(comparison, "NEW", options->newerId, "The newer scan");
    addScan(add("remove", "Remove a saved scan", remove, {"history remove 4F1C"}, idMeaning), "ID",
            options->id, "The scan");
    add("clear", "Remove all saved scans", clear, {"history clear", "history clear --yes"})
        ->add_flag("--yes", options->isConfirmed, "Do not ask first");
    add("record", "Inspect the machine and save the scan, unless nothing has changed", record,
        {"history record", "history record --json | jq .recorded"});
}

} // namespace quillmark::cli

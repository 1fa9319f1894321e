// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "cli/Module.h"
#include "cli/TerminalPage.h"
#include "cli/commands/Command.h"
#include "cli/commands/options.h"
#include "cli/updateJson.h"
#include "language/texts.h"
#include "reports/Report.h"
#include "update/MakeFeedSource.h"
#include "update/updateTexts.h"

#include <QCoreApplication>
#include <QEventLoop>

#include <memory>
#include <optional>

namespace quillmark::cli {

using namespace Qt::StringLiterals;

namespace {

using update::UpdateChecker;
using Weight = TerminalPage::Weight;

class Text
{
    QUILLMARK_TEXTS(Terminal)
};

struct UpdateOptions
{
    bool json = false;
    bool isAgreed = false;
    bool ledger = false;
};

/// A process has one application object, which a program around this one may have made.
std::unique_ptr<QCoreApplication> startApplication()
{
    if (QCoreApplication::instance())
        return {};
    static char name[] = "quillmark";
    static char *arguments[] = {name, nullptr};
    static int count = 1;
    return std::make_unique<QCoreApplication>(count, arguments);
}

std::expected<std::unique_ptr<update::FeedSource>, Failure> openSource()
{
    const auto function = resolve(u"quillmark-update"_s, update::makeFeedSourceName);
    if (!function)
        return std::unexpected(function.error());
    const auto make = reinterpret_cast<update::MakeFeedSource *>(*function);
    std::unique_ptr<update::FeedSource> source(make(reports::applicationVersion().toLatin1().constData()));
    if (!source)
        return std::unexpected(Failure{u"the module quillmark-update is of another version"_s});
    return source;
}

/// Whether the feed may be asked: by --yes this once, else as the user answers or has answered.
std::expected<update::Trigger, Failure> triggerFor(const UpdateOptions &options, UpdateChecker &checker,
                                                   const Output &output)
{
    if (options.isAgreed)
        return update::Trigger::ThisOnce;
    const auto host = checker.host();
    if (checker.consent() == UpdateChecker::Consent::NotAsked && output.ask && !host.isEmpty()) {
        output.err << update::consentNote().toStdString() << '\n';
        //: %1 is a question; what may be typed for yes is the translation of "y, yes"
        const auto question = Text::tr("%1 [y/N]").arg(update::consentQuestion(host));
        checker.setConsent(output.confirms(question + u' '));
    }
    if (checker.hasConsent() || host.isEmpty()) // then the address is refused by name
        return update::Trigger::OnDemand;
    return std::unexpected(
        Failure{u"%1 was not asked, because you have not agreed to it; --yes agrees to this one request, "
                "and the window's settings change the answer"_s.arg(host)});
}

update::CheckResult check(UpdateChecker &checker, update::Trigger trigger)
{
    update::CheckResult result;
    QEventLoop loop;
    QObject::connect(&checker, &UpdateChecker::finished, &loop, [&](const update::CheckResult &itsResult) {
        result = itsResult;
        loop.quit();
    });
    checker.check(trigger);
    loop.exec();
    return result;
}

QString updateText(const update::CheckResult &result, const update::Version &running,
                   const TerminalStyle &style)
{
    TerminalPage page(style);
    page.addParagraph(headline(result, running), Weight::Bold);
    const auto *available = std::get_if<update::Available>(&result);
    if (!available)
        return page.text();
    const auto &offer = available->offer;
    if (!offer.downloadPage.isEmpty())
        page.addParagraph(Text::tr("Download: %1").arg(offer.downloadPage.toString(QUrl::FullyEncoded)));
    if (!offer.releaseNotes.isEmpty())
        page.addParagraph(Text::tr("Release notes: %1").arg(offer.releaseNotes.toString(QUrl::FullyEncoded)));
    if (!offer.notes.isEmpty()) {
        page.addGap();
        for (const auto &line : offer.notes.split(u'\n'))
            page.addParagraph(line);
    }
    return page.text();
}

QString ledgerText(const QList<update::Exchange> &exchanges, const language::Formats &formats,
                   const TerminalStyle &style)
{
    TerminalPage page(style);
    if (exchanges.isEmpty()) {
        page.addParagraph(Text::tr("Quillmark has sent no request."));
        return page.text();
    }
    QList<QStringList> rows;
    for (const auto &exchange : exchanges) {
        const auto status = exchange.status == 0 ? QString() : QString::number(exchange.status);
        rows.append({formats.dateAndTime(exchange.date.toLocalTime()), status, exchange.failure,
                     exchange.url.toString(QUrl::FullyEncoded)});
    }
    page.addTable({{Text::tr("Date")}, {Text::tr("Status")}, {Text::tr("Failure"), 1}, {Text::tr("Address")}},
                  rows);
    return page.text();
}

std::expected<void, Failure> showLedger(const Session &session, bool asJson)
{
    const auto ledger = UpdateChecker::ledger();
    const auto exchanges = ledger.exchanges();
    if (!exchanges)
        return std::unexpected(Failure{u"%1: %2"_s.arg(ledger.file(), exchanges.error())});
    if (asJson)
        session.output().write(ledgerJson(*exchanges));
    else
        session.output().write(ledgerText(*exchanges, session.language().formats(), session.terminalStyle()));
    return {};
}

std::expected<void, Failure> showUpdate(const Session &session, const UpdateOptions &options)
{
    settings::Settings::nameApplication();
    if (options.ledger)
        return showLedger(session, options.json);
    const auto machine = session.openMachine();
    if (!machine)
        return std::unexpected(machine.error());
    auto source = openSource();
    if (!source)
        return std::unexpected(source.error());
    const auto application = startApplication();
    const auto running = update::Version::parse(reports::applicationVersion());
    settings::Settings settings;
    UpdateChecker checker(settings, {.computer = update::computerOf(**machine), .running = *running},
                          std::move(*source));
    const auto &output = session.output();
    const auto trigger = triggerFor(options, checker, output);
    if (!trigger)
        return std::unexpected(trigger.error());

    const auto result = check(checker, *trigger);
    if (const auto *failure = std::get_if<update::CheckFailure>(&result))
        return std::unexpected(Failure{reasonText(*failure, checker.feed())});
    if (options.json)
        output.write(updateJson(result, checker, *running));
    else
        output.write(updateText(result, *running, session.terminalStyle()));
    return {};
}

} // namespace

void addUpdate(CLI::App &program, Command &chosen)
{
    const auto options = std::make_shared<UpdateOptions>();
    auto *command = program.add_subcommand("update", "Ask whether there is a newer version");
    auto *agreed = command->add_flag("--yes", options->isAgreed, "Agree to asking the feed, this once");
    command->add_flag("--json", options->json, "Print JSON (update-v1)");
    command->add_flag("--ledger", options->ledger, "Print the last requests that were sent, and send none")
        ->excludes(agreed);
    command->footer(
        helpFooter({"update", "update --yes --json | jq -r .status", "update --ledger"},
                   "Nothing is sent before somebody has agreed to it: here, in the window, or by --yes."));
    command->callback([options, &chosen] {
        chosen = [options](const Session &session) { return showUpdate(session, *options); };
    });
}

} // namespace quillmark::cli

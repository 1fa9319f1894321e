// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "battery/BatteryJudgement.h"
#include "battery/batteryTexts.h"
#include "cli/TerminalPage.h"
#include "cli/batteryJson.h"
#include "cli/commands/Command.h"
#include "cli/commands/options.h"
#include "inspection/DeviceProbe.h"
#include "inspection/batteryItems.h"
#include "inspection/rows.h"
#include "inspection/values.h"
#include "language/texts.h"

#include <memory>
#include <vector>

namespace quillmark::cli {

using namespace Qt::StringLiterals;

namespace {

using battery::BatteryReading;
using Weight = TerminalPage::Weight;

class Text
{
    QUILLMARK_TEXTS(Terminal)
};

/// The row with the judgement's own word where it has one, else that of its status.
TerminalRow rowOf(const inspection::CapabilityItem &item, const battery::BatteryJudgement &judgement)
{
    TerminalRow row{item.status, item.label, item.value, title(item.status)};
    if (item.value == inspection::notReadable()) {
        row.value = u"–"_s;
        row.word = title(battery::Health::NotReported);
    } else if (item.key == u"batteryHealth"_s) {
        row.word = title(judgement.health);
    } else if (item.key == u"batteryTemperature"_s) {
        row.word = title(judgement.warmth);
    } else if (item.key == u"batteryCondition"_s) {
        row.word.clear();
    }
    return row;
}

/// The verdict, the battery's health by the gauge and by the system, and every figure.
void addBattery(TerminalPage &page, const BatteryReading &reading, bool onMac,
                const language::Formats &formats)
{
    const auto judgement = judge(reading);
    page.addParagraph(headline(judgement), Weight::Bold);
    if (const auto meaning = detail(judgement); !meaning.isEmpty())
        page.addParagraph(meaning);
    if (const auto cause = causeText(judgement); !cause.isEmpty())
        page.addParagraph(cause);

    const auto items = inspection::batteryItems(reading, onMac, formats);
    if (judgement.healthPercent || reading.reportedMaximumPercent)
        page.addGap();
    if (judgement.healthPercent)
        page.addBar(Text::tr("Battery health"), *judgement.healthPercent / 100.0,
                    inspection::statusOf(judgement.overall),
                    battery::ofDesignCapacity(inspection::percentText(*judgement.healthPercent, formats)));
    if (const auto reported = reading.reportedMaximumPercent) {
        page.addParagraph(battery::reportedBySystem(inspection::percentText(*reported, formats)));
        if (judgement.healthPercent)
            page.addParagraph(battery::reportedNote(), Weight::Faint);
    }
    TerminalBlock block;
    for (const auto &item : items)
        block.rows.append(rowOf(item, judgement));
    page.addBlocks({block});
}

QString batteryText(const std::vector<BatteryReading> &batteries, bool onMac,
                    const language::Formats &formats, const TerminalStyle &style)
{
    TerminalPage page(style);
    if (batteries.empty()) {
        page.addParagraph(battery::noBattery(onMac), Weight::Bold);
        page.addParagraph(battery::noBatteryNote(onMac));
    }
    for (const auto &reading : batteries) {
        if (&reading != &batteries.front())
            page.addGap();
        if (batteries.size() > 1 && reading.name)
            page.addParagraph(QString::fromStdString(*reading.name), Weight::Faint);
        addBattery(page, reading, onMac, formats);
    }
    return page.text();
}

std::expected<void, Failure> showBattery(const Session &session, bool asJson)
{
    const auto machine = session.openMachine();
    if (!machine)
        return std::unexpected(machine.error());
    using namespace inspection::DeviceProbe;
    auto batteries = battery::readBatteries(**machine, isAppleSilicon(**machine));
    if (!batteries.empty())
        batteries.front().reportedMaximumPercent = battery::reportedMaximumPercent(**machine);
    const auto &output = session.output();
    if (asJson)
        output.write(batteryJson(batteries));
    else
        output.write(
            batteryText(batteries, isMac(**machine), session.language().formats(), session.terminalStyle()));
    return {};
}

} // namespace

void addBattery(CLI::App &program, Command &chosen)
{
    const auto asJson = std::make_shared<bool>(false);
    auto *command = program.add_subcommand("battery", "Show the battery's health and figures");
    command->add_flag("--json", *asJson, "Print the figures as JSON (battery-v1)");
    command->footer(helpFooter({"battery", "battery --json | jq '.batteries[].healthPercent'"}));
    command->callback([asJson, &chosen] {
        chosen = [asJson](const Session &session) { return showBattery(session, *asJson); };
    });
}

} // namespace quillmark::cli

// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "inspection/DeviceProbe.h"
#include "inspection/Quillmark.h"
#include "platform/recorded/RecordedMachine.h"
#include "reports/Report.h"

#include <benchmark/benchmark.h>

namespace {

using namespace quillmark;

class NoPasteboard final : public inspection::Pasteboard
{
public:
    void clear() override {}
    void setText(const QString &) override {}
};

std::unique_ptr<platform::Machine> recordedLaptop()
{
    auto machine = platform::openRecording(QUILLMARK_SOURCE_DIR "/machines/macbook-pro-m3-max.json");
    return machine ? std::move(*machine) : nullptr;
}

/// What the window waits for each time it inspects again.
void refresh(benchmark::State &state, const std::unique_ptr<platform::Machine> &machine)
{
    if (!machine) {
        state.SkipWithError("no machine");
        return;
    }
    const language::LanguageManager language;
    NoPasteboard pasteboard;
    inspection::Quillmark model(*machine, language, pasteboard, {});
    for (auto _ : state)
        model.refresh();
}

void openRecording(benchmark::State &state)
{
    for (auto _ : state)
        benchmark::DoNotOptimize(recordedLaptop());
}

reports::Report laptopReport()
{
    const auto machine = recordedLaptop();
    const language::Formats formats(QStringLiteral("en"));
    return {.date = QDateTime::currentDateTimeUtc(),
            .language = formats.language(),
            .summary = inspection::DeviceProbe::summary(*machine, formats),
            .sections =
                inspection::DeviceProbe::sections(*machine, formats, machine->network().currentPath())};
}

/// One form of the report of a whole inspection.
template <typename Form>
void report(benchmark::State &state, Form form)
{
    const auto laptop = laptopReport();
    for (auto _ : state)
        benchmark::DoNotOptimize(form(laptop));
}

BENCHMARK_CAPTURE(refresh, this_machine, platform::thisMachine())->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(refresh, recorded_laptop, recordedLaptop())->Unit(benchmark::kMicrosecond);
BENCHMARK(openRecording)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(report, plain_text, reports::plainText)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(report, markdown, reports::markdown)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(report, json, reports::json)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(report, without_private_texts, reports::withoutPrivateTexts)->Unit(benchmark::kMicrosecond);

} // namespace

BENCHMARK_MAIN();

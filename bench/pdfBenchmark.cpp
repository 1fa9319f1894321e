// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "inspection/DeviceProbe.h"
#include "platform/recorded/RecordedMachine.h"
#include "reports/pdf/PdfReport.h"

#include <QGuiApplication>

#include <benchmark/benchmark.h>

namespace {

using namespace quillmark;

/// A full inspection of a laptop, after the fonts have been read once.
void pdfReport(benchmark::State &state)
{
    const auto machine = platform::openRecording(QUILLMARK_SOURCE_DIR "/machines/macbook-pro-m3-max.json");
    const language::Formats formats(QStringLiteral("en"));
    const reports::Report report{.date = QDateTime::currentDateTimeUtc(),
                                 .language = formats.language(),
                                 .summary = inspection::DeviceProbe::summary(**machine, formats),
                                 .sections = inspection::DeviceProbe::sections(
                                     **machine, formats, (*machine)->network().currentPath())};
    for (auto _ : state)
        benchmark::DoNotOptimize(reports::pdf(report));
}

BENCHMARK(pdfReport)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}

// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "cli/MonitorView.h"
#include "monitor/SystemSampler.h"
#include "platform/Machine.h"

#include <array>
#include <filesystem>
#include <set>
#include <string>
#include <vector>

#include <benchmark/benchmark.h>
#include <sys/resource.h>
#include <unistd.h>

namespace {

using namespace quillmark;

/// This process's open files of the kernel, by number.
std::set<int> kernelFiles()
{
    std::set<int> files;
    std::error_code error;
    for (const auto &entry : std::filesystem::directory_iterator("/proc/self/fd", error)) {
        const std::string target = std::filesystem::read_symlink(entry.path(), error).string();
        if (target.starts_with("/proc/") || target.starts_with("/sys/"))
            files.insert(std::stoi(entry.path().filename().string()));
    }
    return files;
}

void sample(benchmark::State &state)
{
    const auto machine = platform::thisMachine();
    monitor::SystemSampler sampler(*machine);
    sampler.prime();
    for (auto _ : state)
        benchmark::DoNotOptimize(sampler.sample());
}

/// What cannot be had for less: one reading of each file that the sampler holds open.
void barePreads(benchmark::State &state)
{
    const auto before = kernelFiles();
    const auto machine = platform::thisMachine();
    monitor::SystemSampler sampler(*machine);
    sampler.prime();
    std::vector<int> files;
    for (const int file : kernelFiles()) {
        if (!before.contains(file) && ::lseek(file, 0, SEEK_CUR) == 0)
            files.push_back(file);
    }
    state.counters["files"] = static_cast<double>(files.size());
    if (files.empty())
        state.SkipWithError("the sampler holds no files open here");
    std::array<char, 65536> buffer; // NOLINT(cppcoreguidelines-pro-type-member-init)
    for (auto _ : state) {
        for (const int file : files)
            benchmark::DoNotOptimize(::pread(file, buffer.data(), buffer.size(), 0));
    }
}

double peakKiB()
{
    rusage usage = {};
    ::getrusage(RUSAGE_SELF, &usage);
    return static_cast<double>(usage.ru_maxrss);
}

/// A second of the live view: a sample, a picture, and what of it has changed; and how much memory an hour of
/// it takes beyond the first two minutes.
void liveView(benchmark::State &state)
{
    constexpr int hour = 3600;
    const auto machine = platform::thisMachine();
    const language::Formats formats(QStringLiteral("en"));
    monitor::SystemSampler sampler(*machine);
    cli::MonitorView view(formats, QStringLiteral("benchmark"));
    cli::Screen screen(cli::Palette::Colors256);
    sampler.prime();
    const auto second = [&] {
        view.add(sampler.sample());
        screen.begin(120, 40);
        view.draw(screen);
        return screen.update();
    };
    for (std::size_t i = 0; i < monitor::maximumSamples; ++i)
        second();
    const double before = peakKiB();
    for (int i = 0; i < hour; ++i)
        second();
    state.counters["KiB more after an hour"] = peakKiB() - before;
    for (auto _ : state)
        benchmark::DoNotOptimize(second());
}

BENCHMARK(barePreads)->Unit(benchmark::kMicrosecond);
BENCHMARK(sample)->Unit(benchmark::kMicrosecond);
BENCHMARK(liveView)->Unit(benchmark::kMicrosecond);

} // namespace

// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "inspection/DeviceProbe.h"
#include "inspection/Text.h"
#include "inspection/rows.h"

namespace quillmark::inspection::DeviceProbe {

using namespace Qt::StringLiterals;

namespace {

QList<CapabilityItem> instructionItems(const platform::Machine &machine)
{
    const auto item = [&machine](const QString &key, const QString &label, std::string_view kernelValue) {
        return capability(key, label, sysctlFlag(machine, kernelValue));
    };
    switch (instructionSet(machine)) {
    case platform::InstructionSet::Arm64:
        return {item(u"sme"_s, Text::tr("SME instructions"), "hw.optional.arm.FEAT_SME"),
                item(u"bf16"_s, Text::tr("BF16 instructions"), "hw.optional.arm.FEAT_BF16")};
    case platform::InstructionSet::X86_64:
        return {item(u"avx2"_s, Text::tr("AVX2 instructions"), "hw.optional.avx2_0"),
                item(u"avx512"_s, Text::tr("AVX-512 instructions"), "hw.optional.avx512f")};
    case platform::InstructionSet::Other:
        break;
    }
    return {};
}

QList<CapabilityItem> coreItems(const platform::Machine &machine)
{
    const auto item = [&machine](const QString &key, const QString &label, std::string_view kernelValue) {
        return fact(key, label, QString::number(sysctlInt(machine, kernelValue).value_or(0)));
    };
    QList<CapabilityItem> items = {
        item(u"physicalCores"_s, Text::tr("Physical cores"), "hw.physicalcpu"),
        item(u"logicalCores"_s, Text::tr("Logical cores"), "hw.logicalcpu"),
    };
    if (sysctlInt(machine, "hw.nperflevels").value_or(0) >= 2) {
        items += item(u"performanceCores"_s, Text::tr("Performance cores"), "hw.perflevel0.physicalcpu");
        items += item(u"efficiencyCores"_s, Text::tr("Efficiency cores"), "hw.perflevel1.physicalcpu");
    }
    return items;
}

} // namespace

CapabilitySection processorSection(const platform::Machine &machine, const language::Formats &formats)
{
    QList<CapabilityItem> items = {fact(u"processor"_s, Text::tr("Processor"), chipName(machine))};
    items += coreItems(machine);
    if (const auto hertz = sysctlInt(machine, "hw.cpufrequency_max").value_or(0); hertz >= 1) {
        items += fact(u"maxFrequency"_s, Text::tr("Max frequency"),
                      QString::asprintf("%.2f GHz", static_cast<double>(hertz) / 1e9));
    }
    items += fact(u"memory"_s, Text::tr("Memory (RAM)"),
                  formats.byteCount(machine.system().physicalMemory(), language::ByteCountStyle::Memory));
    items += judged(u"neuralEngine"_s, Text::tr("Neural Engine"), availability(isAppleSilicon(machine)));
    items += instructionItems(machine);
    return sectionOf(u"processor", std::move(items));
}

} // namespace quillmark::inspection::DeviceProbe

// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "platform/KernelRecord.h"
#include "platform/recorded/PropertyJson.h"
#include "platform/recorded/Subjects.h"

#include <algorithm>
#include <cstring>
#include <map>
#include <string>

namespace quillmark::platform::recorded {

namespace {

template <typename Integer>
Integer integerOf(const Bytes &bytes)
{
    Integer number = 0;
    std::memcpy(&number, bytes.data(), sizeof number);
    return number;
}

class RecordedKernelValues final : public KernelValues
{
public:
    explicit RecordedKernelValues(std::map<std::string, Bytes, std::less<>> values)
        : m_values(std::move(values))
    {}

    std::optional<Bytes> read(std::string_view name) const override
    {
        const auto value = m_values.find(name);
        return value == m_values.end() ? std::nullopt : std::optional(value->second);
    }

private:
    std::map<std::string, Bytes, std::less<>> m_values;
};

/// {"int32": n} and {"int64": n}, whose point is the width.
std::optional<Bytes> readSizedInteger(const Members &values, std::string_view name)
{
    const auto sized = values.members(name);
    if (sized && sized->has("int32")) {
        const auto number = sized->integer<std::int32_t>("int32");
        return number ? std::optional(numberRecord(*number)) : std::nullopt;
    }
    if (sized && sized->has("int64")) {
        const auto number = sized->integer<std::int64_t>("int64");
        return number ? std::optional(numberRecord(*number)) : std::nullopt;
    }
    values.fail(name, R"(must hold "int32", "int64" or "hex")");
    return std::nullopt;
}

/// The value as text when it is one: a single zero byte, at the end.
std::optional<std::string_view> textOf(const Bytes &bytes)
{
    const auto zero = std::ranges::find(bytes, std::byte{0});
    if (bytes.empty() || zero != bytes.end() - 1)
        return std::nullopt;
    return std::string_view(reinterpret_cast<const char *>(bytes.data()), bytes.size() - 1);
}

enum class Kind { Text, Integer, Raw };

struct KernelValueName
{
    std::string_view name;
    Kind kind;
};

/// Every kernel value that this program asks for: a recording that lacked one would answer differently.
constexpr KernelValueName kernelValueNames[] = {
    {"hw.cpufrequency_max", Kind::Integer},
    {"hw.logicalcpu", Kind::Integer},
    {"hw.model", Kind::Text},
    {"hw.nperflevels", Kind::Integer},
    {"hw.optional.arm.FEAT_BF16", Kind::Integer},
    {"hw.optional.arm.FEAT_I8MM", Kind::Integer},
    {"hw.optional.arm.FEAT_SME", Kind::Integer},
    {"hw.optional.arm64", Kind::Integer},
    {"hw.optional.avx2_0", Kind::Integer},
    {"hw.optional.avx512f", Kind::Integer},
    {"hw.perflevel0.physicalcpu", Kind::Integer},
    {"hw.perflevel1.physicalcpu", Kind::Integer},
    {"hw.physicalcpu", Kind::Integer},
    {"kern.hv_vmm_present", Kind::Integer},
    {"kern.memorystatus_vm_pressure_level", Kind::Integer},
    {"kern.osversion", Kind::Text},
    {"machdep.cpu.brand_string", Kind::Text},
    {"sysctl.proc_translated", Kind::Integer},
    {"vm.swapusage", Kind::Raw},
};

void writeValue(json::Writer &writer, const Bytes &bytes, Kind kind)
{
    if (const auto text = textOf(bytes); text && kind == Kind::Text) {
        writer.string(*text);
    } else if (kind == Kind::Integer && bytes.size() == sizeof(std::int32_t)) {
        writer.integer(std::int64_t{integerOf<std::int32_t>(bytes)});
    } else if (kind == Kind::Integer && bytes.size() == sizeof(std::int64_t)) {
        writer.beginObject();
        writer.member("int64", integerOf<std::int64_t>(bytes));
        writer.endObject();
    } else {
        writeBytes(writer, bytes);
    }
}

} // namespace

std::optional<Bytes> readKernelValue(const Members &values, std::string_view name)
{
    if (const auto *text = find<std::string>(values.object(), name))
        return textRecord(*text);
    if (const auto number = get<std::int64_t>(values.object(), name)) {
        return std::in_range<std::int32_t>(*number) ? numberRecord(static_cast<std::int32_t>(*number))
                                                    : numberRecord(*number);
    }
    if (auto bytes = get<Bytes>(values.object(), name))
        return bytes;
    if (find<PropertyMap>(values.object(), name))
        return readSizedInteger(values, name);
    values.failType(name, "a text, a whole number or an object");
    return std::nullopt;
}

std::unique_ptr<KernelValues> readKernelValues(const Members &recording)
{
    std::map<std::string, Bytes, std::less<>> values;
    if (const auto members = recording.members("sysctl")) {
        for (const auto &[name, property] : members->object()) {
            if (auto bytes = readKernelValue(*members, name))
                values.emplace(name, std::move(*bytes));
        }
    }
    return std::make_unique<RecordedKernelValues>(std::move(values));
}

void write(json::Writer &writer, const KernelValues &kernelValues)
{
    writer.key("sysctl");
    writer.beginObject();
    for (const auto &[name, kind] : kernelValueNames) {
        if (const auto bytes = kernelValues.read(name)) {
            writer.key(name);
            writeValue(writer, *bytes, kind);
        }
    }
    writer.endObject();
}

} // namespace quillmark::platform::recorded

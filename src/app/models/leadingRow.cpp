// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "app/models/leadingRow.h"

#include <algorithm>
#include <array>

namespace quillmark::app {

using namespace Qt::StringLiterals;
using inspection::CapabilityItem;
using inspection::CapabilitySection;
using inspection::CapabilityStatus;

namespace {

struct Choice
{
    QStringView section;
    QStringView key;
    bool explainsItself;
};

/// The first row that the section has counts.
constexpr std::array choices = {
    Choice{u"system", u"os", true},           Choice{u"processor", u"processor", true},
    Choice{u"graphics", u"gpu.1", true},      Choice{u"displays", u"display.1.resolution", true},
    Choice{u"media", u"hevcEncoding", false}, Choice{u"cameraAudio", u"camera.1", true},
    Choice{u"cameraAudio", u"camera", false}, Choice{u"storage", u"availableSpace", false},
    Choice{u"power", u"powerSource", true},   Choice{u"network", u"connection", true},
    Choice{u"security", u"fileVault", false}, Choice{u"security", u"diskEncryption", false},
};

const CapabilityItem *rowOf(const CapabilitySection &section, const QString &key)
{
    const auto row = std::ranges::find(section.items, key, &CapabilityItem::key);
    return row == section.items.end() ? nullptr : &*row;
}

const CapabilityItem *firstOf(const CapabilitySection &section, auto isMeant)
{
    const auto row = std::ranges::find_if(section.items, isMeant);
    return row == section.items.end() ? nullptr : &*row;
}

} // namespace

std::optional<LeadingRow> leadingRow(const CapabilitySection &section, std::optional<int> builtInDisplay)
{
    const auto told = [](const CapabilityItem &row, bool explainsItself) {
        return LeadingRow{explainsItself ? QString() : row.label, row.value};
    };
    if (section.key == u"displays"_s && builtInDisplay) {
        if (const auto *row = rowOf(section, u"display.%1.resolution"_s.arg(*builtInDisplay)))
            return told(*row, true);
    }
    for (const auto &choice : choices) {
        if (section.key != choice.section)
            continue;
        if (const auto *row = rowOf(section, choice.key.toString()))
            return told(*row, choice.explainsItself);
    }
    const CapabilityItem *row = nullptr;
    if (section.key == u"intelligence"_s)
        row = firstOf(section, [](const auto &item) { return item.status != CapabilityStatus::Info; });
    if (!row)
        row = firstOf(section, [](const auto &item) { return !item.isVolatile; });
    return row ? std::optional(told(*row, false)) : std::nullopt;
}

QString deviceSymbol(const inspection::DeviceSummary &summary)
{
    if (summary.hasBattery)
        return u"device.laptop"_s;
    // Since 2022 identifiers of Macs tell no kind ("Mac14,3"): these are the ones of desktops without a
    // screen.
    constexpr std::array minis = {u"Mac14,3", u"Mac14,12", u"Mac16,10", u"Mac16,11"};
    constexpr std::array boxes = {u"Mac13,1", u"Mac13,2", u"Mac14,13", u"Mac14,14", u"Mac15,14", u"Mac16,9"};
    const auto &model = summary.modelIdentifier;
    const auto isModel = [&](const char16_t *identifier) { return model == QStringView(identifier); };
    if (model.startsWith("Macmini"_L1) || std::ranges::any_of(minis, isModel) ||
        std::ranges::any_of(boxes, isModel))
        return u"device.mini"_s;
    const bool isMac = model.contains("Mac"_L1);
    if (!isMac || model.startsWith("MacPro"_L1) || model == "Mac14,8"_L1)
        return u"device.tower"_s;
    return u"device.desktop"_s;
}

} // namespace quillmark::app

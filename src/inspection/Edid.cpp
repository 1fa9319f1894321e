// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "inspection/Edid.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <numeric>
#include <span>

namespace quillmark::inspection {

namespace {

using Octets = std::span<const std::uint8_t>;

constexpr std::size_t blockSize = 128;
constexpr std::size_t checksumPlace = blockSize - 1;
constexpr std::size_t descriptorSize = 18;

/// What the extensions say together.
struct ColorTraits
{
    bool hasHighDynamicRange = false;
    bool hasWideColor = false;
};

bool isSound(Octets block)
{
    return std::accumulate(block.begin(), block.end(), 0U) % 256 == 0;
}

bool isBaseBlock(Octets block)
{
    constexpr std::array<std::uint8_t, 8> header = {0, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0};
    return std::equal(header.begin(), header.end(), block.begin()) && isSound(block);
}

std::array<Octets, 4> descriptorsOf(Octets block)
{
    constexpr std::size_t first = 54;
    const auto at = [block](std::size_t n) {
        return block.subspan(first + n * descriptorSize, descriptorSize);
    };
    return {at(0), at(1), at(2), at(3)};
}

bool isTiming(Octets descriptor)
{
    return descriptor[0] != 0 || descriptor[1] != 0;
}

/// The first lower bits, and four higher bits of another byte.
int joined(std::uint8_t lower, int higher)
{
    return lower | (higher & 0xF) << 8;
}

std::optional<QString> nameIn(Octets descriptor)
{
    constexpr std::uint8_t productName = 0xFC;
    if (isTiming(descriptor) || descriptor[3] != productName)
        return std::nullopt;
    const auto text = descriptor.subspan(5);
    const auto end = std::ranges::find(text, std::uint8_t{'\n'});
    auto name = QString::fromLatin1(reinterpret_cast<const char *>(text.data()), end - text.begin());
    name.removeIf([](QChar character) { return !character.isPrint(); });
    name = name.trimmed();
    return name.isEmpty() ? std::nullopt : std::optional(name);
}

void readTiming(Octets timing, Edid &edid)
{
    constexpr std::uint8_t interlaced = 0x80;
    const int clock = (timing[0] | timing[1] << 8) * 10000; // Hz
    const int width = joined(timing[2], timing[4] >> 4);
    const int height = joined(timing[5], timing[7] >> 4);
    const int totalWidth = width + joined(timing[3], timing[4]);
    const int totalHeight = height + joined(timing[6], timing[7]);
    // What is told of an interlaced picture is a field: of half the lines, and half a line more in all.
    const bool isInterlaced = (timing[17] & interlaced) != 0;
    if (width > 0 && height > 0) {
        edid.preferredSize = QSize(width, isInterlaced ? 2 * height : height);
        edid.preferredRate = clock / (totalWidth * (isInterlaced ? totalHeight + 0.5 : totalHeight));
    }
    const QSizeF size(joined(timing[12], timing[14] >> 4), joined(timing[13], timing[14]));
    if (!size.isEmpty())
        edid.screenSize = size;
}

/// One of the data blocks of a CTA-861 extension: those with an extended tag begin with it.
void readDataBlock(Octets block, ColorTraits &traits)
{
    constexpr std::uint8_t colorimetry = 0x05;
    constexpr std::uint8_t staticMetadata = 0x06;
    constexpr std::uint8_t pqOrHlg = 0x0C;
    constexpr std::uint8_t bt2020 = 0xE0;
    constexpr std::uint8_t dciP3 = 0x80;
    if (block.size() >= 2 && block[0] == staticMetadata)
        traits.hasHighDynamicRange |= (block[1] & pqOrHlg) != 0;
    if (block.size() >= 2 && block[0] == colorimetry)
        traits.hasWideColor |= (block[1] & bt2020) != 0;
    if (block.size() >= 3 && block[0] == colorimetry)
        traits.hasWideColor |= (block[2] & dciP3) != 0;
}

/// False when the extension is damaged, or of a kind that is not read.
bool readExtension(Octets block, ColorTraits &traits)
{
    constexpr std::uint8_t cta = 0x02;
    constexpr std::uint8_t blockMap = 0xF0; // lists the kinds of the other extensions
    constexpr std::uint8_t firstRevisionWithData = 3;
    constexpr std::size_t dataPlace = 4;
    constexpr int extended = 7;
    if (!isSound(block) || (block[0] != cta && block[0] != blockMap))
        return false;
    if (block[0] == blockMap || block[1] < firstRevisionWithData || block[2] == 0)
        return true;
    const std::size_t end = block[2]; // of the data blocks
    if (end < dataPlace || end > checksumPlace)
        return false;
    for (std::size_t place = dataPlace; place < end;) {
        const std::size_t length = block[place] & 0x1FU;
        if (place + 1 + length > end)
            return false;
        if (block[place] >> 5 == extended)
            readDataBlock(block.subspan(place + 1, length), traits);
        place += 1 + length;
    }
    return true;
}

void readExtensions(Octets octets, Edid &edid)
{
    constexpr std::size_t countPlace = 126;
    const std::size_t announced = octets[countPlace];
    const std::size_t present = octets.size() / blockSize - 1;
    bool isComplete = present >= announced;
    ColorTraits traits;
    for (std::size_t number = 1; number <= present; ++number)
        isComplete &= readExtension(octets.subspan(number * blockSize, blockSize), traits);
    if (traits.hasHighDynamicRange || isComplete)
        edid.hasHighDynamicRange = traits.hasHighDynamicRange;
    if (traits.hasWideColor || isComplete)
        edid.hasWideColor = traits.hasWideColor;
}

} // namespace

std::optional<Edid> parseEdid(const platform::Bytes &bytes)
{
    const Octets octets(reinterpret_cast<const std::uint8_t *>(bytes.data()), bytes.size());
    if (octets.size() < blockSize || !isBaseBlock(octets.first(blockSize)))
        return std::nullopt;
    Edid edid;
    const auto descriptors = descriptorsOf(octets.first(blockSize));
    for (const auto &descriptor : descriptors) {
        if (!edid.name)
            edid.name = nameIn(descriptor);
    }
    if (const auto timing = std::ranges::find_if(descriptors, isTiming); timing != descriptors.end())
        readTiming(*timing, edid);
    if (!edid.screenSize) {
        const QSizeF size(octets[21] * 10, octets[22] * 10); // written in cm; one alone is a ratio
        if (!size.isEmpty())
            edid.screenSize = size;
    }
    readExtensions(octets, edid);
    return edid;
}

} // namespace quillmark::inspection

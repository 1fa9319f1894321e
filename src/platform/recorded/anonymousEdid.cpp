// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "platform/recorded/anonymousEdid.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <numeric>
#include <span>

namespace quillmark::platform::recorded {

namespace {

using Block = std::span<std::byte>;

constexpr std::size_t blockSize = 128;
constexpr std::size_t checksumPlace = blockSize - 1;
constexpr std::size_t descriptorSize = 18;
constexpr std::size_t oemIdentifierSize = 3;
constexpr std::byte ctaExtension{0x02};

std::uint8_t sumOf(Block block)
{
    return std::accumulate(block.begin(), block.end(), std::uint8_t{0}, [](std::uint8_t sum, std::byte byte) {
        return static_cast<std::uint8_t>(sum + std::to_integer<std::uint8_t>(byte));
    });
}

bool isDescription(const Bytes &edid)
{
    constexpr std::array header = {std::byte{0x00}, std::byte{0xFF}, std::byte{0xFF}, std::byte{0xFF},
                                   std::byte{0xFF}, std::byte{0xFF}, std::byte{0xFF}, std::byte{0x00}};
    return edid.size() >= blockSize && std::equal(header.begin(), header.end(), edid.begin());
}

void clear(Block bytes)
{
    std::ranges::fill(bytes, std::byte{0});
}

/// A descriptor holds a timing, unless it begins with zeros; then its fourth byte says what text it is.
void clearDescriptor(Block descriptor)
{
    constexpr std::byte serialNumber{0xFF};
    constexpr std::byte freeText{0xFE};
    const bool isTiming = descriptor[0] != std::byte{0} || descriptor[1] != std::byte{0};
    if (isTiming || (descriptor[3] != serialNumber && descriptor[3] != freeText))
        return;
    const Block text = descriptor.subspan(5);
    std::ranges::fill(text, std::byte{' '});
    text.front() = std::byte{'\n'}; // ends the text
}

void clearBaseBlock(Block block)
{
    clear(block.subspan(12, 4));
    constexpr std::size_t descriptors = 54;
    for (std::size_t n = 0; n < 4; ++n)
        clearDescriptor(block.subspan(descriptors + n * descriptorSize, descriptorSize));
}

/// Keeps of a vendor's data block whose it is.
void clearVendorBlock(Block payload, std::uint8_t tag)
{
    constexpr std::uint8_t vendor = 3;
    constexpr std::uint8_t extended = 7;
    constexpr std::byte vendorVideo{0x01};
    constexpr std::byte vendorAudio{0x11};
    std::size_t kept = payload.size();
    if (tag == vendor)
        kept = oemIdentifierSize;
    else if (tag == extended && !payload.empty() && (payload[0] == vendorVideo || payload[0] == vendorAudio))
        kept = 1 + oemIdentifierSize;
    clear(payload.subspan(std::min(kept, payload.size())));
}

void clearDataBlocks(Block blocks)
{
    while (!blocks.empty()) {
        const auto head = std::to_integer<std::uint8_t>(blocks[0]);
        const std::size_t length = head & 0x1FU;
        if (length >= blocks.size()) {
            clear(blocks.subspan(1)); // the length stays, and is as wrong as it was
            return;
        }
        clearVendorBlock(blocks.subspan(1, length), static_cast<std::uint8_t>(head >> 5));
        blocks = blocks.subspan(1 + length);
    }
}

/// Leaves the data blocks of a CTA-861 extension. The timings behind them may have texts among them.
void clearExtension(Block block)
{
    constexpr std::size_t dataPlace = 4;
    constexpr std::byte firstRevisionWithData{3};
    const bool isCta = block[0] == ctaExtension;
    const auto end = std::to_integer<std::size_t>(block[2]);
    const bool hasData =
        isCta && block[1] >= firstRevisionWithData && end >= dataPlace && end <= checksumPlace;
    if (hasData)
        clearDataBlocks(block.subspan(dataPlace, end - dataPlace));
    const std::size_t kept = hasData ? end : isCta ? dataPlace : 1;
    clear(block.subspan(kept, checksumPlace - kept));
}

} // namespace

Bytes anonymousEdid(Bytes edid)
{
    if (!isDescription(edid))
        return {};
    edid.resize(edid.size() / blockSize * blockSize);
    for (std::size_t place = 0; place < edid.size(); place += blockSize) {
        const Block block = Block(edid).subspan(place, blockSize);
        const std::uint8_t before = sumOf(block);
        if (place == 0)
            clearBaseBlock(block);
        else
            clearExtension(block);
        const auto checksum = std::to_integer<std::uint8_t>(block[checksumPlace]);
        block[checksumPlace] = static_cast<std::byte>(checksum + before - sumOf(block));
    }
    return edid;
}

} // namespace quillmark::platform::recorded

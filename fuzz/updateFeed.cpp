// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

// A feed comes from the network: it is refused, or its texts are fit to be shown and its addresses to be
// opened.

#include "fuzzing.h"
#include "update/Offer.h"

#include <algorithm>

using namespace quillmark;

namespace {

using fuzzing::require;

bool isOneLine(const QString &text)
{
    return std::ranges::all_of(text, [](QChar c) { return c.category() != QChar::Other_Control; });
}

bool isFit(const QUrl &address)
{
    return address.isEmpty() || (address.isValid() && address.scheme() == QLatin1String("https"));
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const auto feed = update::parseFeed(QByteArrayView(data, static_cast<qsizetype>(size)));
    if (!feed)
        return 0;
    for (const auto &item : feed->items) {
        require(isOneLine(item.title) && isOneLine(item.channel), "a title is one line");
        for (const auto &enclosure : item.enclosures)
            require(isOneLine(enclosure.title), "a title is one line");
        require(isOneLine(QString(item.notes).remove(QLatin1Char('\n'))), "notes are lines of text");
        require(isFit(item.downloadPage) && isFit(item.releaseNotes), "an address is https");
    }
    const auto running = *update::Version::parse(u"1.0.0");
    for (const auto *system : {u"macos", u"linux"}) {
        const update::Computer computer{.system = QString::fromUtf16(system),
                                        .systemVersion = update::Version::parse(u"15.3"),
                                        .processor = QStringLiteral("arm64")};
        const auto offer = update::bestOffer(*feed, computer, running);
        require(!offer || (offer->version > running && !offer->title.isEmpty()),
                "an offer is newer and has a title");
    }
    return 0;
}

// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

// A history file with any fault in it counts as none; of one without, each scan is written as it was read.

#include "fuzzing.h"
#include "history/SnapshotChange.h"
#include "history/snapshotJson.h"

using namespace quillmark;

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const auto decoded = history::decodeHistory(QByteArrayView(data, static_cast<qsizetype>(size)));
    if (!decoded) {
        fuzzing::require(!decoded.error().isEmpty(), "a refusal says why");
        return 0;
    }
    QByteArray file = "[";
    for (const auto &stored : *decoded) {
        if (file.size() > 1)
            file += ',';
        file += encoded(stored.snapshot);
    }
    const auto again = history::decodeHistory(file += ']');
    fuzzing::require(again && again->size() == decoded->size(), "what is written can be read");
    for (std::size_t i = 0; i < decoded->size(); ++i) {
        const auto &older = (*decoded)[i].snapshot;
        fuzzing::require((*again)[i].snapshot == older, "what is read again is the same");
        fuzzing::require(history::entryChanges(older, (*again)[i].snapshot).isEmpty(),
                         "the same has not changed");
        history::entryChanges(older, decoded->front().snapshot);
    }
    return 0;
}

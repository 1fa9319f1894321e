// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "update/MakeFeedSource.h"
#include "update/network/NetworkFeedSource.h"

#include <type_traits>

extern "C" Q_DECL_EXPORT quillmark::update::FeedSource *quillmark_makeFeedSource(const char *version)
{
    using namespace quillmark::update;
    return qstrcmp(version, QUILLMARK_VERSION) == 0 ? new NetworkFeedSource : nullptr;
}

static_assert(std::is_same_v<decltype(quillmark_makeFeedSource), quillmark::update::MakeFeedSource>);

// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "update/FeedSource.h"

namespace quillmark::update {

using namespace Qt::StringLiterals;

QString nameOf(FetchError::Reason reason)
{
    switch (reason) {
    case FetchError::Reason::NoConnection:
        return u"noConnection"_s;
    case FetchError::Reason::NotTrusted:
        return u"notTrusted"_s;
    case FetchError::Reason::TimedOut:
        return u"timedOut"_s;
    case FetchError::Reason::TooLong:
        return u"tooLong"_s;
    case FetchError::Reason::LedElsewhere:
        return u"ledElsewhere"_s;
    case FetchError::Reason::Refused:
        return u"refused"_s;
    }
    return {};
}

} // namespace quillmark::update

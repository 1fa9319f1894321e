// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QUrl>

namespace quillmark::update {

/// Whether this is the address of something on a server of HTTPS, and holds no name and password.
inline bool isHttps(const QUrl &url)
{
    return url.isValid() && url.scheme() == QLatin1StringView("https") && !url.host().isEmpty() &&
           url.userInfo().isEmpty();
}

} // namespace quillmark::update

// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "update/FeedSource.h"

#include <QList>
#include <QPointer>
#include <QThread>
#include <QTimer>

namespace quillmark::update {

/// Asks over HTTPS. Certificates are judged as the system judges them (QSslConfiguration’s default), the
/// proxy is the system’s. Nothing is told but what stands in the question: no cookie, no referrer, no
/// language, no credentials. Redirects are followed on the same server only.
///
/// Belongs to one thread with an event loop and does its work on another, since already the search for a
/// proxy may take long.
class NetworkFeedSource final : public FeedSource
{
public:
    explicit NetworkFeedSource(const FetchLimits &limits = {});
    NetworkFeedSource(const NetworkFeedSource &) = delete;
    NetworkFeedSource &operator=(const NetworkFeedSource &) = delete;
    ~NetworkFeedSource() override;

    void fetch(const FeedQuestion &question, const Done &done) override;
    void cancel() override;

private:
    void end(const FetchOutcome &outcome);

    FetchLimits m_limits;
    QTimer m_timer;
    Done m_done; ///< of the question under way; empty: none is
    QList<QPointer<QThread>>
        m_threads; ///< a question's each, the last one's at the end; until they have ended
};

} // namespace quillmark::update

// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "update/FeedSource.h"

#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QObject>

namespace quillmark::update {

/// One question, from the first request to the answer. Knows no limit of time.
class Download final : public QObject
{
    Q_OBJECT

public:
    Download(const FeedQuestion &question, const FetchLimits &limits);

    /// To be called once, on the thread that it works on from then on.
    void start();

Q_SIGNALS:
    void finished(const quillmark::update::FetchOutcome &outcome);

private:
    void ask(const QUrl &url);
    void readHeaders();
    void readBody();
    void finish();
    void follow(int status);
    void giveUp(FetchError::Reason reason, const QString &detail);
    FetchError connectionError() const;
    void end(std::expected<FeedAnswer, FetchError> answer);

    FeedQuestion m_question;
    FetchLimits m_limits;
    QNetworkAccessManager *m_manager = nullptr;
    QNetworkReply *m_reply = nullptr; ///< the request under way
    QByteArray m_body;
    std::optional<FetchError> m_givenUp; ///< why the request was ended from here
    QString m_distrust;                  ///< what is wrong with the certificate
    QList<Exchange> m_exchanges;
};

} // namespace quillmark::update

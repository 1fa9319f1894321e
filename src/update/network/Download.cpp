// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "update/network/Download.h"

#include <QNetworkProxyFactory>
#include <QSslError>

#include <utility>

namespace quillmark::update {

using namespace Qt::StringLiterals;

namespace {

constexpr int statusOk = 200;
constexpr int statusNotModified = 304;

class SystemProxies final : public QNetworkProxyFactory
{
public:
    QList<QNetworkProxy> queryProxy(const QNetworkProxyQuery &query) override
    {
        return systemProxyForQuery(query);
    }
};

bool isSameServer(const QUrl &one, const QUrl &other)
{
    constexpr int httpsPort = 443;
    return other.scheme() == "https"_L1 && one.host() == other.host() &&
           one.port(httpsPort) == other.port(httpsPort) && other.userInfo().isEmpty();
}

/// Whatever Qt would add about the user or the computer is answered beforehand.
QNetworkRequest requestFor(const QUrl &url, const FeedQuestion &question)
{
    QNetworkRequest request(url);
    request.setAttribute(QNetworkRequest::RedirectPolicyAttribute, QNetworkRequest::ManualRedirectPolicy);
    request.setAttribute(QNetworkRequest::Http2AllowedAttribute, false);
    request.setAttribute(QNetworkRequest::CookieLoadControlAttribute, QNetworkRequest::Manual);
    request.setAttribute(QNetworkRequest::CookieSaveControlAttribute, QNetworkRequest::Manual);
    // Also keeps Qt from answering a server that asks for a ticket of the user’s.
    request.setAttribute(QNetworkRequest::AuthenticationReuseAttribute, QNetworkRequest::Manual);
    request.setHeader(QNetworkRequest::UserAgentHeader, QString::fromLatin1(question.userAgent));
    request.setRawHeader("Accept-Language", "*");
    // Nothing is unpacked, so that what is read is no longer than what was sent.
    request.setRawHeader("Accept-Encoding", "identity");
    if (!question.etag.isEmpty())
        request.setRawHeader("If-None-Match", question.etag);
    if (!question.lastModified.isEmpty())
        request.setRawHeader("If-Modified-Since", question.lastModified);
    return request;
}

} // namespace

Download::Download(const FeedQuestion &question, const FetchLimits &limits)
    : m_question(question)
    , m_limits(limits)
{}

void Download::start()
{
    m_manager = new QNetworkAccessManager(this);
    m_manager->setProxyFactory(new SystemProxies);
    ask(m_question.url);
}

void Download::ask(const QUrl &url)
{
    m_exchanges.append({.date = QDateTime::currentDateTimeUtc(), .url = url});
    m_reply = m_manager->get(requestFor(url, m_question));
    m_reply->setReadBufferSize(m_limits.bytes + 1);
    connect(m_reply, &QNetworkReply::metaDataChanged, this, &Download::readHeaders);
    connect(m_reply, &QNetworkReply::readyRead, this, &Download::readBody);
    connect(m_reply, &QNetworkReply::finished, this, &Download::finish);
    connect(m_reply, &QNetworkReply::sslErrors, this, [this](const QList<QSslError> &errors) {
        m_distrust = errors.isEmpty() ? QString() : errors.first().errorString();
    });
}

void Download::readHeaders()
{
    m_exchanges.last().status = m_reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
    if (m_reply->header(QNetworkRequest::ContentLengthHeader).toLongLong() > m_limits.bytes)
        giveUp(FetchError::Reason::TooLong, {});
}

void Download::readBody()
{
    if (m_givenUp)
        return;
    m_body += m_reply->read(m_limits.bytes + 1 - m_body.size());
    m_exchanges.last().bytes = m_body.size();
    if (m_body.size() > m_limits.bytes)
        giveUp(FetchError::Reason::TooLong, {});
}

void Download::giveUp(FetchError::Reason reason, const QString &detail)
{
    if (m_givenUp)
        return;
    m_givenUp = FetchError{reason, detail};
    m_reply->abort();
}

void Download::finish()
{
    readBody();
    m_reply->deleteLater();
    if (m_givenUp) {
        end(std::unexpected(*m_givenUp));
        return;
    }
    const int status = m_reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
    m_exchanges.last().status = status;
    const bool wasConditional = !m_question.etag.isEmpty() || !m_question.lastModified.isEmpty();
    if (status == statusOk && m_reply->error() == QNetworkReply::NoError)
        end(FeedAnswer{.body = m_body,
                       .etag = m_reply->rawHeader("ETag"),
                       .lastModified = m_reply->rawHeader("Last-Modified")});
    else if (status == statusNotModified && wasConditional)
        end(FeedAnswer{.isUnchanged = true});
    else if (m_reply->hasRawHeader("Location") && status / 100 == 3)
        follow(status);
    else if (status == 0 || status == statusOk)
        end(std::unexpected(connectionError()));
    else
        end(std::unexpected(FetchError{FetchError::Reason::Refused, QString::number(status)}));
}

void Download::follow(int status)
{
    const auto here = m_reply->url();
    const auto there = here.resolved(QUrl::fromEncoded(m_reply->rawHeader("Location"), QUrl::StrictMode));
    const bool isFresh = status != statusNotModified && m_exchanges.size() <= m_limits.redirects;
    if (!isFresh || !there.isValid() || !isSameServer(here, there)) {
        end(std::unexpected(FetchError{FetchError::Reason::LedElsewhere, there.toDisplayString()}));
        return;
    }
    m_body.clear();
    ask(there);
}

FetchError Download::connectionError() const
{
    if (!m_distrust.isEmpty())
        return {FetchError::Reason::NotTrusted, m_distrust};
    return {FetchError::Reason::NoConnection, m_reply->errorString()};
}

void Download::end(std::expected<FeedAnswer, FetchError> answer)
{
    disconnect(m_reply, nullptr, this, nullptr);
    if (!answer && answer.error().reason != FetchError::Reason::Refused)
        m_exchanges.last().failure = nameOf(answer.error().reason);
    Q_EMIT finished({m_exchanges, std::move(answer)});
}

} // namespace quillmark::update

// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "update/UpdateChecker.h"

#include "update/isHttps.h"

#include <QStandardPaths>

#include <utility>

namespace quillmark::update {

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 secondsOfDay = qint64{24} * 60 * 60;

} // namespace

UpdateChecker::UpdateChecker(settings::Settings &settings, Surroundings surroundings,
                             std::unique_ptr<FeedSource> source, QObject *parent)
    : QObject(parent)
    , m_settings(settings)
    , m_surroundings(std::move(surroundings))
    , m_source(std::move(source))
{
    if (const auto cached = readFeedCache(cacheFile(), feed())) {
        if (const auto known = parseFeed(cached->body))
            m_result = judge(*known);
    }
}

UpdateChecker::~UpdateChecker() = default;

QString UpdateChecker::defaultFolder()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) + "/Quillmark/Updates"_L1;
}

RequestLedger UpdateChecker::ledger(const QString &folder)
{
    return RequestLedger(folder + "/requests.json"_L1);
}

QString UpdateChecker::cacheFile() const
{
    return m_surroundings.folder + "/feed.cbor"_L1;
}

QUrl UpdateChecker::feed() const
{
    const auto chosen = m_settings.value(feedKey);
    return QUrl(chosen.isEmpty() ? QStringLiteral(QUILLMARK_UPDATE_FEED) : chosen);
}

QString UpdateChecker::host() const
{
    const auto url = feed();
    return isHttps(url) ? url.host() : QString();
}

UpdateChecker::Consent UpdateChecker::consent() const
{
    if (!m_settings.contains(automaticKey))
        return Consent::NotAsked;
    if (!m_settings.value(automaticKey))
        return Consent::Refused;
    const auto agreed = m_settings.value(agreedHostKey);
    return agreed.isEmpty() || agreed == host() ? Consent::Given : Consent::NotAsked;
}

void UpdateChecker::setConsent(bool isGiven)
{
    m_settings.setValue(agreedHostKey, host());
    m_settings.setValue(automaticKey, isGiven);
    if (!isGiven && isChecking()) {
        m_source->cancel();
        complete({}, u"cancelled"_s);
        finish(CheckFailure{CheckFailure::Reason::NoConsent});
    }
}

std::optional<QDateTime> UpdateChecker::lastChecked() const
{
    const auto date = QDateTime::fromString(m_settings.value(lastCheckedKey), Qt::ISODate);
    return date.isValid() ? std::optional(date.toUTC()) : std::nullopt;
}

bool UpdateChecker::isDue() const
{
    const auto last = lastChecked();
    const auto now = m_surroundings.now();
    // A clock that was put back must not put the next check off for good.
    return !last || *last > now || last->secsTo(now) >= secondsOfDay;
}

void UpdateChecker::check(Trigger trigger)
{
    if (isChecking() || (trigger == Trigger::Start && !(hasConsent() && isDue())))
        return;
    m_trigger = trigger;
    Q_EMIT checkingChanged();
    const auto fail = [this](CheckFailure::Reason reason) {
        QMetaObject::invokeMethod(
            this, [this, reason] { finish(CheckFailure{reason}); }, Qt::QueuedConnection);
    };
    const auto url = feed();
    if (!isHttps(url))
        return fail(CheckFailure::Reason::BadAddress);
    if (trigger != Trigger::ThisOnce && !hasConsent())
        return fail(CheckFailure::Reason::NoConsent);
    const auto now = m_surroundings.now();
    m_feed = url;
    const Exchange exchange{.date = now, .url = url};
    if (!ledger(m_surroundings.folder).begin(exchange))
        return fail(CheckFailure::Reason::NoLedger);
    m_begun = exchange;

    m_settings.setValue(lastCheckedKey, now.toString(Qt::ISODate));
    m_cached = readFeedCache(cacheFile(), url);
    FeedQuestion question{.url = url, .userAgent = "Quillmark/" + m_surroundings.running.text().toLatin1()};
    if (m_cached) {
        question.etag = m_cached->etag;
        question.lastModified = m_cached->lastModified;
    }
    m_source->fetch(question, [this](const FetchOutcome &outcome) { receive(outcome); });
}

void UpdateChecker::receive(const FetchOutcome &outcome)
{
    complete(outcome.exchanges, outcome.answer ? QString() : nameOf(outcome.answer.error().reason));
    const auto feed = feedFrom(outcome);
    finish(feed ? judge(*feed) : feed.error());
}

void UpdateChecker::complete(QList<Exchange> exchanges, const QString &failure)
{
    if (!m_begun)
        return;
    if (exchanges.isEmpty()) { // nothing more is known of the request than that it was sent
        exchanges = {*m_begun};
        exchanges.last().failure = failure;
    }
    ledger(m_surroundings.folder).complete(*m_begun, exchanges);
    m_begun.reset();
}

std::expected<Feed, CheckFailure> UpdateChecker::feedFrom(const FetchOutcome &outcome)
{
    if (!outcome.answer)
        return std::unexpected(
            CheckFailure{.reason = CheckFailure::Reason::NoFeed, .fetch = outcome.answer.error()});
    const auto &answer = *outcome.answer;
    const bool isNew = !answer.isUnchanged || !m_cached;
    auto feed = parseFeed(isNew ? answer.body : m_cached->body);
    if (!feed)
        return std::unexpected(
            CheckFailure{.reason = CheckFailure::Reason::Unreadable, .feed = feed.error()});
    if (isNew)
        writeFeedCache(
            cacheFile(),
            {.url = m_feed, .etag = answer.etag, .lastModified = answer.lastModified, .body = answer.body});
    return std::move(*feed);
}

CheckResult UpdateChecker::judge(const Feed &feed) const
{
    const auto offer = bestOffer(feed, m_surroundings.computer, m_surroundings.running);
    if (!offer)
        return UpToDate{};
    const auto skipped = Version::parse(m_settings.value(skippedVersionKey));
    return Available{.offer = *offer, .isSkipped = !offer->isCritical && skipped == offer->version};
}

void UpdateChecker::finish(const CheckResult &result)
{
    const auto trigger = std::exchange(m_trigger, {});
    if (!trigger) // it was given up meanwhile
        return;
    if (*trigger != Trigger::Start || !std::holds_alternative<CheckFailure>(result))
        m_result = result;
    Q_EMIT checkingChanged();
    Q_EMIT finished(result, *trigger);
}

void UpdateChecker::skip(const Version &version)
{
    m_settings.setValue(skippedVersionKey, version.text());
    if (auto *available = m_result ? std::get_if<Available>(&*m_result) : nullptr)
        available->isSkipped = !available->offer.isCritical && available->offer.version == version;
}

} // namespace quillmark::update

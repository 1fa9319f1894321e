// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "settings/Settings.h"
#include "update/FeedCache.h"
#include "update/FeedSource.h"
#include "update/Offer.h"
#include "update/RequestLedger.h"

#include <QDateTime>
#include <QObject>
#include <QString>
#include <QUrl>

#include <expected>
#include <functional>
#include <memory>
#include <optional>
#include <variant>

namespace quillmark::update {

/// The address of the feed; absent: the one that the program was built with.
inline const settings::Key<QString> feedKey = {QLatin1StringView("updates/feed")};
/// Whether the program may ask the feed, at its start and when it is told to; absent: the user was not asked
/// yet.
inline const settings::Key<bool> automaticKey = {QLatin1StringView("updates/automatic")};
/// The host that the user was told of in giving that answer; absent: it was set by other means, for any.
inline const settings::Key<QString> agreedHostKey = {QLatin1StringView("updates/agreedHost")};
/// When the feed was last asked, as ISO 8601 in UTC.
inline const settings::Key<QString> lastCheckedKey = {QLatin1StringView("updates/lastChecked")};
/// The version that the user does not want to hear of.
inline const settings::Key<QString> skippedVersionKey = {QLatin1StringView("updates/skippedVersion")};

struct UpToDate
{
    bool operator==(const UpToDate &) const = default;
};

struct Available
{
    Offer offer;
    bool isSkipped = false; ///< the user chose so; then it is not to be offered unasked

    bool operator==(const Available &) const = default;
};

/// Why it is not known whether there is a newer version.
struct CheckFailure
{
    enum class Reason {
        NoConsent,  ///< to ask this host; nothing was sent
        BadAddress, ///< the feed's is not https; nothing was sent
        NoLedger,   ///< the request could not be recorded, and so was not sent
        NoFeed,     ///< none came: see `fetch`
        Unreadable, ///< what came is no feed: see `feed`
    };

    Reason reason;
    std::optional<FetchError> fetch;
    std::optional<FeedError> feed;

    bool operator==(const CheckFailure &) const = default;
};

using CheckResult = std::variant<UpToDate, Available, CheckFailure>;

enum class Trigger {
    Start,    ///< of the program: only with consent, at most once a day
    OnDemand, ///< only with consent
    ThisOnce, ///< the user has agreed to this one request, whatever was answered before
};

/// Knows whether a newer version is published, and tells; it installs nothing.
///
/// Sends nothing without the user’s consent, which is for one host: where the feed’s address becomes that of
/// another, the user is to be asked again. Lives on the main thread, which does not wait for the network.
class UpdateChecker : public QObject
{
    Q_OBJECT

public:
    enum class Consent { NotAsked, Given, Refused };

    struct Surroundings
    {
        Computer computer;
        Version running;                  ///< the version of this program
        QString folder = defaultFolder(); ///< for the ledger and the last feed
        std::function<QDateTime()> now = &QDateTime::currentDateTimeUtc;
    };

    /// The settings have to outlive it.
    UpdateChecker(settings::Settings &settings, Surroundings surroundings, std::unique_ptr<FeedSource> source,
                  QObject *parent = nullptr);
    ~UpdateChecker() override;

    static QString defaultFolder();
    static RequestLedger ledger(const QString &folder = defaultFolder());

    QUrl feed() const;
    /// The one that the question for consent has to name. Empty when the feed’s address is not
    /// one of https, and so is never asked.
    QString host() const;

    Consent consent() const;
    bool hasConsent() const { return consent() == Consent::Given; }
    /// The user’s answer. A refusal also ends a check that is under way.
    void setConsent(bool isGiven);

    bool isChecking() const { return m_trigger.has_value(); }
    /// None: never.
    std::optional<QDateTime> lastChecked() const;
    /// Before the first check, what the last feed that came says, if there is one. That a check at the start
    /// failed does not change it.
    const std::optional<CheckResult> &lastResult() const { return m_result; }

    /// At the start of the program. Does nothing without consent, or when the feed was asked within a day.
    void checkIfDue() { check(Trigger::Start); }
    void checkNow() { check(Trigger::OnDemand); }
    /// Ends in finished(), later; does nothing while a check is under way.
    void check(Trigger trigger);

    /// Not to offer this very version any more, unless it is critical.
    void skip(const Version &version);

Q_SIGNALS:
    void checkingChanged();
    /// With Trigger::Start, a failure is nothing to bother anyone with.
    void finished(const quillmark::update::CheckResult &result, quillmark::update::Trigger trigger);

private:
    bool isDue() const;
    void receive(const FetchOutcome &outcome);
    /// Enters in the ledger what came of the request.
    void complete(QList<Exchange> exchanges, const QString &failure);
    std::expected<Feed, CheckFailure> feedFrom(const FetchOutcome &outcome);
    CheckResult judge(const Feed &feed) const;
    void finish(const CheckResult &result);
    QString cacheFile() const;

    settings::Settings &m_settings;
    Surroundings m_surroundings;
    std::unique_ptr<FeedSource> m_source;
    std::optional<Trigger> m_trigger; ///< of the check under way
    QUrl m_feed;                      ///< that it asks
    std::optional<Exchange> m_begun;  ///< its entry in the ledger, while that waits for its outcome
    std::optional<CachedFeed> m_cached;
    std::optional<CheckResult> m_result;
};

} // namespace quillmark::update

// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "update/updateTexts.h"

#include "update/Text.h"

namespace quillmark::update {

namespace {

QString reasonText(const FetchError &error, const QString &host)
{
    switch (error.reason) {
    case FetchError::Reason::NoConnection:
        //: %1 is a server, as in all of these: tarnwick.com; %2 is the reason, in English: Connection refused
        return Text::tr("%1 could not be reached: %2").arg(host, error.detail);
    case FetchError::Reason::NotTrusted:
        return Text::tr("%1 could not prove that it is %1: %2").arg(host, error.detail);
    case FetchError::Reason::TimedOut:
        return Text::tr("%1 did not answer in time.").arg(host);
    case FetchError::Reason::TooLong:
        return Text::tr("What %1 answered is longer than a feed may be.").arg(host);
    case FetchError::Reason::LedElsewhere:
        //: %2 is the address
        return Text::tr("%1 leads to another address, which was not followed: %2").arg(host, error.detail);
    case FetchError::Reason::Refused:
        return Text::tr("%1 answered with status %2 instead of a feed.").arg(host, error.detail);
    }
    return {};
}

QString reasonText(const FeedError &error, const QString &host)
{
    switch (error.reason) {
    case FeedError::Reason::NotXml:
        return Text::tr("What %1 answered is not a feed: it is no XML, or a part of one.").arg(host);
    case FeedError::Reason::DocumentType:
        return Text::tr("What %1 answered is not a feed: it declares a document type.").arg(host);
    case FeedError::Reason::NotFeed:
        return Text::tr("What %1 answered is not a feed: it is another kind of XML.").arg(host);
    case FeedError::Reason::TooDeep:
    case FeedError::Reason::TooMany:
        return Text::tr("What %1 answered is not a feed: there is more in it than in any.").arg(host);
    }
    return {};
}

} // namespace

QString consentQuestion(const QString &host)
{
    return Text::tr(
               "May Quillmark ask %1 for newer versions: now, and once a day at most when its window opens?")
        .arg(host);
}

QString consentNote()
{
    return Text::tr("The request carries Quillmark’s version and nothing about you or this computer. Nothing "
                    "is installed.");
}

QString headline(const CheckResult &result, const Version &running)
{
    if (const auto *available = std::get_if<Available>(&result)) {
        const auto &title = available->offer.title;
        //: %1 and %2 are versions, as in all of these: 1.2
        if (available->isSkipped)
            return Text::tr("Quillmark %1 is available, which you chose to skip. You have version %2.")
                .arg(title, running.text());
        if (available->offer.isCritical)
            return Text::tr("Quillmark %1 is available, an important update. You have version %2.")
                .arg(title, running.text());
        return Text::tr("Quillmark %1 is available. You have version %2.").arg(title, running.text());
    }
    if (std::holds_alternative<UpToDate>(result))
        return Text::tr("Quillmark %1 is up to date.").arg(running.text());
    return Text::tr("Quillmark could not find out whether there is a newer version.");
}

QString reasonText(const CheckFailure &failure, const QUrl &feed)
{
    const auto host = feed.host();
    switch (failure.reason) {
    case CheckFailure::Reason::NoConsent:
        return Text::tr("%1 was not asked, because you have not agreed to that.").arg(host);
    case CheckFailure::Reason::BadAddress:
        return Text::tr("The address of the update feed is not one of https: %1").arg(feed.toDisplayString());
    case CheckFailure::Reason::NoLedger:
        return Text::tr("%1 was not asked, because the record of requests cannot be written.").arg(host);
    case CheckFailure::Reason::NoFeed:
        return failure.fetch ? reasonText(*failure.fetch, host) : QString();
    case CheckFailure::Reason::Unreadable:
        return failure.feed ? reasonText(*failure.feed, host) : QString();
    }
    return {};
}

} // namespace quillmark::update

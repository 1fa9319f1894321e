// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "update/Feed.h"

#include "update/isHttps.h"
#include "update/plainText.h"

#include <QRegularExpression>
#include <QStringDecoder>
#include <QXmlStreamReader>

namespace quillmark::update {

using namespace Qt::StringLiterals;

namespace {

constexpr auto sparkle = "http://www.andymatuschak.org/xml-namespaces/sparkle"_L1;
constexpr int deepest = 64;
constexpr qsizetype mostItems = 1000;
constexpr qsizetype longestTitle = 64;

QUrl httpsUrl(const QString &text)
{
    const QUrl url(text.trimmed(), QUrl::StrictMode);
    return isHttps(url) ? url : QUrl();
}

QString titleOf(const QString &text)
{
    return harmless(text.simplified(), longestTitle);
}

/// Walks the elements of a feed. After the first fault nothing more is found.
class FeedReader
{
public:
    explicit FeedReader(const QString &text)
        : m_xml(text)
    {
        m_xml.setEntityExpansionLimit(0);
    }

    std::expected<Feed, FeedError> read()
    {
        if (nextChild() && (m_xml.name() != "rss"_L1 || !m_xml.namespaceUri().isEmpty()))
            fail(FeedError::Reason::NotFeed);
        while (nextChild()) {
            if (isPlain("channel"_L1))
                readChannel();
            else
                skip();
        }
        // What follows the root is part of the document too.
        while (!m_error && !m_xml.atEnd())
            next();
        if (m_error)
            return std::unexpected(*m_error);
        for (auto &item : m_feed.items) {
            if (item.downloadPage.isEmpty())
                item.downloadPage = m_site;
        }
        return std::move(m_feed);
    }

private:
    using Token = QXmlStreamReader::TokenType;

    void fail(FeedError::Reason reason)
    {
        if (!m_error)
            m_error = FeedError{reason, m_xml.lineNumber()};
    }

    Token next()
    {
        if (m_error)
            return Token::Invalid;
        const auto token = m_xml.readNext();
        if (token == Token::DTD || token == Token::EntityReference)
            fail(FeedError::Reason::DocumentType);
        else if (token == Token::Invalid)
            fail(FeedError::Reason::NotXml);
        else if (token == Token::StartElement && ++m_depth > deepest)
            fail(FeedError::Reason::TooDeep);
        else if (token == Token::EndElement)
            --m_depth;
        return m_error ? Token::Invalid : token;
    }

    /// Goes on to the next element within the one it is in; false: that has ended.
    bool nextChild()
    {
        for (;;) {
            const auto token = next();
            if (token == Token::StartElement)
                return true;
            if (token == Token::EndElement || token == Token::EndDocument || token == Token::Invalid)
                return false;
        }
    }

    /// All text in the element it is at, that of its children too. Goes on to its end.
    QString text()
    {
        QString text;
        for (const auto outside = m_depth - 1; m_depth > outside;) {
            const auto token = next();
            if (token == Token::Invalid)
                return {};
            if (token == Token::Characters)
                text += m_xml.text();
        }
        return text;
    }

    void skip() { text(); }

    bool isPlain(QLatin1StringView name) const
    {
        return m_xml.namespaceUri().isEmpty() && m_xml.name() == name;
    }
    bool isSparkle(QLatin1StringView name) const
    {
        return m_xml.namespaceUri() == sparkle && m_xml.name() == name;
    }
    QString sparkleAttribute(QLatin1StringView name) const
    {
        return m_xml.attributes().value(sparkle, name).toString();
    }

    void readChannel()
    {
        while (nextChild()) {
            if (isPlain("item"_L1)) {
                if (m_feed.items.size() == mostItems)
                    fail(FeedError::Reason::TooMany);
                FeedItem item;
                readItem(item);
                m_feed.items.append(std::move(item));
            } else if (isPlain("link"_L1)) {
                keepFirst(m_site, httpsUrl(text()));
            } else {
                skip();
            }
        }
    }

    void readItem(FeedItem &item)
    {
        while (nextChild()) {
            if (m_xml.namespaceUri() == sparkle)
                readSparkle(item);
            else if (isPlain("link"_L1))
                keepFirst(item.downloadPage, httpsUrl(text()));
            else if (isPlain("description"_L1))
                readNotes(item);
            else if (isPlain("pubDate"_L1))
                item.published = QDateTime::fromString(text().trimmed(), Qt::RFC2822Date).toUTC();
            else if (isPlain("enclosure"_L1))
                readEnclosure(item);
            else
                skip();
        }
    }

    void readSparkle(FeedItem &item)
    {
        if (isSparkle("version"_L1))
            item.version = Version::parse(text());
        else if (isSparkle("shortVersionString"_L1))
            item.title = titleOf(text());
        else if (isSparkle("channel"_L1))
            readChannel(item);
        else if (isSparkle("minimumSystemVersion"_L1))
            readRequirement(item.minimumSystem, item);
        else if (isSparkle("maximumSystemVersion"_L1))
            readRequirement(item.maximumSystem, item);
        else if (isSparkle("hardwareRequirements"_L1))
            readHardware(item);
        else if (isSparkle("criticalUpdate"_L1))
            readCritical(item);
        else if (isSparkle("releaseNotesLink"_L1))
            keepFirst(item.releaseNotes, httpsUrl(text()));
        else if (isSparkle("tags"_L1))
            readTags(item);
        else
            skip();
    }

    /// A name of which nothing can be shown is one all the same: the item is not for everybody.
    void readChannel(FeedItem &item)
    {
        const auto name = text().trimmed();
        item.channel = titleOf(name);
        item.isUnusable |= item.channel.isEmpty() && !name.isEmpty();
    }

    void readRequirement(std::optional<Version> &version, FeedItem &item)
    {
        version = Version::parse(text());
        item.isUnusable |= !version;
    }

    void readHardware(FeedItem &item)
    {
        static const QRegularExpression separators(u"[\\s,]+"_s);
        item.hardware = text().toLower().split(separators, Qt::SkipEmptyParts);
    }

    void readCritical(FeedItem &item)
    {
        item.isCritical = true;
        item.criticalBelow = Version::parse(sparkleAttribute("version"_L1));
        skip();
    }

    /// Where feeds marked critical items before there was an element for it in the item itself.
    void readTags(FeedItem &item)
    {
        while (nextChild()) {
            item.isCritical |= isSparkle("criticalUpdate"_L1);
            skip();
        }
    }

    void readNotes(FeedItem &item)
    {
        const auto format = sparkleAttribute("format"_L1);
        const bool isPlainText = format == "plain-text"_L1 || format == "markdown"_L1;
        const auto notes = text();
        if (item.notes.isEmpty())
            item.notes = isPlainText ? harmless(notes) : plainTextOf(notes);
    }

    void readEnclosure(FeedItem &item)
    {
        const auto system = sparkleAttribute("os"_L1).trimmed().toLower();
        item.enclosures.append({.system = system.isEmpty() ? u"macos"_s : system,
                                .version = Version::parse(sparkleAttribute("version"_L1)),
                                .title = titleOf(sparkleAttribute("shortVersionString"_L1))});
        skip();
    }

    static void keepFirst(QUrl &kept, const QUrl &url)
    {
        if (kept.isEmpty())
            kept = url;
    }

    QXmlStreamReader m_xml;
    int m_depth = 0;
    std::optional<FeedError> m_error;
    Feed m_feed;
    QUrl m_site; ///< the channel's own page
};

} // namespace

std::expected<Feed, FeedError> parseFeed(QByteArrayView bytes)
{
    QStringDecoder decoder(QStringDecoder::Utf8);
    const QString text = decoder.decode(bytes);
    if (decoder.hasError())
        return std::unexpected(FeedError{FeedError::Reason::NotXml});
    return FeedReader(text).read();
}

} // namespace quillmark::update

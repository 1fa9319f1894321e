// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QFile>
#include <QHash>
#include <QList>
#include <QProcess>
#include <QRectF>
#include <QRegularExpression>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>
#include <QXmlStreamReader>

#include <algorithm>
#include <limits>

namespace quillmark::support {

/// A PDF document as Poppler’s tools read it.
class ReadPdf
{
public:
    struct Word
    {
        QString text;
        QRectF box; ///< points from the page’s upper left corner
    };

    struct Page
    {
        QSizeF size;
        QList<Word> words;
    };

    explicit ReadPdf(const QByteArray &document)
    {
        QFile file(path());
        if (!file.open(QIODevice::WriteOnly) || file.write(document) != document.size())
            qFatal("%s", qPrintable(file.errorString()));
        file.close();
        readWords(run("pdftotext", {QStringLiteral("-bbox"), path(), QStringLiteral("-")}));
    }

    const QList<Page> &pages() const { return m_pages; }

    /// "Title" → "Quillmark report"
    QString info(const QString &name) const
    {
        for (const auto &line : QString::fromUtf8(run("pdfinfo", {path()})).split(u'\n')) {
            if (line.startsWith(name + u':'))
                return line.mid(name.size() + 1).trimmed();
        }
        return {};
    }

    /// A line of pdffonts for each font: "NotoSans-Regular  CID TrueType  Identity-H  yes no  yes  20  0"
    QStringList fonts() const
    {
        return QString::fromUtf8(run("pdffonts", {path()})).split(u'\n', Qt::SkipEmptyParts).mid(2);
    }

    QByteArray attachment() const
    {
        const auto target = m_folder.filePath(QStringLiteral("attachment"));
        run("pdfdetach", QStringLiteral("-save 1 -o").split(u' ') << target << path());
        return bytesOf(target);
    }

    /// The page’s words in reading order, without any white space.
    QString text(qsizetype page) const { return joined(m_pages[page].words); }
    QString text() const
    {
        QString all;
        for (qsizetype page = 0; page < m_pages.size(); ++page)
            all += text(page);
        return all;
    }

    /// The rows of the sections, "label|value|status" without white space, by where words stand: a status
    /// begins a row, which ends before the next. The first page has none.
    QStringList rows(const QStringList &statuses) const
    {
        QList<Word> strip; // all pages, one below the other
        for (qsizetype page = 1; page < m_pages.size(); ++page) {
            for (auto word : tableWords(m_pages[page])) {
                word.box.translate(0, m_pages[page].size.height() * static_cast<qreal>(page));
                strip += word;
            }
        }
        return rowsOf(strip, m_pages.first().size.width() - tableLeft, statuses);
    }

    /// The headings of the page’s tables, without white space and with what stands beside them.
    QStringList headings(qsizetype page) const
    {
        QStringList result;
        const auto &words = m_pages[page].words;
        for (const auto &word : words) {
            if (!isHeading(word))
                continue;
            QList<Word> line = words;
            line.removeIf([&word](const Word &other) { return !areOnOneLine(word, other); });
            result += joined(line);
        }
        return result;
    }

    /// The list of contents: the page that each entry names, by its text without white space.
    QHash<QString, int> contents() const
    {
        QHash<QString, int> entries;
        for (const auto &page : m_pages) {
            const qreal middle = page.size.width() / 2;
            for (qsizetype i = 0; i + 1 < page.words.size(); ++i) {
                const auto &word = page.words[i];
                if (word.text != u"p.")
                    continue;
                QList<Word> title;
                for (const auto &other : page.words) {
                    if (areOnOneLine(word, other) &&
                        (other.box.left() > middle) == (word.box.left() > middle) &&
                        !other.text.front().isDigit() && other.text != u"of" && other.text != u"p.")
                        title += other;
                }
                entries[joined(title)] = page.words[i + 1].text.toInt();
            }
        }
        return entries;
    }

    /// The text without white space and without the marks around text of the other direction.
    static QString dense(QString text)
    {
        return text.removeIf([](QChar c) { return c.isSpace() || (c >= u'\u2066' && c <= u'\u2069'); });
    }

private:
    QString path() const { return m_folder.filePath(QStringLiteral("document.pdf")); }

    static QByteArray bytesOf(const QString &name)
    {
        QFile file(name);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    static QByteArray run(const char *tool, const QStringList &arguments)
    {
        QProcess process;
        process.start(QString::fromLatin1(tool), arguments);
        if (!process.waitForFinished() || process.exitCode() != 0 ||
            !process.readAllStandardError().isEmpty())
            qFatal("%s (of poppler-utils) failed", tool);
        return process.readAllStandardOutput();
    }

    void readWords(const QByteArray &xhtml)
    {
        QXmlStreamReader xml(xhtml);
        while (!xml.atEnd()) {
            if (xml.readNext() != QXmlStreamReader::StartElement)
                continue;
            const auto number = [&xml](const char *name) {
                return xml.attributes().value(QLatin1String(name)).toDouble();
            };
            if (xml.name() == QLatin1String("page"))
                m_pages.append({{number("width"), number("height")}, {}});
            if (xml.name() != QLatin1String("word"))
                continue;
            const QRectF box(QPointF(number("xMin"), number("yMin")),
                             QPointF(number("xMax"), number("yMax")));
            m_pages.last().words.append({xml.readElementText(), box});
        }
    }

    static QString joined(const QList<Word> &words)
    {
        QString text;
        for (const auto &word : words)
            text += word.text;
        return dense(text);
    }

    /// Where the columns of a section’s table begin, from its left edge: a heading’s text stands further in
    /// than labels.
    static constexpr qreal tableLeft = 48;
    static constexpr qreal labelAt = 17;
    static constexpr qreal headingAt = 20;
    static constexpr qreal valueAt = 195;

    static bool areOnOneLine(const Word &a, const Word &b)
    {
        return qAbs(a.box.center().y() - b.box.center().y()) < 5;
    }

    static bool isHeading(const Word &word) { return qAbs(word.box.left() - tableLeft - headingAt) < 0.5; }

    /// The words of the tables: without the page’s header and foot, headings, and lines that begin at the
    /// very edge.
    static QList<Word> tableWords(const Page &page)
    {
        QList<Word> words;
        for (const auto &word : page.words) {
            const auto isBesideOther = [&word](const Word &other) {
                return (isHeading(other) || other.box.left() < tableLeft + labelAt - 1) &&
                       areOnOneLine(word, other);
            };
            if (word.box.top() > 70 && word.box.bottom() < page.size.height() - 42 &&
                std::ranges::none_of(page.words, isBesideOther))
                words += word;
        }
        return words;
    }

    struct Status
    {
        QString text;
        QRectF box; ///< of its first word
    };

    /// The statuses at the right edge, from top to bottom.
    static QList<Status> statusesOf(const QList<Word> &words, qreal rightEdge, const QStringList &statuses)
    {
        QList<Status> found;
        for (qsizetype i = 0; i < words.size(); ++i) {
            for (const auto &status : statuses) {
                const auto parts = status.split(u' ');
                QList<Word> here = words.mid(i, parts.size());
                if (joined(here) == dense(status) && qAbs(here.last().box.right() - rightEdge) < 1 &&
                    (i == 0 || !areOnOneLine(words[i - 1], words[i]) ||
                     words[i - 1].box.right() < words[i].box.left() - 4))
                    found += {status, words[i].box};
            }
        }
        std::ranges::sort(found, {}, [](const Status &status) { return status.box.top(); });
        return found;
    }

    static QStringList rowsOf(const QList<Word> &words, qreal rightEdge, const QStringList &statuses)
    {
        QStringList rows;
        const auto found = statusesOf(words, rightEdge, statuses);
        for (qsizetype row = 0; row < found.size(); ++row) {
            const qreal top = found[row].box.center().y() - 5;
            const qreal bottom = row + 1 < found.size() ? found[row + 1].box.center().y() - 5
                                                        : std::numeric_limits<qreal>::max();
            QList<Word> label;
            QList<Word> value;
            for (const auto &word : words) {
                const qreal y = word.box.center().y();
                if (y > top && y < bottom && word.box.left() < found[row].box.left() - 0.1)
                    (word.box.left() < tableLeft + valueAt - 1 ? label : value) += word;
            }
            rows += QStringList{joined(label), joined(value), dense(found[row].text)}.join(u'|');
        }
        return rows;
    }

    QTemporaryDir m_folder;
    QList<Page> m_pages;
};

} // namespace quillmark::support

// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "update/plainText.h"

#include <QList>
#include <QStringList>

#include <algorithm>
#include <array>
#include <utility>

namespace quillmark::update {

using namespace Qt::StringLiterals;

namespace {

bool isHarmless(char32_t c)
{
    // Both joiners and both marks of direction are part of how some languages are written.
    if (c >= 0x200C && c <= 0x200F)
        return true;
    switch (QChar::category(c)) {
    case QChar::Other_Control:
    case QChar::Other_Format:
    case QChar::Other_Surrogate:
    case QChar::Other_PrivateUse:
    case QChar::Other_NotAssigned:
        return false;
    default:
        return true;
    }
}

/// What an HTML character reference, without & and ;, stands for; nothing when it is not known.
QString characterNamed(QStringView name)
{
    static constexpr std::array<std::pair<QLatin1StringView, char16_t>, 17> names = {{
        {"amp"_L1, u'&'},
        {"lt"_L1, u'<'},
        {"gt"_L1, u'>'},
        {"quot"_L1, u'"'},
        {"apos"_L1, u'\''},
        {"nbsp"_L1, u' '},
        {"ndash"_L1, u'\u2013'},
        {"mdash"_L1, u'\u2014'},
        {"hellip"_L1, u'\u2026'},
        {"lsquo"_L1, u'\u2018'},
        {"rsquo"_L1, u'\u2019'},
        {"ldquo"_L1, u'\u201C'},
        {"rdquo"_L1, u'\u201D'},
        {"bull"_L1, u'\u2022'},
        {"times"_L1, u'\u00D7'},
        {"copy"_L1, u'\u00A9'},
        {"rarr"_L1, u'\u2192'},
    }};
    if (name.startsWith(u'#')) {
        const bool isHex = name.size() > 1 && (name[1] == u'x' || name[1] == u'X');
        bool isNumber = false;
        const auto number = name.sliced(isHex ? 2 : 1).toUInt(&isNumber, isHex ? 16 : 10);
        if (!isNumber || number == 0 || number > 0x10FFFF || QChar::isSurrogate(number))
            return {};
        return QStringView(QChar::fromUcs4(number)).toString();
    }
    const auto found = std::ranges::find_if(names, [&](const auto &entry) { return name == entry.first; });
    return found == names.end() ? QString() : QString(QChar(found->second));
}

/// Goes through HTML once, from the front.
class HtmlText
{
public:
    explicit HtmlText(QStringView html)
        : m_html(html)
    {}

    QString take()
    {
        while (m_at < m_html.size()) {
            const auto c = m_html[m_at];
            if (c == u'<' && beginsTag())
                takeTag();
            else if (c == u'&')
                takeReference();
            else
                takeCharacter(c);
        }
        return m_text;
    }

private:
    bool beginsTag() const
    {
        if (m_at + 1 >= m_html.size())
            return false;
        const auto next = m_html[m_at + 1];
        return next.isLetter() || next == u'/' || next == u'!' || next == u'?';
    }

    void takeTag()
    {
        if (m_html.sliced(m_at).startsWith("<!--"_L1)) {
            skipBehind("-->"_L1);
            return;
        }
        const auto begin = ++m_at;
        while (m_at < m_html.size() &&
               (m_html[m_at].isLetterOrNumber() || (m_at == begin && m_html[m_at] == u'/')))
            ++m_at;
        const auto name = m_html.sliced(begin, m_at - begin).toString().toLower();
        QChar quote;
        for (; m_at < m_html.size() && (!quote.isNull() || m_html[m_at] != u'>'); ++m_at) {
            const auto c = m_html[m_at];
            if (c == quote)
                quote = QChar();
            else if (quote.isNull() && (c == u'"' || c == u'\''))
                quote = c;
        }
        ++m_at;
        layOut(name);
        if (name == "script"_L1 || name == "style"_L1 || name == "title"_L1)
            skipBehind(u"</"_s + name + u'>');
    }

    void layOut(const QString &tag)
    {
        static const QStringList paragraphs = {u"p"_s,          u"ul"_s,  u"ol"_s, u"table"_s,
                                               u"blockquote"_s, u"pre"_s, u"h1"_s, u"h2"_s,
                                               u"h3"_s,         u"h4"_s,  u"h5"_s, u"h6"_s};
        static const QStringList lines = {u"br"_s, u"li"_s, u"div"_s,     u"tr"_s,     u"dt"_s,
                                          u"dd"_s, u"hr"_s, u"section"_s, u"article"_s};
        const auto name = tag.startsWith(u'/') ? tag.sliced(1) : tag;
        if (paragraphs.contains(name))
            m_breaks = 2;
        else if (lines.contains(name))
            m_breaks = std::max(m_breaks, 1);
        else if (name == "td"_L1 || name == "th"_L1)
            m_space = true;
        if (tag == "li"_L1) {
            m_breaks = std::min(m_breaks, m_inList ? 1 : 2);
            m_inList = true;
            append(u"• "_s);
        } else if (tag == "/ul"_L1 || tag == "/ol"_L1) {
            m_inList = false;
        }
    }

    void takeReference()
    {
        constexpr qsizetype longestName = 10;
        const auto end = m_html.sliced(m_at).first(std::min(longestName, m_html.size() - m_at)).indexOf(u';');
        const auto character = end > 1 ? characterNamed(m_html.sliced(m_at + 1, end - 1)) : QString();
        if (character.isEmpty()) {
            takeCharacter(u'&');
            return;
        }
        m_at += end + 1;
        append(character);
    }

    void takeCharacter(QChar c)
    {
        ++m_at;
        if (c.isSpace())
            m_space = true;
        else
            append(c);
    }

    void append(const QString &visible)
    {
        if (!m_text.isEmpty() && m_breaks > 0)
            m_text += QString(m_breaks, u'\n');
        else if (!m_text.isEmpty() && m_space && !m_text.endsWith(u' '))
            m_text += u' ';
        m_breaks = 0;
        m_space = false;
        m_text += visible;
    }

    void skipBehind(const QString &end)
    {
        const auto found = m_html.indexOf(end, m_at, Qt::CaseInsensitive);
        m_at = found < 0 ? m_html.size() : found + end.size();
    }

    QStringView m_html;
    QString m_text;
    qsizetype m_at = 0;
    int m_breaks = 0; ///< line breaks to come before the next character
    bool m_space = false;
    bool m_inList = false;
};

} // namespace

QString harmless(const QString &text, qsizetype longest)
{
    QString result;
    qsizetype count = 0;
    int breaks = 0;
    int spaces = 0;
    for (const char32_t c : text.toUcs4()) {
        if (c == U'\n' || c == 0x2028 || c == 0x2029) {
            ++breaks;
            spaces = 0;
        } else if (c == U' ' || c == U'\t') {
            ++spaces;
        } else if (isHarmless(c)) {
            if (count >= longest)
                return result + u'…';
            if (!result.isEmpty()) {
                result += QString(std::min(breaks, 2), u'\n');
                result += QString(std::min(spaces, 8), u' ');
            }
            count += std::min(breaks, 2) + std::min(spaces, 8) + 1;
            breaks = spaces = 0;
            result += QChar::fromUcs4(c);
        }
    }
    return result;
}

QString plainTextOf(const QString &html)
{
    return harmless(HtmlText(html).take());
}

} // namespace quillmark::update

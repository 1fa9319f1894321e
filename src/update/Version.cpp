// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "update/Version.h"

#include <algorithm>

namespace quillmark::update {

namespace {

constexpr qsizetype longest = 64;
constexpr qsizetype mostDigits = 18; // of what qint64 holds

bool isDigit(QChar c)
{
    return c >= u'0' && c <= u'9';
}

bool isLetter(QChar c)
{
    return (c >= u'a' && c <= u'z') || (c >= u'A' && c <= u'Z');
}

bool isSeparator(QChar c)
{
    return QStringView(u".-_~ ").contains(c);
}

} // namespace

std::strong_ordering Version::Part::operator<=>(const Part &other) const
{
    if (word.isEmpty() != other.word.isEmpty())
        return word.isEmpty() ? std::strong_ordering::less : std::strong_ordering::greater;
    return word.isEmpty() ? number <=> other.number : word.compare(other.word) <=> 0;
}

std::optional<Version> Version::parse(QStringView text)
{
    text = text.trimmed();
    if (text.isEmpty() || text.size() > longest || !isDigit(text.front()))
        return {};
    Version version;
    version.m_text = text.toString();
    const auto counted = text.first(text.contains(u'+') ? text.indexOf(u'+') : text.size());
    const auto isAllowed = [](QChar c) { return isDigit(c) || isLetter(c) || isSeparator(c) || c == u'+'; };
    if (!std::ranges::all_of(text, isAllowed))
        return {};

    bool isPreRelease = false;
    for (qsizetype i = 0; i < counted.size();) {
        const auto begin = i;
        if (isSeparator(counted[i])) {
            isPreRelease |= counted[i++] != u'.';
        } else if (isDigit(counted[i])) {
            while (i < counted.size() && isDigit(counted[i]))
                ++i;
            if (i - begin > mostDigits)
                return {};
            const auto number = counted.sliced(begin, i - begin).toLongLong();
            if (isPreRelease)
                version.m_preRelease.append(Part{.number = number});
            else
                version.m_numbers.append(number);
        } else {
            isPreRelease = true;
            while (i < counted.size() && isLetter(counted[i]))
                ++i;
            version.m_preRelease.append(Part{.word = counted.sliced(begin, i - begin).toString().toLower()});
        }
    }
    while (!version.m_numbers.isEmpty() && version.m_numbers.last() == 0)
        version.m_numbers.removeLast();
    return version;
}

std::strong_ordering operator<=>(const Version &one, const Version &other)
{
    const auto byNumbers = std::lexicographical_compare_three_way(
        one.m_numbers.begin(), one.m_numbers.end(), other.m_numbers.begin(), other.m_numbers.end());
    if (byNumbers != 0)
        return byNumbers;
    if (one.m_preRelease.isEmpty() != other.m_preRelease.isEmpty())
        return one.m_preRelease.isEmpty() ? std::strong_ordering::greater : std::strong_ordering::less;
    return std::lexicographical_compare_three_way(one.m_preRelease.begin(), one.m_preRelease.end(),
                                                  other.m_preRelease.begin(), other.m_preRelease.end());
}

} // namespace quillmark::update

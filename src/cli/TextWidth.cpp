// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "cli/TextWidth.h"

#include <unicode/uchar.h>

namespace quillmark::cli {

namespace {

bool runsRightToLeft(const QString &text)
{
    for (const char32_t codePoint : text.toUcs4()) {
        const auto direction = u_charDirection(static_cast<UChar32>(codePoint));
        if (direction == U_RIGHT_TO_LEFT || direction == U_RIGHT_TO_LEFT_ARABIC)
            return true;
    }
    return false;
}

bool reordersText(QChar c)
{
    const auto code = c.unicode();
    return (code >= 0x202A && code <= 0x202E) || (code >= 0x2066 && code <= 0x2069);
}

/// How many characters of the text fit into that many columns; at least one, so that every line gets on.
qsizetype fittingLength(const QString &text, int columns)
{
    qsizetype length = 0;
    int width = 0;
    while (length < text.size()) {
        const qsizetype step = text.at(length).isHighSurrogate() && length + 1 < text.size() ? 2 : 1;
        width += textWidth(text.mid(length, step));
        if (width > columns && length > 0)
            break;
        length += step;
    }
    return length;
}

} // namespace

char32_t takeCharacter(const QString &text, qsizetype &at)
{
    const QChar c = text.at(at++);
    if (!c.isHighSurrogate() || at == text.size() || !text.at(at).isLowSurrogate())
        return c.unicode();
    return QChar::surrogateToUcs4(c, text.at(at++));
}

int characterWidth(char32_t character)
{
    // What an interface is mostly written with need not be looked up.
    const auto isWithin = [character](char32_t first, char32_t last) {
        return character >= first && character <= last;
    };
    if (isWithin(U' ', U'~') || isWithin(U'\u00AE', U'\u02FF') || isWithin(U'\u2190', U'\u21FF') ||
        isWithin(U'\u2713', U'\u2717'))
        return 1;
    const auto c = static_cast<UChar32>(character);
    switch (u_charType(c)) {
    case U_NON_SPACING_MARK:
    case U_ENCLOSING_MARK:
    case U_FORMAT_CHAR:
    case U_CONTROL_CHAR:
        return 0;
    default:
        break;
    }
    switch (u_getIntPropertyValue(c, UCHAR_EAST_ASIAN_WIDTH)) {
    case U_EA_FULLWIDTH:
    case U_EA_WIDE:
        return 2;
    default:
        return 1;
    }
}

int textWidth(const QString &text)
{
    int width = 0;
    for (qsizetype at = 0; at < text.size();)
        width += characterWidth(takeCharacter(text, at));
    return width;
}

QString padded(const QString &text, int columns)
{
    constexpr QChar firstStrongIsolate(0x2068);
    constexpr QChar popIsolate(0x2069);
    const QString spaces(qMax(0, columns - textWidth(text)), u' ');
    return runsRightToLeft(text) ? firstStrongIsolate + text + popIsolate + spaces : text + spaces;
}

QStringList wrapped(const QString &text, int columns)
{
    QStringList lines;
    QString rest = text;
    while (textWidth(rest) > columns) {
        const auto fitting = fittingLength(rest, columns);
        const auto space = rest.lastIndexOf(u' ', fitting);
        const auto end = space > 0 ? space : fitting;
        lines += rest.left(end);
        rest = rest.mid(end).trimmed();
    }
    lines += rest;
    return lines;
}

QString printable(const QString &text, qsizetype longest)
{
    const bool isCut = text.size() > longest;
    QString result;
    result.reserve(qMin(text.size(), longest + 1));
    for (const QChar c : text.left(longest)) {
        if (c.category() == QChar::Other_Control)
            result += QChar(QChar::ReplacementCharacter);
        else if (!reordersText(c))
            result += c;
    }
    if (isCut && result.back().isHighSurrogate())
        result.chop(1);
    return isCut ? result + u'…' : result;
}

} // namespace quillmark::cli

// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "language/Formats.h"

#include <unicode/datefmt.h>
#include <unicode/formattedvalue.h>
#include <unicode/listformatter.h>
#include <unicode/locdspnm.h>
#include <unicode/locid.h>
#include <unicode/measunit.h>
#include <unicode/numberformatter.h>
#include <unicode/rbnf.h>
#include <unicode/timezone.h>
#include <unicode/unistr.h>

#include <algorithm>
#include <array>
#include <map>
#include <memory>
#include <string_view>
#include <utility>
#include <vector>

namespace quillmark::language {

namespace {

/// Of the language used last it is kept, for each thread; valid until the next call.
const icu::Locale &localeOf(const QString &language)
{
    struct Kept
    {
        QString language;
        icu::Locale locale = icu::Locale::getRoot();
    };
    thread_local Kept kept;
    if (kept.language != language) {
        UErrorCode status = U_ZERO_ERROR;
        const auto locale = icu::Locale::forLanguageTag(language.toStdString(), status);
        kept = {language, U_SUCCESS(status) ? locale : icu::Locale::getRoot()};
    }
    return kept.locale;
}

QString toQString(const icu::UnicodeString &text)
{
    return QString(reinterpret_cast<const QChar *>(text.getBuffer()), text.length());
}

icu::UnicodeString toUnicodeString(const QString &text)
{
    return {reinterpret_cast<const char16_t *>(text.utf16()), static_cast<int32_t>(text.size())};
}

enum Unit { Byte, Kilobyte, Megabyte, Gigabyte, Terabyte, Petabyte, UnitCount };

constexpr std::array<int, UnitCount> unitFractionDigits = {0, 0, 1, 2, 2, 2};

icu::MeasureUnit measureUnit(Unit unit)
{
    switch (unit) {
    case Byte:
        return icu::MeasureUnit::getByte();
    case Kilobyte:
        return icu::MeasureUnit::getKilobyte();
    case Megabyte:
        return icu::MeasureUnit::getMegabyte();
    case Gigabyte:
        return icu::MeasureUnit::getGigabyte();
    case Terabyte:
        return icu::MeasureUnit::getTerabyte();
    default:
        return icu::MeasureUnit::getPetabyte();
    }
}

/// The first unit whose limit lies above the magnitude. A limit is the largest value that, rounded to the
/// unit's digits, still shows fewer than a whole one of the next unit (swift-foundation,
/// ByteCountFormatStyle).
Unit unitFor(std::uint64_t magnitude, ByteCountStyle style)
{
    using Limits = std::array<std::uint64_t, UnitCount - 1>;
    static constexpr Limits memory = {1023, 1048063, 1073689395, 1099506259066, 1125894409284485};
    static constexpr Limits file = {999, 999499, 999949999, 999994999999, 999994999999999};
    const Limits &limits = style == ByteCountStyle::Memory ? memory : file;
    return static_cast<Unit>(std::ranges::upper_bound(limits, magnitude) - limits.begin());
}

icu::number::LocalizedNumberFormatter measureFormatter(const icu::MeasureUnit &unit, UNumberUnitWidth width,
                                                       int fraction, const icu::Locale &locale)
{
    using namespace icu::number;
    return NumberFormatter::with()
        .unit(unit)
        .unitWidth(width)
        .precision(Precision::maxFraction(fraction))
        .roundingMode(UNUM_ROUND_HALFEVEN)
        .locale(locale);
}

/// Setting one up is most of the work of formatting, and the same ones are used again and again: those of the
/// language used last are kept, for each thread. A copy would have to be set up anew.
struct Formatters
{
    icu::Locale locale;
    std::array<std::optional<icu::number::LocalizedNumberFormatter>, UnitCount> byUnit;
    std::map<int, icu::number::LocalizedNumberFormatter> byFractionDigits;
    std::map<DateStyle, std::unique_ptr<icu::DateFormat>> dates;

    static Formatters &of(const icu::Locale &locale)
    {
        thread_local Formatters kept;
        if (kept.locale != locale)
            kept = {.locale = locale};
        return kept;
    }
};

const icu::number::LocalizedNumberFormatter &byteFormatter(Unit unit, const icu::Locale &locale)
{
    auto &formatter = Formatters::of(locale).byUnit[unit];
    if (!formatter) {
        const auto width = unit == Byte ? UNUM_UNIT_WIDTH_FULL_NAME : UNUM_UNIT_WIDTH_SHORT;
        formatter = measureFormatter(measureUnit(unit), width, unitFractionDigits[unit], locale);
    }
    return *formatter;
}

const icu::number::LocalizedNumberFormatter &numberFormatter(int fractionDigits, const icu::Locale &locale)
{
    using namespace icu::number;
    const auto [entry, isNew] = Formatters::of(locale).byFractionDigits.try_emplace(fractionDigits);
    if (isNew)
        entry->second = NumberFormatter::withLocale(locale)
                            .precision(Precision::fixedFraction(fractionDigits))
                            .roundingMode(UNUM_ROUND_HALFUP);
    return entry->second;
}

std::unique_ptr<icu::DateFormat> dateFormat(DateStyle style, const icu::Locale &locale)
{
    const auto ofSkeleton = [&](const char *skeleton) {
        UErrorCode status = U_ZERO_ERROR;
        return std::unique_ptr<icu::DateFormat>(
            icu::DateFormat::createInstanceForSkeleton(icu::UnicodeString(skeleton), locale, status));
    };
    switch (style) {
    case DateStyle::DateAndTime:
        break;
    case DateStyle::Time:
        return ofSkeleton("jm");
    case DateStyle::Day:
        return ofSkeleton("MMMMd");
    case DateStyle::DayAndYear:
        return ofSkeleton("yMMMMd");
    case DateStyle::Month:
        return ofSkeleton("yMMMM");
    }
    return std::unique_ptr<icu::DateFormat>(
        icu::DateFormat::createDateTimeInstance(icu::DateFormat::kLong, icu::DateFormat::kShort, locale));
}

icu::UnicodeString joined(const std::vector<icu::UnicodeString> &texts, UListFormatterType type,
                          UListFormatterWidth width, const icu::Locale &locale, UErrorCode &status)
{
    icu::UnicodeString text;
    const std::unique_ptr<icu::ListFormatter> format(
        icu::ListFormatter::createInstance(locale, type, width, status));
    if (format)
        format->format(texts.data(), static_cast<int32_t>(texts.size()), text, status);
    return text;
}

/// The languages in which a count of zero is written as a word.
bool spellsOutZero(const icu::Locale &locale)
{
    constexpr std::array<std::string_view, 13> languages = {"ar", "da", "el", "en", "fr", "hi", "hr",
                                                            "id", "it", "ms", "pt", "ro", "th"};
    return std::ranges::find(languages, locale.getLanguage()) != languages.end();
}

/// "Zero kB": the formatted zero with its digit replaced by the language's word.
icu::UnicodeString spelledZero(const icu::Locale &locale, UErrorCode &status)
{
    const auto formatted = byteFormatter(Kilobyte, locale).formatDouble(0, status);
    auto text = formatted.toString(status);
    icu::ConstrainedFieldPosition digit;
    digit.constrainField(UFIELD_CATEGORY_NUMBER, UNUM_INTEGER_FIELD);
    if (!formatted.nextPosition(digit, status))
        return text;
    icu::RuleBasedNumberFormat spelling(icu::URBNF_SPELLOUT, locale, status);
    spelling.setContext(UDISPCTX_CAPITALIZATION_FOR_BEGINNING_OF_SENTENCE, status);
    icu::UnicodeString word;
    spelling.format(0, word, status);
    return text.replaceBetween(digit.getStart(), digit.getLimit(), word);
}

} // namespace

Formats::Formats(QString language)
    : m_language(std::move(language))
{}

QString Formats::byteCount(std::int64_t bytes, ByteCountStyle style) const
{
    const auto &locale = localeOf(m_language);
    UErrorCode status = U_ZERO_ERROR;
    if (bytes == 0 && spellsOutZero(locale))
        return toQString(spelledZero(locale, status));
    const auto magnitude =
        bytes < 0 ? 0 - static_cast<std::uint64_t>(bytes) : static_cast<std::uint64_t>(bytes);
    const Unit unit = bytes == 0 ? Kilobyte : unitFor(magnitude, style);
    double divisor = 1;
    for (int step = 0; step < unit; ++step)
        divisor *= style == ByteCountStyle::Memory ? 1024 : 1000;
    return toQString(byteFormatter(unit, locale)
                         .formatDouble(static_cast<double>(bytes) / divisor, status)
                         .toString(status));
}

std::optional<QString> Formats::uptime(std::optional<double> seconds) const
{
    constexpr double longest = 1e12; // thirty thousand years: beyond it the clock is broken
    if (!seconds || !(*seconds >= 0) || *seconds > longest)
        return std::nullopt;
    const auto &locale = localeOf(m_language);
    UErrorCode status = U_ZERO_ERROR;
    std::vector<icu::UnicodeString> parts;
    const auto add = [&](std::int64_t amount, const icu::MeasureUnit &unit) {
        const auto formatter = measureFormatter(unit, UNUM_UNIT_WIDTH_NARROW, 0, locale);
        parts.push_back(formatter.formatDouble(static_cast<double>(amount), status).toString(status));
    };
    const auto minutes = static_cast<std::int64_t>(*seconds) / 60;
    if (const auto days = minutes / 60 / 24)
        add(days, icu::MeasureUnit::getDay());
    if (const auto hours = minutes / 60 % 24)
        add(hours, icu::MeasureUnit::getHour());
    if (minutes % 60 != 0 || parts.empty())
        add(minutes % 60, icu::MeasureUnit::getMinute());
    const auto text = joined(parts, ULISTFMT_TYPE_UNITS, ULISTFMT_WIDTH_NARROW, locale, status);
    if (U_FAILURE(status))
        return std::nullopt;
    // ICU isolates parts in Arabic. Text is isolated where it is drawn: in JSON and on terminals nobody looks
    // for marks.
    return toQString(text).remove(QChar(0x2068)).remove(QChar(0x2069));
}

QString Formats::list(const QStringList &items) const
{
    UErrorCode status = U_ZERO_ERROR;
    std::vector<icu::UnicodeString> texts(static_cast<std::size_t>(items.size()));
    std::ranges::transform(items, texts.begin(), toUnicodeString);
    const auto text = joined(texts, ULISTFMT_TYPE_AND, ULISTFMT_WIDTH_WIDE, localeOf(m_language), status);
    return U_SUCCESS(status) ? toQString(text) : items.join(QStringLiteral(", "));
}

QString Formats::number(double value, int fractionDigits) const
{
    UErrorCode status = U_ZERO_ERROR;
    const auto text =
        numberFormatter(fractionDigits, localeOf(m_language)).formatDouble(value, status).toString(status);
    return U_SUCCESS(status) ? toQString(text) : QString::number(value, 'f', fractionDigits);
}

QString Formats::date(const QDateTime &moment, DateStyle style) const
{
    const icu::Locale &locale = localeOf(m_language);
    auto &format = Formatters::of(locale).dates[style];
    if (!format) {
        format = dateFormat(style, locale);
        if (!format)
            return moment.toString(Qt::ISODate);
    }
    // The clock on the wall, taken for Greenwich's, is written as it stands.
    format->setTimeZone(*icu::TimeZone::getGMT());
    const QDateTime wall(moment.date(), moment.time(), Qt::UTC);
    icu::UnicodeString text;
    auto result = toQString(format->format(static_cast<UDate>(wall.toMSecsSinceEpoch()), text));
    return result.replace(QChar(0x202F), QChar::Nbsp); // many fonts lack the narrow one
}

QString Formats::dateAndTime(const QDateTime &moment) const
{
    return date(moment, DateStyle::DateAndTime);
}

QString Formats::languageName(const QString &tag) const
{
    std::array<UDisplayContext, 2> contexts = {UDISPCTX_DIALECT_NAMES,
                                               UDISPCTX_CAPITALIZATION_FOR_UI_LIST_OR_MENU};
    const std::unique_ptr<icu::LocaleDisplayNames> names(icu::LocaleDisplayNames::createInstance(
        localeOf(m_language), contexts.data(), static_cast<int32_t>(contexts.size())));
    if (!names)
        return tag;
    icu::UnicodeString name;
    UErrorCode status = U_ZERO_ERROR;
    const auto locale = icu::Locale::forLanguageTag(tag.toStdString(), status);
    return toQString(names->localeDisplayName(locale, name));
}

} // namespace quillmark::language

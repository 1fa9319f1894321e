// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "app/momentTexts.h"

#include <QCoreApplication>

namespace quillmark::app {

namespace {

class Text
{
    Q_DECLARE_TR_FUNCTIONS(Moment)
};

} // namespace

QString timeText(const QDateTime &moment, const language::Formats &formats)
{
    return formats.date(moment, language::DateStyle::Time);
}

QString dayText(const QDateTime &moment, const language::Formats &formats)
{
    const bool isThisYear = moment.date().year() == QDate::currentDate().year();
    return formats.date(moment, isThisYear ? language::DateStyle::Day : language::DateStyle::DayAndYear);
}

QString dayAndTimeText(const QString &day, const QString &time)
{
    //: %1: a day, %2: a time: "12 November, 19:20"
    return Text::tr("%1, %2").arg(day, time);
}

QString momentText(const QDateTime &moment, const language::Formats &formats)
{
    const auto time = timeText(moment, formats);
    const auto days = moment.date().daysTo(QDate::currentDate());
    if (days == 0)
        return Text::tr("Today, %1").arg(time);
    if (days == 1)
        return Text::tr("Yesterday, %1").arg(time);
    return dayAndTimeText(formats.date(moment, language::DateStyle::DayAndYear), time);
}

QString shortMomentText(const QDateTime &moment, const language::Formats &formats)
{
    const auto time = timeText(moment, formats);
    const auto days = moment.date().daysTo(QDate::currentDate());
    if (days == 0)
        //: Within a sentence: "12 November, 19:20 and today, 08:41"
        return Text::tr("today, %1").arg(time);
    if (days == 1)
        //: Within a sentence: "12 November, 19:20 and yesterday, 08:41"
        return Text::tr("yesterday, %1").arg(time);
    return dayAndTimeText(dayText(moment, formats), time);
}

QString inspectedText(const QDateTime &moment, const language::Formats &formats)
{
    const auto days = moment.date().daysTo(QDate::currentDate());
    if (days == 0)
        return Text::tr("Inspected today at %1").arg(timeText(moment, formats));
    if (days == 1)
        return Text::tr("Inspected yesterday at %1").arg(timeText(moment, formats));
    return Text::tr("Inspected on %1").arg(dayText(moment, formats));
}

QString lastCheckedText(const QDateTime &moment, const language::Formats &formats)
{
    const auto days = moment.date().daysTo(QDate::currentDate());
    if (days == 0)
        return Text::tr("Last checked today at %1").arg(timeText(moment, formats));
    if (days == 1)
        return Text::tr("Last checked yesterday at %1").arg(timeText(moment, formats));
    return Text::tr("Last checked on %1").arg(dayText(moment, formats));
}

QString exportedText(int sections, const QDateTime &moment, const language::Formats &formats)
{
    const auto days = moment.date().daysTo(QDate::currentDate());
    if (days == 0)
        return Text::tr("All %n sections, as inspected today at %1.", nullptr, sections)
            .arg(timeText(moment, formats));
    if (days == 1)
        return Text::tr("All %n sections, as inspected yesterday at %1.", nullptr, sections)
            .arg(timeText(moment, formats));
    return Text::tr("All %n sections, as inspected on %1.", nullptr, sections).arg(dayText(moment, formats));
}

} // namespace quillmark::app

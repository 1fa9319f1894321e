// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "inspection/CapabilityModel.h"
#include "reports/Report.h"

#include <QByteArray>
#include <QList>
#include <QString>
#include <Qt>

namespace quillmark::reports {

/// A report as its pages say it: every text in its language, nothing placed yet. Plain values, so that they
/// can be made where the interface language is known and drawn elsewhere.
///
/// An empty text is left out of the pages.
struct ReportDocument
{
    struct Row
    {
        inspection::CapabilityStatus status = inspection::CapabilityStatus::Info;
        QString label;
        QString value;
        QString place; ///< title of the section that it comes from, where rows of several stand together
        QString word;  ///< the status in words
    };

    struct Table
    {
        QString symbol;
        QString title;
        QString continuedTitle; ///< where it goes on on another page
        QString note;           ///< beside the title: "4 of 4 supported"
        QString shortNote;      ///< the same in the list of contents: "4 of 4"
        QList<Row> rows;
        QString more; ///< below the last row: "and 4 more"
    };

    struct Count
    {
        inspection::CapabilityStatus status = inspection::CapabilityStatus::Info;
        qsizetype rows = 0;
        QString word;
    };

    struct Fact
    {
        QString label;
        QString value;
    };

    QString language; ///< tag
    Qt::LayoutDirection direction = Qt::LeftToRight;
    QString fileTitle;   ///< "Quillmark report – Nora’s MacBook Pro"
    QString application; ///< "Quillmark 1.0.0"

    QString name; ///< "Quillmark report"
    QString date;
    QString question; ///< above the machine’s name: "What this Mac can really do"
    QString machine;  ///< never empty
    QString hardware;

    QString score; ///< digits, or a dash where nothing is rated
    QString scoreTitle;
    QString scoreText;
    QList<Count> counts; ///< of all rows, in the order of the statuses
    QList<Fact> facts;

    Table attention; ///< warnings, then what is not supported; without rows: left out
    QString contentsTitle;
    QString contentsSymbol;
    QString contentsPage;  ///< "p. %1"
    QList<Table> sections; ///< those with rows
    QString nothing;       ///< stands in place of the sections when the filter let no row through
    QString leftOut;       ///< at the foot

    QString madeWith; ///< at the foot of each page
    QString pageOf;   ///< "Page %1 of %2"

    QByteArray json; ///< the report for programs, attached
};

ReportDocument reportDocument(const Report &report);

} // namespace quillmark::reports

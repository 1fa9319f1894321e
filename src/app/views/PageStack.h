// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "app/AppContext.h"
#include "app/views/Page.h"

#include <QStackedWidget>
#include <QString>

#include <functional>
#include <map>

namespace quillmark::app {

class HistoryView;
class ResultsPage;

/// The window's pages, one of which is in front. Each is made when it is first asked for, and then kept.
class PageStack : public QStackedWidget
{
    Q_OBJECT

public:
    explicit PageStack(const AppContext &context, QWidget *parent = nullptr);
    ~PageStack() override;

    /// The page in front; nullptr before the first one is.
    Page *current() const;
    /// The page of a place; that of the overview when there is no such place. Does not bring it to the front.
    Page *at(const QString &place);
    HistoryView *history();
    ResultsPage *results();
    bool showsResults() const;

Q_SIGNALS:
    // What any of the pages announces.
    void headerChanged();
    void statusChanged();
    void copied();
    void noticeAsked(const quillmark::app::Notice &notice);
    /// Someone wants to go there.
    void placeChosen(const QString &place);
    void searchCleared();
    /// Someone wants the machine inspected.
    void inspectionAsked();

private:
    template <typename Kind>
    Kind *page(const std::function<void(Kind &)> &connectPage = {});

    const AppContext &m_context;
    std::map<const QMetaObject *, Page *> m_pages; ///< by their kind
};

} // namespace quillmark::app

// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "app/AppContext.h"
#include "app/views/Actions.h"
#include "app/views/Page.h"

#include <QMainWindow>
#include <QString>
#include <QStringList>

class QTimer;

namespace quillmark::app {

class Header;
class NoticeBar;
class PageStack;
class Sidebar;

/// The window: the sidebar, the header, and one page at a time.
///
/// Inspects the machine once it has been painted for the first time, and hands every inspection to the
/// history.
class ContentView : public QMainWindow
{
    Q_OBJECT

public:
    explicit ContentView(const AppContext &context, QWidget *parent = nullptr);
    ~ContentView() override;

    Actions &actions() { return m_actions; }
    NoticeBar &notices() { return *m_notices; }

    /// Goes there; to the overview when there is no such place.
    void showPlace(const QString &place);
    /// Where the window is, whatever a search shows at the moment.
    const QString &place() const { return m_place; }
    Page *currentPage() const;

    void inspect();
    /// Asks in front of that widget's window, and clears the history.
    void askToClearHistory(QWidget *asker);
    /// Shows the window in front of all others.
    void bringForward();
    /// Back to where it was when it was closed the last time, as far as the screens allow.
    void restoreWindow();

Q_SIGNALS:
    void aboutAsked();
    void settingsAsked();
    void updateCheckAsked();
    void exportAsked();
    void quitAsked();
    /// The window has been closed. What goes on is for others to decide.
    void closed();

protected:
    void changeEvent(QEvent *event) override;
    void closeEvent(QCloseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void buildWindow();
    void connectActions();
    void connectFilters();
    void connectPages();
    void recordSnapshot();
    void inspectionDone();

    void show(Page *page);
    void beginSearch();
    void searchFor(const QString &text);
    void updateHeader();
    void updateActions();
    void copyAsText();
    void leaveSearch();
    void goBack();
    void showLastVisited();
    void escape();
    void saveWindow();

    const AppContext &m_context;
    Actions m_actions;
    Sidebar *m_sidebar;
    Header *m_header;
    NoticeBar *m_notices;
    PageStack *m_pages;
    QTimer *m_searchPause;
    QString m_place;
    QStringList m_visited;         ///< places to go back to
    bool m_isHereToSearch = false; ///< came from a place that has no search, to search
    bool m_wasPainted = false;
};

} // namespace quillmark::app

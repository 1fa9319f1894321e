// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "app/views/ContentView.h"

#include "app/Appearance.h"
#include "app/models/Place.h"
#include "app/painting.h"
#include "app/settingKeys.h"
#include "app/views/Header.h"
#include "app/views/HistoryView.h"
#include "app/views/PageStack.h"
#include "app/views/ResultsPage.h"
#include "app/views/Sidebar.h"
#include "app/widgets/NoticeBar.h"
#include "history/ScanHistory.h"
#include "inspection/Quillmark.h"
#include "language/LanguageManager.h"
#include "settings/Settings.h"

#include <QCloseEvent>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMenuBar>
#include <QPainter>
#include <QScreen>
#include <QShortcut>
#include <QTimer>
#include <QVBoxLayout>

#include <algorithm>
#include <chrono>

namespace quillmark::app {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using design::Role;
using inspection::CapabilityStatus;

namespace {

constexpr QSize usualSize(1180, 760);
constexpr QSize leastSize(860, 560);
constexpr auto searchPause = 120ms;
/// For the network path, with which the first inspection is complete, to be reported.
constexpr auto patience = 150ms;
constexpr qsizetype mostVisited = 50;

bool hasMenuBar()
{
    return QGuiApplication::platformName() == "cocoa"_L1;
}

std::optional<CapabilityStatus> statusAt(std::size_t filter)
{
    return filter == 0 ? std::nullopt : std::optional(inspection::allStatuses[filter - 1]);
}

} // namespace

ContentView::ContentView(const AppContext &context, QWidget *parent)
    : QMainWindow(parent)
    , m_context(context)
    , m_actions(*this)
    , m_sidebar(new Sidebar(context, this))
    , m_header(new Header(m_actions, !hasMenuBar(), this))
    , m_notices(new NoticeBar(this))
    , m_pages(new PageStack(context, this))
    , m_searchPause(new QTimer(this))
{
    setWindowTitle(u"Quillmark"_s);
    setMinimumSize(leastSize);
    resize(usualSize.boundedTo(screen()->availableSize()).expandedTo(leastSize));
    buildWindow();
    connectActions();
    connectFilters();
    connectPages();

    connect(m_sidebar, &Sidebar::placeChosen, this, &ContentView::showPlace);
    connect(m_sidebar, &Sidebar::pageAsked, this,
            [this] { currentPage()->firstStop()->setFocus(Qt::TabFocusReason); });
    m_searchPause->setSingleShot(true);
    m_searchPause->setInterval(searchPause);
    connect(m_searchPause, &QTimer::timeout, this, [this] { searchFor(m_header->search()->text()); });
    connect(m_header->search(), &QLineEdit::textChanged, this, [this](const QString &text) {
        if (text.trimmed().isEmpty())
            searchFor(text);
        else
            m_searchPause->start();
    });
    connect(&m_context.inspection, &inspection::Quillmark::refreshed, this, &ContentView::inspectionDone);
    // The history's page tells of it, and may not have been made yet.
    connect(&m_context.history, &history::ScanHistory::saveFailed, this,
            [this](const history::SaveError &error) { m_pages->history()->tellFailure(error); });
    // The rows are in the language that they were made in.
    connect(&m_context.language, &language::LanguageManager::languageChanged, this, [this] {
        if (m_context.inspection.lastUpdated())
            inspect();
    });
    showPlace(place::overview);
}

ContentView::~ContentView()
{
    delete m_pages; // while what the pages are connected to is still whole
}

void ContentView::buildWindow()
{
    auto *center = new QWidget(this);
    auto *row = new QHBoxLayout(center);
    row->setContentsMargins({});
    row->setSpacing(1); // the border between the two shows through
    row->addWidget(m_sidebar);
    auto *column = new QVBoxLayout;
    column->setSpacing(0);
    column->addWidget(m_header);
    column->addWidget(m_notices);
    column->addWidget(m_pages, 1);
    row->addLayout(column, 1);
    setCentralWidget(center);

    if (hasMenuBar()) {
        for (auto *menu : m_actions.menus())
            menuBar()->addMenu(menu);
    } else {
        auto *openMenu = new QShortcut(Qt::Key_F10, this);
        connect(openMenu, &QShortcut::activated, m_header, &Header::openMenu);
    }
    QWidget::setTabOrder(m_sidebar->list(), m_header->search());
}

void ContentView::connectActions()
{
    const auto connectTo = [this](QAction *action, auto method) {
        connect(action, &QAction::triggered, this, method);
    };
    connectTo(m_actions.about, &ContentView::aboutAsked);
    connectTo(m_actions.settings, &ContentView::settingsAsked);
    connectTo(m_actions.checkForUpdates, &ContentView::updateCheckAsked);
    connectTo(m_actions.exportReport, &ContentView::exportAsked);
    connectTo(m_actions.quit, &ContentView::quitAsked);
    connectTo(m_actions.inspectAgain, &ContentView::inspect);
    connectTo(m_actions.closeWindow, &ContentView::close);
    connectTo(m_actions.copyAsText, &ContentView::copyAsText);
    connectTo(m_actions.back, &ContentView::goBack);
    connectTo(m_actions.copy, [this] { currentPage()->copy(); });
    connectTo(m_actions.selectAll, [this] { currentPage()->selectAll(); });
    connectTo(m_actions.deleteSelected, [this] {
        if (currentPage()->canDelete())
            currentPage()->deleteSelected();
    });
    connectTo(m_actions.find, &ContentView::beginSearch);
    connectTo(m_actions.overview, [this] { showPlace(place::overview); });
    connectTo(m_actions.history, [this] { showPlace(place::history); });
    connectTo(m_actions.battery, [this] { showPlace(place::battery); });
    connectTo(m_actions.monitor, [this] { showPlace(place::monitor); });
    connectTo(m_actions.previousSection, [this] { showPlace(m_sidebar->placeBeside(m_place, -1)); });
    connectTo(m_actions.nextSection, [this] { showPlace(m_sidebar->placeBeside(m_place, 1)); });
    m_actions.hideSidebar->setCheckable(true);
    connect(m_actions.hideSidebar, &QAction::toggled, m_sidebar, &QWidget::setHidden);
    connectTo(m_actions.fullScreen, [this] { setWindowState(windowState() ^ Qt::WindowFullScreen); });
    connectTo(m_actions.minimise, &ContentView::showMinimized);
    connectTo(m_actions.zoom, [this] { setWindowState(windowState() ^ Qt::WindowMaximized); });
    connectTo(m_actions.bringToFront, &ContentView::bringForward);
    connect(&m_actions, &Actions::aboutToShow, this, &ContentView::updateActions);
}

void ContentView::connectFilters()
{
    for (std::size_t filter = 0; filter < m_actions.filters.size(); ++filter)
        connect(m_actions.filters[filter], &QAction::triggered, this,
                [this, filter] { currentPage()->setStatus(statusAt(filter)); });
}

void ContentView::connectPages()
{
    connect(m_pages, &PageStack::headerChanged, this, &ContentView::updateHeader);
    connect(m_pages, &PageStack::statusChanged, this, &ContentView::updateActions);
    connect(m_pages, &PageStack::copied, m_header, &Header::showCopied);
    connect(m_pages, &PageStack::noticeAsked, m_notices, &NoticeBar::show);
    connect(m_pages, &PageStack::placeChosen, this, &ContentView::showPlace);
    connect(m_pages, &PageStack::searchCleared, m_header->search(), &QLineEdit::clear);
    connect(m_pages, &PageStack::inspectionAsked, this, &ContentView::inspect);
}

Page *ContentView::currentPage() const
{
    return m_pages->current();
}

void ContentView::showPlace(const QString &place)
{
    const auto target = m_sidebar->hasPlace(place) ? place : place::overview;
    if (target != m_place && !m_place.isEmpty()) {
        m_visited += m_place;
        if (m_visited.size() > mostVisited)
            m_visited.removeFirst();
    }
    m_place = target;
    m_isHereToSearch = false;
    m_header->search()->clear();
    m_searchPause->stop();
    m_sidebar->setPlace(m_place);
    show(m_pages->at(m_place));
}

void ContentView::show(Page *page)
{
    m_pages->setCurrentWidget(page);
    updateHeader();
    updateActions();
}

void ContentView::beginSearch()
{
    if (!currentPage()->isSearchable()) {
        showPlace(place::overview);
        m_isHereToSearch = true;
    }
    m_header->search()->setFocus(Qt::ShortcutFocusReason);
    m_header->search()->selectAll();
}

void ContentView::searchFor(const QString &text)
{
    m_searchPause->stop();
    const auto wanted = text.trimmed();
    if (wanted.isEmpty()) {
        if (m_pages->showsResults()) {
            m_sidebar->setPlace(m_place);
            show(m_pages->at(m_place));
        }
        return;
    }
    m_pages->results()->setSearch(wanted);
    m_sidebar->setPlace({});
    show(m_pages->results());
}

void ContentView::updateHeader()
{
    const auto *page = currentPage();
    if (!page)
        return;
    const auto title = page->headerTitle();
    const auto &summary = m_context.inspection.summary();
    m_header->setTitle(!title.isEmpty() ? title : summary ? summary->deviceName : QString(), title.isEmpty());
    m_header->setNote(page->headerSymbol(), page->headerNote());
    m_header->setSearchable(page->isSearchable());
    m_header->setCanGoBack(page->canGoBack());
    m_header->setPageAction(page->headerAction());
}

/// Copy and delete stay enabled, so that their keys work: what they find to do, they see then.
void ContentView::updateActions()
{
    const bool isInspected = m_context.inspection.lastUpdated().has_value();
    m_actions.copyAsText->setEnabled(isInspected);
    m_actions.exportReport->setEnabled(isInspected);
    const auto *page = currentPage();
    for (std::size_t filter = 0; filter < m_actions.filters.size(); ++filter) {
        m_actions.filters[filter]->setEnabled(page->hasStatusFilter());
        m_actions.filters[filter]->setChecked(page->hasStatusFilter() && page->status() == statusAt(filter));
    }
}

void ContentView::inspect()
{
    m_sidebar->setInspecting(true);
    // Once that is on the screen.
    QTimer::singleShot(0, this, [this] { m_context.inspection.refresh(); });
}

void ContentView::askToClearHistory(QWidget *asker)
{
    m_pages->history()->askToClear(asker);
}

void ContentView::inspectionDone()
{
    m_sidebar->setInspecting(false);
    recordSnapshot();
    updateHeader();
    updateActions();
}

void ContentView::recordSnapshot()
{
    const auto &inspection = m_context.inspection;
    if (inspection.summary())
        m_context.history.record(*inspection.summary(), inspection.sections());
}

void ContentView::copyAsText()
{
    if (!currentPage()->copyAsText())
        m_context.inspection.copyReport();
    m_header->showCopied();
}

void ContentView::goBack()
{
    if (m_pages->showsResults())
        leaveSearch();
    else if (!currentPage()->goBack())
        showLastVisited();
}

void ContentView::showLastVisited()
{
    if (m_visited.isEmpty())
        return;
    const auto before = m_visited.takeLast();
    showPlace(before);
    m_visited.removeLast(); // where one came back from
}

void ContentView::leaveSearch()
{
    if (!m_isHereToSearch) {
        m_header->search()->clear();
        return;
    }
    showLastVisited();
    currentPage()->firstStop()->setFocus(Qt::OtherFocusReason);
}

/// Leaves what is in the way first.
void ContentView::escape()
{
    const bool isSearching = !m_header->search()->text().isEmpty();
    if (isSearching || (m_isHereToSearch && m_header->search()->hasFocus()))
        leaveSearch();
    else if (m_notices->isShown())
        m_notices->dismiss();
    else
        currentPage()->goBack();
}

void ContentView::bringForward()
{
    setWindowState(windowState() & ~Qt::WindowMinimized);
    QMainWindow::show();
    raise();
    activateWindow();
}

void ContentView::restoreWindow()
{
    auto &settings = m_context.settings;
    restoreGeometry(settings.value(keys::windowGeometry));
    m_actions.hideSidebar->setChecked(settings.value(keys::sidebarHidden));
    if (settings.value(keys::opensAt) == keys::opensAtLast)
        showPlace(settings.value(keys::lastPlace));
    if (currentPage()->hasStatusFilter())
        currentPage()->setStatus(inspection::statusFromRawValue(settings.value(keys::statusFilter)));
}

void ContentView::saveWindow()
{
    auto &settings = m_context.settings;
    settings.setValue(keys::windowGeometry, saveGeometry());
    settings.setValue(keys::sidebarHidden, m_actions.hideSidebar->isChecked());
    settings.setValue(keys::lastPlace, m_place);
    const auto status = m_pages->showsResults() ? std::nullopt : currentPage()->status();
    settings.setValue(keys::statusFilter, status ? inspection::rawValue(*status) : QString());
}

void ContentView::changeEvent(QEvent *event)
{
    QMainWindow::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        m_actions.retranslate();
}

void ContentView::closeEvent(QCloseEvent *event)
{
    saveWindow();
    QMainWindow::closeEvent(event);
    if (event->isAccepted())
        Q_EMIT closed();
}

void ContentView::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Escape)
        escape();
    else
        QMainWindow::keyPressEvent(event);
}

void ContentView::paintEvent(QPaintEvent *)
{
    const auto &appearance = Appearance::current();
    QPainter painter(this);
    painter.fillRect(rect(), appearance.color(Role::Window));
    if (m_sidebar->isVisible())
        painter.fillRect(QRect(m_sidebar->x() - 1, 0, m_sidebar->width() + 2, height()),
                         appearance.color(Role::CardBorder));
    if (m_wasPainted)
        return;
    m_wasPainted = true;
    QTimer::singleShot(patience, this, [this] {
        if (!m_context.inspection.lastUpdated())
            inspect();
    });
}

void ContentView::resizeEvent(QResizeEvent *event)
{
    QMainWindow::resizeEvent(event);
    constexpr int compact = 640 + 56;
    const int content = width() - (m_sidebar->isHidden() ? 0 : m_sidebar->width());
    m_header->setCompact(content < compact * Appearance::current().scale());
}

} // namespace quillmark::app

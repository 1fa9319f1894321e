// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "app/views/PageStack.h"

#include "app/models/Place.h"
#include "app/views/BatteryView.h"
#include "app/views/HistoryView.h"
#include "app/views/MonitorView.h"
#include "app/views/OverviewPage.h"
#include "app/views/ResultsPage.h"
#include "app/views/SectionPage.h"
#include "app/widgets/NoticeBar.h"

namespace quillmark::app {

PageStack::PageStack(const AppContext &context, QWidget *parent)
    : QStackedWidget(parent)
    , m_context(context)
{}

PageStack::~PageStack()
{
    // They go while what they are connected to is still whole.
    for (const auto &[kind, page] : m_pages)
        delete page;
}

template <typename Kind>
Kind *PageStack::page(const std::function<void(Kind &)> &connectPage)
{
    auto &slot = m_pages[&Kind::staticMetaObject];
    if (!slot) {
        auto *made = new Kind(m_context, this);
        slot = made;
        addWidget(made);
        connect(made, &Page::headerChanged, this, &PageStack::headerChanged);
        connect(made, &Page::statusChanged, this, &PageStack::statusChanged);
        connect(made, &Page::copied, this, &PageStack::copied);
        connect(made, &Page::noticeAsked, this, &PageStack::noticeAsked);
        if (connectPage)
            connectPage(*made);
    }
    return static_cast<Kind *>(slot);
}

Page *PageStack::current() const
{
    return static_cast<Page *>(currentWidget());
}

Page *PageStack::at(const QString &place)
{
    if (const auto key = place::sectionKey(place); !key.isEmpty()) {
        auto *section = page<SectionPage>();
        section->setSection(key);
        return section;
    }
    if (place == place::history)
        return history();
    if (place == place::battery)
        return page<BatteryView>();
    if (place == place::monitor)
        return page<MonitorView>();
    return page<OverviewPage>([this](OverviewPage &overview) {
        connect(&overview, &OverviewPage::sectionChosen, this,
                [this](const QString &key) { Q_EMIT placeChosen(place::ofSection(key)); });
        connect(&overview, &OverviewPage::comparisonAsked, this, [this] {
            Q_EMIT placeChosen(place::history);
            history()->compareNewest();
        });
    });
}

HistoryView *PageStack::history()
{
    return page<HistoryView>([this](HistoryView &view) {
        connect(&view, &HistoryView::inspectionAsked, this, &PageStack::inspectionAsked);
    });
}

ResultsPage *PageStack::results()
{
    return page<ResultsPage>([this](ResultsPage &results) {
        connect(&results, &ResultsPage::searchCleared, this, &PageStack::searchCleared);
    });
}

bool PageStack::showsResults() const
{
    const auto results = m_pages.find(&ResultsPage::staticMetaObject);
    return results != m_pages.end() && results->second == currentWidget();
}

} // namespace quillmark::app

// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "app/views/BatteryView.h"

#include "app/Appearance.h"
#include "app/BatteryWatch.h"
#include "app/models/BatteryFacts.h"
#include "app/momentTexts.h"
#include "app/views/BatteryPanel.h"
#include "app/widgets/Card.h"
#include "app/widgets/EmptyState.h"
#include "app/widgets/TextLabel.h"
#include "battery/batteryTexts.h"
#include "inspection/Quillmark.h"
#include "language/LanguageManager.h"

#include <QBoxLayout>
#include <QEvent>

#include <algorithm>
#include <array>

namespace quillmark::app {

using namespace Qt::StringLiterals;
using design::Role;

/// What the figures mean, in a sentence or two each.
class BatteryView::Explanations final : public Card
{
public:
    explicit Explanations(QWidget *parent)
        : Card(parent)
        , m_row(new QBoxLayout(QBoxLayout::LeftToRight, this))
    {
        m_row->setContentsMargins(22, 16, 22, 18);
        for (auto &[title, text] : m_parts) {
            title = new TextLabel(TextRole::Body, Role::Text, this);
            title->setWeight(QFont::DemiBold);
            text = new TextLabel(TextRole::Body, Role::Text2, this);
            text->setWordWrap(true);
            auto *part = new QVBoxLayout;
            part->setSpacing(4);
            part->addWidget(title);
            part->addWidget(text);
            part->addStretch();
            m_row->addLayout(part, 1);
        }
    }

    void retranslate()
    {
        const QString texts[][2] = {
            {BatteryView::tr("Health"),
             BatteryView::tr("Present capacity as a share of design capacity. 80% or more is good.")},
            {BatteryView::tr("Cycle count"),
             BatteryView::tr("One cycle is one full discharge, even when it is spread over several days.")},
            {BatteryView::tr("Temperature"),
             BatteryView::tr("Heat ages a battery faster than use does. Keep it out of the sun.")}};
        for (std::size_t part = 0; part < m_parts.size(); ++part) {
            m_parts[part].title->setText(texts[part][0]);
            m_parts[part].text->setText(texts[part][1]);
        }
    }

    void arrange(bool isStacked)
    {
        m_row->setDirection(isStacked ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight);
        m_row->setSpacing(isStacked ? 14 : 28);
    }

private:
    struct Part
    {
        TextLabel *title;
        TextLabel *text;
    };

    QBoxLayout *m_row;
    std::array<Part, 3> m_parts{};
};

BatteryView::BatteryView(const AppContext &context, QWidget *parent)
    : Page(parent)
    , m_context(context)
    , m_watch(new BatteryWatch(context.machine, this))
    , m_explanations(new Explanations(this))
    , m_note(new TextLabel(TextRole::Small, Role::Text3, this))
    , m_none(new EmptyState(u"powerplug"_s, this))
{
    m_note->setWordWrap(true);
    m_note->setContentsMargins(2, 0, 2, 0);
    column()->addWidget(m_explanations);
    column()->addWidget(m_note);
    column()->addWidget(m_none);
    for (auto *part : {static_cast<QWidget *>(m_explanations), static_cast<QWidget *>(m_note),
                       static_cast<QWidget *>(m_none)})
        part->hide();
    connect(m_watch, &BatteryWatch::changed, this, &BatteryView::update);
    connect(&m_context.inspection, &inspection::Quillmark::refreshed, m_watch, [this] {
        if (m_watch->isShown())
            m_watch->read();
    });
    setUp();
}

QString BatteryView::headerTitle() const
{
    return tr("Battery health");
}

void BatteryView::retranslate()
{
    const bool onMac = isMac(m_context);
    m_none->setTexts(battery::noBattery(onMac), battery::noBatteryNote(onMac));
    m_explanations->retranslate();
    update();
}

void BatteryView::arrange()
{
    for (auto *panel : m_panels)
        panel->arrange(effectiveWidth());
    m_explanations->arrange(isCompact());
}

void BatteryView::resizeEvent(QResizeEvent *event)
{
    Page::resizeEvent(event);
    const auto margins = widget()->layout()->contentsMargins();
    m_none->setMinimumHeight(std::max(0, viewport()->height() - margins.top() - margins.bottom()));
}

void BatteryView::showEvent(QShowEvent *event)
{
    Page::showEvent(event);
    if (m_window != window()) {
        if (m_window)
            m_window->removeEventFilter(this);
        m_window = window();
        m_window->installEventFilter(this);
    }
    followWindow();
}

void BatteryView::hideEvent(QHideEvent *event)
{
    Page::hideEvent(event);
    m_watch->setShown(false);
}

bool BatteryView::eventFilter(QObject *object, QEvent *event)
{
    if (object == m_window && event->type() == QEvent::WindowStateChange)
        followWindow();
    return Page::eventFilter(object, event);
}

void BatteryView::followWindow()
{
    m_watch->setShown(isVisible() && !window()->isMinimized());
}

void BatteryView::update()
{
    const auto &batteries = m_watch->batteries();
    if (!batteries)
        return;
    while (m_panels.size() > batteries->size()) {
        delete m_panels.back();
        m_panels.pop_back();
    }
    while (m_panels.size() < batteries->size()) {
        auto *panel = new BatteryPanel(this);
        column()->insertWidget(static_cast<int>(m_panels.size()), panel);
        panel->arrange(effectiveWidth());
        m_panels.push_back(panel);
    }
    const auto &formats = m_context.language.formats();
    bool isReported = false;
    for (std::size_t at = 0; at < m_panels.size(); ++at) {
        const auto &reading = (*batteries)[at];
        m_panels[at]->show(batteryFacts(reading, formats), m_panels.size() > 1);
        isReported = isReported || reading.reportedMaximumPercent;
    }
    auto note = tr("Read today at %1. Figures come from the battery’s own controller and can differ slightly "
                   "between readings.")
                    .arg(timeText(m_watch->moment(), formats));
    if (isReported)
        note += u'\n' + battery::reportedNote();
    m_note->setText(note);
    m_explanations->setHidden(m_panels.empty());
    m_note->setHidden(m_panels.empty());
    m_none->setHidden(!m_panels.empty());
}

} // namespace quillmark::app

// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "app/views/MenuBarMonitorView.h"

#include "app/Appearance.h"
#include "app/Watching.h"
#include "app/monitorTexts.h"
#include "app/painting.h"
#include "app/widgets/Button.h"
#include "app/widgets/IconTile.h"
#include "app/widgets/MonitorRowView.h"
#include "app/widgets/TextLabel.h"
#include "language/LanguageManager.h"
#include "monitor/LiveMonitor.h"

#include <QEvent>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QPainter>
#include <QScreen>
#include <QVBoxLayout>

#include <algorithm>
#include <chrono>

namespace quillmark::app {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using design::Role;

namespace {

// In logical pixels.
constexpr int popUpWidth = 320;
constexpr int headerHeight = 44;
constexpr int collectingHeight = 150;
constexpr int padding = 16;
constexpr int rowsMargin = 6;
constexpr int footerMargin = 8;
constexpr int gapBelowItem = 5;
constexpr IconTile::Shape appIcon{18, 0, 18};

/// A screen reader that hears of every figure would never fall silent.
constexpr std::chrono::milliseconds describedEvery = 10s;

} // namespace

MenuBarMonitorView::MenuBarMonitorView(const AppContext &context, QWidget *parent)
    : Card(parent)
    , m_context(context)
    , m_rows(new QWidget)
    , m_collecting(new TextLabel(TextRole::Body, Role::Text2))
{
    setWindowFlags(Qt::Popup | Qt::FramelessWindowHint);
    setAttribute(Qt::WA_TranslucentBackground); // around the corners
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(1, 0, 1, 0);
    column->setSpacing(0);
    buildHeader(*column);
    auto *rows = new QVBoxLayout(m_rows);
    rows->setContentsMargins(0, rowsMargin, 0, rowsMargin);
    rows->setSpacing(0);
    column->addWidget(m_rows);
    m_collecting->setAlignment(Qt::AlignCenter);
    column->addWidget(m_collecting);
    buildFooter(*column);

    const auto fit = [this] {
        const auto &appearance = Appearance::current();
        setFixedWidth(appearance.scaled(popUpWidth));
        m_header->setFixedHeight(appearance.scaled(headerHeight));
        m_collecting->setMinimumHeight(appearance.scaled(collectingHeight));
    };
    fit();
    connect(&Appearance::current(), &Appearance::changed, this, fit);
    new Watching(context.monitor, *this);
    connect(&context.monitor, &monitor::LiveMonitor::samplesChanged, this, [this] {
        if (isVisible())
            follow();
    });
    retranslate();
}

void MenuBarMonitorView::buildHeader(QVBoxLayout &column)
{
    m_header = new QWidget;
    auto *icon = new IconTile(u"app-icon"_s, appIcon);
    icon->setColors(Role::Card, Role::Text);
    auto *name = new TextLabel(TextRole::Body);
    name->setWeight(QFont::DemiBold);
    name->setText(u"Quillmark"_s);
    m_pace = new TextLabel(TextRole::Small, Role::Text3);
    auto *row = new QHBoxLayout(m_header);
    row->setContentsMargins(padding, 0, padding, 0);
    row->setSpacing(11);
    row->addWidget(icon);
    row->addWidget(name);
    row->addStretch();
    row->addWidget(m_pace);
    column.addWidget(m_header);
}

void MenuBarMonitorView::buildFooter(QVBoxLayout &column)
{
    m_footer = new QWidget;
    m_open = new Button(Button::Kind::Normal, u"macwindow"_s);
    m_open->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    m_settings = new Button(Button::Kind::Normal, u"gearshape"_s);
    auto *row = new QHBoxLayout(m_footer);
    row->setContentsMargins(footerMargin, footerMargin, footerMargin, footerMargin);
    row->setSpacing(6);
    row->addWidget(m_open, 1);
    row->addWidget(m_settings);
    column.addWidget(m_footer);
    connect(m_open, &QAbstractButton::clicked, this, [this] {
        close();
        Q_EMIT openAsked();
    });
    connect(m_settings, &QAbstractButton::clicked, this, [this] {
        close();
        Q_EMIT settingsAsked();
    });
}

void MenuBarMonitorView::openBelow(const QRect &item)
{
    adjustSize();
    const auto *screen = QGuiApplication::screenAt(item.center());
    const auto room = (screen ? screen : QGuiApplication::primaryScreen())->availableGeometry();
    const int left = item.center().x() - width() / 2;
    const int top = item.bottom() + gapBelowItem;
    move(std::clamp(left, room.left(), std::max(room.left(), room.right() - width())),
         std::clamp(top, room.top(), std::max(room.top(), room.bottom() - height())));
    show();
    activateWindow();
    m_open->setFocus(Qt::PopupFocusReason);
}

void MenuBarMonitorView::changeEvent(QEvent *event)
{
    Card::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        retranslate();
}

void MenuBarMonitorView::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Escape)
        close();
    else
        Card::keyPressEvent(event);
}

void MenuBarMonitorView::paintEvent(QPaintEvent *event)
{
    Card::paintEvent(event);
    const auto rule = Appearance::current().color(Role::Hairline);
    QPainter painter(this);
    paintHairline(painter, 1, width() - 1, m_header->geometry().bottom(), rule);
    paintHairline(painter, 1, width() - 1, m_footer->geometry().top(), rule);
}

void MenuBarMonitorView::showEvent(QShowEvent *event)
{
    Card::showEvent(event);
    m_described.invalidate();
    follow();
}

void MenuBarMonitorView::retranslate()
{
    setAccessibleName(tr("Quillmark live monitor"));
    m_pace->setText(tr("Every second"));
    m_collecting->setText(tr("Collecting samples…"));
    m_open->setText(tr("Open Quillmark"));
    m_settings->setAccessibleName(tr("Settings…"));
    m_settings->setToolTip(tr("Settings…"));
    m_described.invalidate();
    follow();
}

void MenuBarMonitorView::follow()
{
    const auto &live = m_context.monitor;
    const bool hasSamples = live.latest().has_value();
    const auto rowsBefore = m_rowViews.size();
    const bool hadSamples = !m_rows->isHidden();
    m_rows->setVisible(hasSamples);
    m_pace->setVisible(hasSamples);
    m_collecting->setVisible(!hasSamples);
    if (hasSamples != hadSamples)
        adjustSize();
    if (!hasSamples)
        return;
    const monitor::MonitorModel model(live.samples(), live.latest());
    const auto rows = monitorRows(model, m_context.language.formats());
    while (m_rowViews.size() > rows.size())
        delete m_rowViews.takeLast();
    while (m_rowViews.size() < rows.size()) {
        m_rowViews += new MonitorRowView(m_rows);
        m_rows->layout()->addWidget(m_rowViews.back());
    }
    const bool describes = !m_described.isValid() || m_described.elapsed() >= describedEvery.count();
    for (int i = 0; i < rows.size(); ++i) {
        auto &view = *m_rowViews[i];
        view.setRow(rows[i]);
        view.setBeginsGroup(i > 0 && rows[i - 1].kind == MonitorRow::Kind::Swap);
        if (rows[i].kind == MonitorRow::Kind::Processor) {
            std::vector<double> loads;
            loads.reserve(static_cast<std::size_t>(model.points.size()));
            for (const auto &point : model.points)
                loads.push_back(point.cpu);
            view.setHistory(std::move(loads));
        }
        if (describes)
            view.setAccessibleName(rows[i].line());
    }
    if (describes)
        m_described.start();
    if (m_rowViews.size() != rowsBefore)
        adjustSize();
}

} // namespace quillmark::app

// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "app/dialogs/FirstRunDialog.h"

#include "app/Appearance.h"
#include "app/painting.h"
#include "app/settingKeys.h"
#include "app/widgets/AppIcon.h"
#include "app/widgets/IconTile.h"
#include "app/widgets/Progress.h"
#include "app/widgets/TextLabel.h"
#include "inspection/Quillmark.h"
#include "update/UpdateChecker.h"

#include <QCheckBox>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QPainter>
#include <QPushButton>
#include <QStyle>
#include <QSystemTrayIcon>
#include <QVBoxLayout>

namespace quillmark::app {

using namespace Qt::StringLiterals;
using design::Role;

namespace {

constexpr int dialogWidth = 560;
constexpr int iconSize = 92;

/// With a line above what is in it.
class RuledWidget final : public QWidget
{
public:
    using QWidget::QWidget;

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        paintHairline(painter, 0, width(), 0, Appearance::current().color(Role::CardBorder));
    }
};

} // namespace

FirstRunDialog::FirstRunDialog(const AppContext &context, update::UpdateChecker &updates, QWidget *parent)
    : ContentDialog(dialogWidth, parent)
    , m_context(context)
    , m_updates(updates)
    , m_title(new TextLabel(TextRole::Title1, Role::Text, this))
    , m_subtitle(new TextLabel(TextRole::Body, Role::Text2, this))
{
    setGround(Role::Card);
    setWindowModality(Qt::WindowModal);
    for (auto *label : {m_title, m_subtitle}) {
        label->setAlignment(Qt::AlignHCenter);
        label->setWordWrap(true);
    }
    column()->setContentsMargins(48, 26, 48, 22);
    column()->setSpacing(0);
    column()->addWidget(new AppIcon(iconSize, this), 0, Qt::AlignHCenter);
    column()->addSpacing(12);
    column()->addWidget(m_title);
    column()->addSpacing(6);
    column()->addWidget(m_subtitle);
    column()->addSpacing(24);
    addPoints();
    column()->addSpacing(24);
    column()->addWidget(makeChoices());
    setFooter(makeFooter());

    connect(&context.inspection, &inspection::Quillmark::refreshed, this, &FirstRunDialog::showProgress);
    setUp();
    m_start->setFocus();
}

void FirstRunDialog::addPoints()
{
    for (const auto &symbol : {u"square.grid.2x2"_s, u"clock.arrow.circlepath"_s, u"lock"_s}) {
        auto *heading = new TextLabel(TextRole::Heading, Role::Text, this);
        auto *text = new TextLabel(TextRole::Body, Role::Text2, this);
        text->setWordWrap(true);
        auto *texts = new QVBoxLayout;
        texts->setSpacing(2);
        texts->addWidget(heading);
        texts->addWidget(text);
        texts->addStretch();
        auto *row = new QHBoxLayout;
        row->setSpacing(16);
        row->addWidget(new IconTile(symbol, IconTile::medium, this), 0, Qt::AlignTop);
        row->addLayout(texts, 1);
        if (!m_points.empty())
            column()->addSpacing(18);
        column()->addLayout(row);
        m_points.push_back({heading, text});
    }
}

QWidget *FirstRunDialog::makeChoices()
{
    auto *choices = new RuledWidget(this);
    m_checkForUpdates = new QCheckBox(choices);
    m_asked = new TextLabel(TextRole::Small, Role::Text3, choices);
    m_asked->setWordWrap(true);
    m_showMonitor = new QCheckBox(choices);
    auto *rows = new QVBoxLayout(choices);
    rows->setContentsMargins(0, 18, 0, 0);
    rows->setSpacing(4);
    rows->addWidget(m_checkForUpdates);
    rows->addWidget(m_asked);
    rows->addSpacing(8);
    rows->addWidget(m_showMonitor);
    m_checkForUpdates->setChecked(true);
    const bool canAsk = !m_updates.host().isEmpty();
    m_checkForUpdates->setVisible(canAsk);
    m_asked->setVisible(canAsk);
    m_showMonitor->setVisible(QSystemTrayIcon::isSystemTrayAvailable());
    return choices;
}

QWidget *FirstRunDialog::makeFooter()
{
    auto *footer = new QWidget(this);
    m_progress = new Progress(footer);
    m_state = new TextLabel(TextRole::Small, Role::Text2, footer);
    m_start = new QPushButton(footer);
    m_start->setDefault(true);
    connect(m_start, &QPushButton::clicked, this, &FirstRunDialog::start);
    auto *row = new QHBoxLayout(footer);
    row->setContentsMargins(28, 14, 20, 14);
    row->setSpacing(8);
    row->addWidget(m_progress);
    row->addWidget(m_state, 1);
    row->addWidget(m_start);
    return footer;
}

void FirstRunDialog::start()
{
    if (!m_checkForUpdates->isHidden())
        m_updates.setConsent(m_checkForUpdates->isChecked());
    if (!m_showMonitor->isHidden())
        m_context.settings.setValue(keys::showsMenuBarMonitor, m_showMonitor->isChecked());
    accept();
}

void FirstRunDialog::showProgress()
{
    const bool isReady = m_context.inspection.lastUpdated().has_value();
    m_progress->setDone(isReady);
    m_state->setText(isReady            ? tr("Ready")
                     : isMac(m_context) ? tr("Inspecting this Mac…")
                                        : tr("Inspecting this computer…"));
}

void FirstRunDialog::retranslate()
{
    const bool mac = isMac(m_context);
    setWindowTitle(u"Quillmark"_s);
    m_title->setText(mac ? tr("See what this Mac can really do")
                         : tr("See what this computer can really do"));
    m_subtitle->setText(tr("Every capability of your hardware and system, with a clear status."));
    m_points[0].heading->setText(tr("Eleven sections, one score"));
    m_points[0].text->setText(tr("From processor and graphics to codecs, displays and security."));
    m_points[1].heading->setText(tr("Every change is saved"));
    m_points[1].text->setText(tr("Compare any two scans and see what an update changed."));
    m_points[2].heading->setText(tr("Your data stays here"));
    m_points[2].text->setText(
        mac ? tr("Nothing about this Mac is sent anywhere. Quillmark goes online only to "
                 "look for its own updates.")
            : tr("Nothing about this computer is sent anywhere. Quillmark goes online "
                 "only to look for its own updates."));
    m_checkForUpdates->setText(tr("Check for updates automatically"));
    //: %1 is the name of a server
    m_asked->setText(
        tr("Asks %1 once a day at most, and tells it Quillmark’s version only.").arg(m_updates.host()));
    const int indent = style()->pixelMetric(QStyle::PM_IndicatorWidth) +
                       style()->pixelMetric(QStyle::PM_CheckBoxLabelSpacing);
    const bool isMirrored = layoutDirection() == Qt::RightToLeft;
    m_asked->setContentsMargins(isMirrored ? 0 : indent, 0, isMirrored ? indent : 0, 0);
    m_showMonitor->setText(QGuiApplication::platformName() == "cocoa"_L1
                               ? tr("Show the live monitor in the menu bar")
                               : tr("Show the live monitor in the status area"));
    m_start->setText(tr("Get started"));
    showProgress();
}

} // namespace quillmark::app

// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "app/dialogs/SettingsDialog.h"

#include "app/dialogs/GeneralPane.h"
#include "app/dialogs/LanguagePane.h"
#include "app/dialogs/MenuBarPane.h"
#include "app/dialogs/PaneBar.h"
#include "app/dialogs/UpdatesPane.h"
#include "settings/Settings.h"

#include <QGuiApplication>
#include <QPushButton>
#include <QShortcut>
#include <QStackedWidget>
#include <QVBoxLayout>

namespace quillmark::app {

using namespace Qt::StringLiterals;

namespace {

constexpr int dialogWidth = 560;

bool isOnMac()
{
    return QGuiApplication::platformName() == "cocoa"_L1;
}

} // namespace

SettingsDialog::SettingsDialog(const AppContext &context, update::UpdateChecker &updates, QWidget *parent)
    : ContentDialog(dialogWidth, parent)
    , m_panes(new QStackedWidget(this))
    , m_bar(new PaneBar({u"gearshape"_s, u"globe"_s, u"arrow.down.circle"_s, u"macwindow"_s}, this))
{
    auto *general = new GeneralPane(context);
    auto *updatesPane = new UpdatesPane(context, updates);
    for (SettingsPane *pane : std::initializer_list<SettingsPane *>{general, new LanguagePane(context),
                                                                    updatesPane, new MenuBarPane(context)}) {
        m_panes->addWidget(pane);
        connect(&context.settings, &settings::Settings::changed, pane, &SettingsPane::refresh);
    }
    connect(general, &GeneralPane::historyFolderAsked, this, &SettingsDialog::historyFolderAsked);
    connect(general, &GeneralPane::clearingAsked, this, &SettingsDialog::clearingAsked);
    connect(updatesPane, &UpdatesPane::checkAsked, this, &SettingsDialog::updateCheckAsked);
    setHeader(m_bar);
    column()->setContentsMargins({});
    column()->addWidget(m_panes);

    connect(m_bar, &PaneBar::chosen, this, [this](int index) {
        m_panes->setCurrentIndex(index);
        retranslate();
    });
    const auto addKeys = [this](const QList<QKeySequence> &keys, int by) {
        auto *shortcut = new QShortcut(this);
        shortcut->setKeys(keys);
        connect(shortcut, &QShortcut::activated, this, [this, by] { step(by); });
    };
    addKeys(QKeySequence::keyBindings(QKeySequence::NextChild), 1);
    // Qt's own of Linux, with Backtab, is never met there.
    addKeys(QKeySequence::keyBindings(QKeySequence::PreviousChild) << (Qt::CTRL | Qt::SHIFT | Qt::Key_Tab),
            -1);
    for (auto *button : findChildren<QPushButton *>())
        button->setAutoDefault(false);
    setUp();
}

void SettingsDialog::showPane(Pane pane)
{
    m_bar->choose(static_cast<int>(pane));
}

void SettingsDialog::step(int by)
{
    m_bar->choose((m_panes->currentIndex() + by + m_panes->count()) % m_panes->count());
}

void SettingsDialog::retranslate()
{
    const QStringList names = {tr("General"), tr("Language"), tr("Updates"),
                               isOnMac() ? tr("Menu bar") : tr("Status area")};
    m_bar->setNames(names);
    setWindowTitle(isOnMac() ? names[m_panes->currentIndex()] : tr("Settings"));
    for (int index = 0; index < m_panes->count(); ++index)
        static_cast<SettingsPane *>(m_panes->widget(index))->retranslate();
}

void SettingsDialog::showEvent(QShowEvent *event)
{
    // What changes without telling: the day, and whether there is a status area.
    for (int index = 0; index < m_panes->count(); ++index)
        static_cast<SettingsPane *>(m_panes->widget(index))->refresh();
    ContentDialog::showEvent(event);
}

} // namespace quillmark::app

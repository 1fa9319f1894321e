// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "app/MenuBar.h"

#include "app/Appearance.h"
#include "app/monitorTexts.h"
#include "app/settingKeys.h"
#include "app/views/MenuBarMonitorView.h"
#include "language/LanguageManager.h"
#include "monitor/LiveMonitor.h"

#include <QGuiApplication>
#include <QMenu>
#include <QSystemTrayIcon>

namespace quillmark::app {

using namespace Qt::StringLiterals;

namespace {

bool hasPopUp()
{
    return QGuiApplication::platformName() == "cocoa"_L1;
}

} // namespace

MenuBar::MenuBar(const AppContext &context, QObject *parent)
    : QObject(parent)
    , m_context(context)
    , m_label(context)
{
    connect(&context.settings, &settings::Settings::changed, this, [this](const QString &key) {
        if (key == keys::showsMenuBarMonitor.name)
            followSettings();
    });
    connect(&m_label, &MenuBarLabel::changed, this, &MenuBar::showLabel);
    connect(&Appearance::current(), &Appearance::changed, this, [this] {
        if (m_icon)
            m_icon->setIcon(MenuBarLabel::icon());
    });
    connect(&context.language, &language::LanguageManager::languageChanged, this, &MenuBar::fillMenu);
    followSettings();
}

MenuBar::~MenuBar() = default;

bool MenuBar::isAvailable()
{
    return QSystemTrayIcon::isSystemTrayAvailable();
}

void MenuBar::followSettings()
{
    const bool wanted = m_context.settings.value(keys::showsMenuBarMonitor) && isAvailable();
    if (wanted && !m_icon)
        show();
    else if (!wanted && m_icon)
        hide();
}

void MenuBar::show()
{
    m_label.setShown(true);
    m_icon = std::make_unique<QSystemTrayIcon>(MenuBarLabel::icon());
    connect(m_icon.get(), &QSystemTrayIcon::activated, this,
            [this](QSystemTrayIcon::ActivationReason reason) {
                if (reason != QSystemTrayIcon::Trigger && reason != QSystemTrayIcon::DoubleClick)
                    return;
                if (hasPopUp())
                    openPopUp();
                else
                    Q_EMIT openAsked();
            });
    if (!hasPopUp()) {
        makeMenu();
        m_icon->setContextMenu(m_menu.get());
    }
    showLabel();
    m_icon->show();
}

void MenuBar::hide()
{
    m_icon.reset();
    m_popUp.reset();
    m_menu.reset();
    m_rows.clear();
    m_label.setShown(false);
}

void MenuBar::showLabel()
{
    if (!m_icon)
        return;
    m_icon->setToolTip(m_label.toolTip());
    // A desktop that shows the menu in its own way asks for it when it is opened.
    if (m_menu && (m_menu->isVisible() || m_rows.size() < 2))
        fillMenu();
}

void MenuBar::openPopUp()
{
    if (!m_popUp) {
        m_popUp = std::make_unique<MenuBarMonitorView>(m_context);
        connect(m_popUp.get(), &MenuBarMonitorView::openAsked, this, &MenuBar::openAsked);
        connect(m_popUp.get(), &MenuBarMonitorView::settingsAsked, this, &MenuBar::settingsAsked);
    }
    m_popUp->openBelow(m_icon->geometry());
}

void MenuBar::makeMenu()
{
    m_menu = std::make_unique<QMenu>();
    m_menu->addSeparator();
    m_open = m_menu->addAction(QString(), this, &MenuBar::openAsked);
    m_quit = m_menu->addAction(QString(), this, &MenuBar::quitAsked);
    connect(m_menu.get(), &QMenu::aboutToShow, this, &MenuBar::fillMenu);
    fillMenu();
}

void MenuBar::fillMenu()
{
    if (!m_menu)
        return;
    QStringList lines;
    if (const auto &latest = m_context.monitor.latest()) {
        const monitor::MonitorModel model({&*latest, 1}, latest);
        for (const auto &row : monitorRows(model, m_context.language.formats()))
            lines += row.line();
    } else {
        lines += tr("Collecting samples…");
    }
    while (m_rows.size() > lines.size())
        delete m_rows.takeLast();
    while (m_rows.size() < lines.size()) {
        auto *row = new QAction(m_menu.get());
        row->setEnabled(false);
        m_menu->insertAction(m_menu->actions().at(m_rows.size()), row);
        m_rows += row;
    }
    for (int i = 0; i < lines.size(); ++i)
        m_rows[i]->setText(lines[i]);
    m_open->setText(tr("Open Quillmark"));
    m_quit->setText(tr("Quit"));
}

} // namespace quillmark::app

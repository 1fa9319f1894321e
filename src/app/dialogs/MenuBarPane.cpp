// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "app/dialogs/MenuBarPane.h"

#include "app/settingKeys.h"

#include <QCheckBox>
#include <QGuiApplication>
#include <QRadioButton>
#include <QSystemTrayIcon>
#include <QVBoxLayout>

namespace quillmark::app {

using namespace Qt::StringLiterals;

namespace {

/// As keys::menuBarFigure has them.
constexpr std::array figures = {"processor"_L1, "memory"_L1, "none"_L1};

bool hasMenuBar()
{
    return QGuiApplication::platformName() == "cocoa"_L1;
}

} // namespace

MenuBarPane::MenuBarPane(const AppContext &context, QWidget *parent)
    : SettingsPane(parent)
    , m_context(context)
    , m_show(new QCheckBox(this))
    , m_keepRunning(new QCheckBox(this))
{
    auto &settings = context.settings;
    auto *monitor = addRow();
    monitor->addWidget(m_show);
    m_missing = addCaptionOf(*m_show, *monitor);
    connect(m_show, &QCheckBox::clicked, this,
            [&settings](bool isOn) { settings.setValue(keys::showsMenuBarMonitor, isOn); });

    auto *figure = addRow();
    for (std::size_t index = 0; index < figures.size(); ++index) {
        m_figures[index] = new QRadioButton(this);
        figure->addWidget(m_figures[index]);
        connect(m_figures[index], &QRadioButton::clicked, this,
                [&settings, index] { settings.setValue(keys::menuBarFigure, QString(figures[index])); });
    }

    auto *window = addRow();
    window->addWidget(m_keepRunning);
    m_keepCaption = addCaptionOf(*m_keepRunning, *window);
    connect(m_keepRunning, &QCheckBox::clicked, this,
            [&settings](bool isOn) { settings.setValue(keys::keepsRunning, isOn); });
}

void MenuBarPane::retranslate()
{
    if (hasMenuBar()) {
        m_show->setText(tr("Show the live monitor in the menu bar"));
        m_keepCaption->setText(tr("Quillmark stays in the menu bar until you quit it"));
    } else {
        m_show->setText(tr("Show the live monitor in the status area"));
        m_keepCaption->setText(tr("Quillmark stays in the status area until you quit it"));
    }
    setLabels(
        {hasMenuBar() ? tr("Menu bar:") : tr("Status area:"), tr("Show next to the icon:"), tr("Window:")});
    m_missing->setText(tr("This desktop has no status area."));
    m_figures[0]->setText(tr("Processor load"));
    m_figures[1]->setText(tr("Memory used"));
    m_figures[2]->setText(tr("Icon only"));
    m_keepRunning->setText(tr("Keep running when the main window is closed"));
    refresh();
}

void MenuBarPane::refresh()
{
    const auto &settings = m_context.settings;
    const bool hasPlace = QSystemTrayIcon::isSystemTrayAvailable();
    const bool isShown = settings.value(keys::showsMenuBarMonitor);
    m_show->setEnabled(hasPlace);
    m_show->setChecked(isShown);
    m_missing->setVisible(!hasPlace);
    const auto figure = settings.value(keys::menuBarFigure);
    for (std::size_t index = 0; index < figures.size(); ++index) {
        m_figures[index]->setEnabled(hasPlace && isShown);
        if (figure == figures[index])
            m_figures[index]->setChecked(true);
    }
    m_keepRunning->setEnabled(hasPlace && isShown);
    m_keepRunning->setChecked(settings.value(keys::keepsRunning));
}

} // namespace quillmark::app

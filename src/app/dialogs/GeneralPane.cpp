// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "app/dialogs/GeneralPane.h"

#include "app/dialogs/showInFolder.h"
#include "app/settingKeys.h"
#include "history/ScanHistory.h"
#include "language/LanguageManager.h"

#include <QHBoxLayout>
#include <QPushButton>
#include <QRadioButton>

namespace quillmark::app {

using namespace Qt::StringLiterals;
using design::Role;

GeneralPane::GeneralPane(const AppContext &context, QWidget *parent)
    : SettingsPane(parent)
    , m_context(context)
    , m_overview(new QRadioButton(this))
    , m_last(new QRadioButton(this))
    , m_scans(new TextLabel(TextRole::Body, Role::Text, this))
    , m_show(new QPushButton(this))
    , m_clear(new QPushButton(this))
    , m_stays(new TextLabel(TextRole::Body, Role::Text, this))
{
    auto *opening = addRow();
    opening->addWidget(m_overview);
    opening->addWidget(m_last);

    auto *history = addRow();
    history->addWidget(m_scans);
    auto *buttons = new QHBoxLayout;
    buttons->setSpacing(10);
    buttons->addWidget(m_show);
    buttons->addWidget(m_clear);
    buttons->addStretch();
    history->addSpacing(5);
    history->addLayout(buttons);

    auto *privacy = addRow();
    m_stays->setWordWrap(true);
    privacy->addWidget(m_stays);
    m_connection = addCaption(*privacy);

    auto &settings = context.settings;
    connect(m_overview, &QRadioButton::clicked, this,
            [&settings] { settings.setValue(keys::opensAt, u"overview"_s); });
    connect(m_last, &QRadioButton::clicked, this,
            [&settings] { settings.setValue(keys::opensAt, keys::opensAtLast); });
    connect(m_show, &QPushButton::clicked, this, &GeneralPane::historyFolderAsked);
    connect(m_clear, &QPushButton::clicked, this, &GeneralPane::clearingAsked);
    connect(&context.history, &history::ScanHistory::snapshotsChanged, this, &GeneralPane::refresh);
}

void GeneralPane::retranslate()
{
    m_overview->setText(tr("Show the overview"));
    m_last->setText(tr("Show the screen I used last"));
    m_show->setText(showInFolderVerb());
    m_clear->setText(tr("Clear history…"));
    m_stays->setText(isMac(m_context) ? tr("Everything Quillmark reads stays on this Mac.")
                                      : tr("Everything Quillmark reads stays on this computer."));
    m_connection->setText(tr("The only connection it makes is the check for updates."));
    setLabels({tr("When Quillmark opens:"), tr("Scan history:"), tr("Privacy:")});
    refresh();
}

void GeneralPane::refresh()
{
    const bool opensAtLast = m_context.settings.value(keys::opensAt) == keys::opensAtLast;
    (opensAtLast ? m_last : m_overview)->setChecked(true);
    const auto scans = m_context.history.snapshots().size();
    //: %1 is a number
    m_scans->setText(tr("%n scans saved, %1 at most", nullptr, static_cast<int>(scans))
                         .arg(m_context.language.formats().number(history::ScanHistory::mostSnapshots)));
    m_clear->setEnabled(scans > 0);
}

} // namespace quillmark::app

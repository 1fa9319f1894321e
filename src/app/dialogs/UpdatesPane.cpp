// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "app/dialogs/UpdatesPane.h"

#include "app/momentTexts.h"
#include "app/widgets/IconTile.h"
#include "language/LanguageManager.h"
#include "reports/Report.h"
#include "update/updateTexts.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QPushButton>

namespace quillmark::app {

using namespace Qt::StringLiterals;
using design::Role;
using update::UpdateChecker;

UpdatesPane::UpdatesPane(const AppContext &context, UpdateChecker &updates, QWidget *parent)
    : SettingsPane(parent)
    , m_context(context)
    , m_updates(updates)
    , m_automatic(new QCheckBox(this))
    , m_check(new QPushButton(this))
    , m_mark(new IconTile(u"checkmark.circle.fill"_s, {16, 0, 16}, this))
    , m_status(new TextLabel(TextRole::Body, Role::Text, this))
{
    auto *automatic = addRow();
    automatic->addWidget(m_automatic);
    m_caption = addCaptionOf(*m_automatic, *automatic);
    automatic->addSpacing(4);
    automatic->addWidget(m_check, 0, Qt::AlignLeading);

    auto *status = addRow();
    auto *line = new QHBoxLayout;
    line->setSpacing(8);
    line->addWidget(m_mark);
    line->addWidget(m_status, 1);
    m_status->setWordWrap(true);
    status->addLayout(line);
    m_last = addCaption(*status);

    connect(m_automatic, &QCheckBox::clicked, this, [this](bool isOn) {
        m_updates.setConsent(isOn);
        refresh();
    });
    connect(m_check, &QPushButton::clicked, this, &UpdatesPane::checkAsked);
    connect(&updates, &UpdateChecker::checkingChanged, this, &UpdatesPane::refresh);
    connect(&updates, &UpdateChecker::finished, this, &UpdatesPane::refresh);
}

void UpdatesPane::retranslate()
{
    m_automatic->setText(tr("Check for updates automatically"));
    setLabels({tr("Updates:"), tr("Status:")});
    refresh();
}

void UpdatesPane::refresh()
{
    const auto host = m_updates.host();
    m_automatic->setEnabled(!host.isEmpty());
    m_automatic->setChecked(m_updates.hasConsent());
    m_caption->setText(
        host.isEmpty()
            ? update::reasonText({.reason = update::CheckFailure::Reason::BadAddress}, m_updates.feed())
            //: %1 is the name of a server
            : tr("Asks %1 once a day, when Quillmark starts").arg(host));
    m_caption->setToolTip(update::consentNote());
    const bool isChecking = m_updates.isChecking();
    m_check->setText(isChecking ? tr("Checking…") : tr("Check now"));
    m_check->setEnabled(!isChecking && !host.isEmpty());
    showStatus();
}

void UpdatesPane::showStatus()
{
    const auto &result = m_updates.lastResult();
    const auto show = [this](const QString &symbol, Role role, const QString &text) {
        m_mark->setVisible(!symbol.isEmpty());
        m_mark->setSymbol(symbol);
        m_mark->setColors(Role::Window, role);
        m_status->setText(text);
    };
    const auto running = update::Version::parse(reports::applicationVersion());
    if (m_updates.isChecking())
        show({}, Role::Text, tr("Checking…"));
    else if (!result || !running)
        show({}, Role::Text, m_updates.lastChecked() ? QString() : tr("Never checked"));
    else if (const auto *failure = std::get_if<update::CheckFailure>(&*result))
        show(u"exclamationmark.circle"_s, Role::Unsupported, reasonText(*failure, m_updates.feed()));
    else if (std::holds_alternative<update::Available>(*result))
        show(u"arrow.down.circle"_s, Role::Accent, headline(*result, *running));
    else
        show(u"checkmark.circle.fill"_s, Role::Supported, headline(*result, *running));
    m_status->setVisible(!m_status->text().isEmpty());
    const auto last = m_updates.lastChecked();
    m_last->setText(last ? lastCheckedText(last->toLocalTime(), m_context.language.formats()) : QString());
    m_last->setVisible(last.has_value());
}

} // namespace quillmark::app

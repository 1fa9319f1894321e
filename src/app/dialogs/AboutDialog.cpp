// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "app/dialogs/AboutDialog.h"

#include "app/Appearance.h"
#include "app/widgets/AppIcon.h"
#include "app/widgets/TextLabel.h"
#include "reports/Report.h"

#include <QHBoxLayout>
#include <QPushButton>
#include <QVBoxLayout>

namespace quillmark::app {

using namespace Qt::StringLiterals;
using design::Role;

namespace {

constexpr int aboutWidth = 400;
constexpr int iconSize = 112;
} // namespace

AboutDialog::AboutDialog(const AppContext &context, QWidget *parent)
    : ContentDialog(aboutWidth, parent)
    , m_context(context)
    , m_version(new TextLabel(TextRole::Body, Role::Text2, this))
    , m_purpose(new TextLabel(TextRole::Body, Role::Text, this))
    , m_licences(new QPushButton(this))
    , m_updates(new QPushButton(this))
{
    setGround(Role::Card);
    auto *name = new TextLabel(TextRole::Title1, Role::Text, this);
    name->setText(u"Quillmark"_s);
    auto *copyright = new TextLabel(TextRole::Small, Role::Text3, this);
    copyright->setText(u"© 2026 Quillmark contributors"_s);
    for (auto *label : {name, m_version, m_purpose, copyright}) {
        label->setAlignment(Qt::AlignHCenter);
        label->setWordWrap(true);
    }
    m_version->setTextInteractionFlags(Qt::TextSelectableByMouse);
    for (auto *button : {m_licences, m_updates})
        button->setAutoDefault(false);

    auto *buttons = new QHBoxLayout;
    buttons->setSpacing(10);
    buttons->addStretch();
    buttons->addWidget(m_licences);
    buttons->addWidget(m_updates);
    buttons->addStretch();

    column()->setContentsMargins(32, 28, 32, 28);
    column()->setSpacing(0);
    column()->addWidget(new AppIcon(iconSize, this), 0, Qt::AlignHCenter);
    column()->addSpacing(12);
    column()->addWidget(name);
    column()->addSpacing(4);
    column()->addWidget(m_version);
    column()->addSpacing(18);
    column()->addWidget(m_purpose);
    column()->addSpacing(20);
    column()->addLayout(buttons);
    column()->addSpacing(22);
    column()->addWidget(copyright);

    connect(m_licences, &QPushButton::clicked, this, &AboutDialog::licencesAsked);
    connect(m_updates, &QPushButton::clicked, this, &AboutDialog::updateCheckAsked);
    setUp();
}

void AboutDialog::retranslate()
{
    setWindowTitle(tr("About Quillmark"));
    m_version->setText(tr("Version %1").arg(reports::applicationVersion()));
    //: Two sentences, each in a line of its own
    m_purpose->setText(
        isMac(m_context)
            ? tr("Tells you what your Mac can really do.\nEverything it reads stays on this Mac.")
            : tr("Tells you what your computer can really do.\nEverything it reads stays on "
                 "this computer."));
    m_licences->setText(tr("Licences"));
    m_updates->setText(tr("Check for updates"));
}

} // namespace quillmark::app

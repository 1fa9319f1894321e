// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "app/views/SectionPage.h"

#include "app/widgets/IconTile.h"
#include "app/widgets/TextLabel.h"
#include "inspection/DeviceProbe.h"
#include "inspection/Quillmark.h"
#include "language/LanguageManager.h"
#include "reports/Report.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLocale>
#include <QVBoxLayout>

#include <algorithm>

namespace quillmark::app {

using namespace Qt::StringLiterals;
using design::Role;
using inspection::CapabilitySection;
using inspection::CapabilityStatus;

SectionPage::SectionPage(const AppContext &context, QWidget *parent)
    : RowsPage(context, parent)
    , m_tile(new IconTile(u"info.circle"_s, IconTile::large, this))
    , m_title(new ElidedLabel(TextRole::Title2, Role::Text, this))
    , m_rated(new ElidedLabel(TextRole::Body, Role::Text2, this))
{
    auto *texts = new QVBoxLayout;
    texts->setSpacing(1);
    texts->addStretch();
    texts->addWidget(m_title);
    texts->addWidget(m_rated);
    texts->addStretch();
    auto *heading = new QHBoxLayout;
    heading->setSpacing(16);
    heading->addWidget(m_tile);
    heading->addLayout(texts, 1);
    column()->addLayout(heading);
    addRows();
    setUp();
}

void SectionPage::setSection(const QString &key)
{
    showRows(key, {});
}

bool SectionPage::copyAsText()
{
    const auto &inspection = context().inspection;
    if (!inspection.summary())
        return false;
    QGuiApplication::clipboard()->setText(
        reports::plainText({.date = inspection.lastUpdated(),
                            .language = context().language.language(),
                            .summary = *inspection.summary(),
                            .sections = inspection.sections(),
                            .filter = reports::inSections({rows().query().section})}));
    return true;
}

void SectionPage::rowsChanged()
{
    const auto sections =
        isInspected() ? context().inspection.sections() : inspection::DeviceProbe::emptySections();
    const auto section = std::ranges::find(sections, rows().query().section, &CapabilitySection::key);
    if (section == sections.end())
        return;
    m_tile->setSymbol(section->symbol);
    m_title->setText(section->title);
    const auto counts = inspection::countsOf({*section});
    if (!isInspected())
        m_rated->setText(isMac(context()) ? tr("Inspecting this Mac…") : tr("Inspecting this computer…"));
    else if (counts.rated() == 0)
        m_rated->setText(tr("Nothing in this section is rated"));
    else
        //: %1 is how many of them are supported: "4 of 5 rated capabilities supported"
        m_rated->setText(
            tr("%1 of %n rated capabilities supported", nullptr, static_cast<int>(counts.rated()))
                .arg(QLocale().toString(counts.of(CapabilityStatus::Supported))));
}

void SectionPage::arrange()
{
    RowsPage::arrange();
    m_tile->setShape(isCompact() ? IconTile::medium : IconTile::large);
}

} // namespace quillmark::app

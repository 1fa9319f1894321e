// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "app/dialogs/ExportDialog.h"

#include "app/dialogs/FormatCard.h"
#include "app/dialogs/ReportPreview.h"
#include "app/momentTexts.h"
#include "app/settingKeys.h"
#include "app/widgets/TextLabel.h"
#include "inspection/Quillmark.h"
#include "language/LanguageManager.h"
#include "language/Paper.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QLocale>
#include <QPushButton>
#include <QVBoxLayout>

namespace quillmark::app {

using design::Role;

namespace {

constexpr int dialogWidth = 720;

reports::Report reportOf(const AppContext &context)
{
    const auto &inspection = context.inspection;
    return {inspection.lastUpdated(), context.language.language(),
            inspection.summary().value_or(inspection::DeviceSummary()), inspection.sections()};
}

} // namespace

ExportDialog::ExportDialog(const AppContext &context, QWidget *parent)
    : ContentDialog(dialogWidth, parent)
    , m_context(context)
    , m_report(reportOf(context))
    , m_title(new TextLabel(TextRole::Title3, Role::Text, this))
    , m_subtitle(new TextLabel(TextRole::Body, Role::Text2, this))
    , m_leaveOut(new QCheckBox(this))
    , m_preview(new ReportPreview(this))
{
    setWindowModality(Qt::WindowModal);
    setWindowFlag(Qt::Sheet);
    auto *choices = new QVBoxLayout;
    choices->setContentsMargins(28, 24, 24, 20);
    choices->setSpacing(0);
    m_subtitle->setWordWrap(true);
    choices->addWidget(m_title);
    choices->addSpacing(4);
    choices->addWidget(m_subtitle);
    choices->addSpacing(16);
    const auto last = exportFormatFromRawValue(context.settings.value(keys::exportFormat));
    for (const auto format : allExportFormats) {
        auto *card = new FormatCard(symbol(format), this);
        m_formats.addButton(card, static_cast<int>(format));
        card->setChecked(format == last);
        choices->addWidget(card);
        choices->addSpacing(10);
    }
    choices->addSpacing(4);
    m_leaveOut->setChecked(true); // as on the command line: a report is made to be passed on
    choices->addWidget(m_leaveOut);
    choices->addStretch();

    auto *row = new QHBoxLayout;
    row->setSpacing(0);
    row->addLayout(choices, 1);
    row->addWidget(m_preview);
    column()->setContentsMargins({});
    column()->addLayout(row);
    setFooter(makeFooter());

    connect(&m_formats, &QButtonGroup::idToggled, this, [this](int, bool isOn) {
        if (isOn)
            showPreview();
    });
    connect(m_leaveOut, &QCheckBox::toggled, this, &ExportDialog::showPreview);
    connect(m_preview, &ReportPreview::measured, this, [this](qsizetype pages, qsizetype bytes) {
        if (pages == 0)
            m_size->setText(m_context.language.formats().byteCount(bytes, language::ByteCountStyle::File));
        else if (language::usualPaper(QLocale::system()) == language::Paper::Letter)
            m_size->setText(tr("%n pages, US Letter", nullptr, static_cast<int>(pages)));
        else
            m_size->setText(tr("%n pages, A4", nullptr, static_cast<int>(pages)));
    });
    setUp();
    m_formats.checkedButton()->setFocus();
}

QWidget *ExportDialog::makeFooter()
{
    auto *footer = new QWidget(this);
    m_size = new TextLabel(TextRole::Small, Role::Text2, footer);
    m_cancel = new QPushButton(footer);
    m_cancel->setAutoDefault(false);
    m_export = new QPushButton(footer);
    m_export->setDefault(true);
    connect(m_cancel, &QPushButton::clicked, this, &QDialog::reject);
    connect(m_export, &QPushButton::clicked, this, &ExportDialog::choose);
    auto *row = new QHBoxLayout(footer);
    row->setContentsMargins(28, 14, 20, 14);
    row->setSpacing(10);
    row->addWidget(m_size, 1);
    row->addWidget(m_cancel);
    row->addWidget(m_export);
    return footer;
}

ExportFormat ExportDialog::format() const
{
    return static_cast<ExportFormat>(m_formats.checkedId());
}

reports::Report ExportDialog::report() const
{
    return m_leaveOut->isChecked() ? reports::withoutPrivateTexts(m_report) : m_report;
}

void ExportDialog::choose()
{
    m_context.settings.setValue(keys::exportFormat, rawValue(format()));
    accept();
}

void ExportDialog::showPreview()
{
    m_preview->setReport(format(), report());
}

void ExportDialog::retranslate()
{
    // The texts of a report are those of the inspection, and so they are in the language of it.
    setWindowTitle(tr("Export inspection"));
    m_title->setText(tr("Export inspection"));
    const auto sections = static_cast<int>(m_report.sections.size());
    m_subtitle->setText(m_report.date ? exportedText(sections, *m_report.date, m_context.language.formats())
                                      : QString());
    for (const auto format : allExportFormats) {
        auto *card = static_cast<FormatCard *>(m_formats.button(static_cast<int>(format)));
        card->setText(title(format));
        card->setDescription(description(format));
    }
    m_leaveOut->setText(tr("Leave out names and addresses"));
    m_preview->setAccessibleName(tr("Preview"));
    m_cancel->setText(tr("Cancel"));
    m_export->setText(tr("Export…"));
    showPreview();
}

} // namespace quillmark::app

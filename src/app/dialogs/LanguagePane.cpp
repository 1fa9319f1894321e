// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "app/dialogs/LanguagePane.h"

#include "language/LanguageManager.h"
#include "settings/Settings.h"

#include <QComboBox>
#include <QDateTime>
#include <QVBoxLayout>

#include <algorithm>

namespace quillmark::app {

using namespace Qt::StringLiterals;
using design::Role;
using language::LanguageManager;

LanguagePane::LanguagePane(const AppContext &context, QWidget *parent)
    : SettingsPane(parent)
    , m_context(context)
    , m_languages(new QComboBox(this))
    , m_example(new TextLabel(TextRole::Body, Role::Text, this))
{
    auto *language = addRow();
    language->addWidget(m_languages, 0, Qt::AlignLeading);
    m_caption = addCaption(*language);
    m_example->setWordWrap(true);
    addRow()->addWidget(m_example);

    m_languages->addItem(QString(), QString());
    for (const auto &tag : LanguageManager::available())
        m_languages->addItem(LanguageManager::nativeName(tag), tag);
    connect(m_languages, &QComboBox::activated, this,
            [this](int index) { choose(m_languages->itemData(index).toString()); });
}

void LanguagePane::choose(const QString &tag)
{
    if (tag.isEmpty())
        m_context.settings.remove(language::languageKey);
    else
        m_context.settings.setValue(language::languageKey, tag);
}

void LanguagePane::retranslate()
{
    m_languages->setAccessibleName(tr("Interface language"));
    m_languages->setItemText(0, m_context.language.systemChoiceName());
    m_caption->setText(
        tr("The new language is used at once. Scans saved in another language can still be compared."));
    const auto &formats = m_context.language.formats();
    constexpr std::int64_t bytes = 994'662'584'320;
    m_example->setText(formats.dateAndTime(QDateTime::currentDateTime()) + u" · "_s +
                       formats.byteCount(bytes, language::ByteCountStyle::File));
    setLabels({tr("Interface language:"), tr("Example:")});
    refresh();
}

void LanguagePane::refresh()
{
    const int index = m_languages->findData(m_context.settings.value(language::languageKey));
    m_languages->setCurrentIndex(std::max(0, index));
}

} // namespace quillmark::app

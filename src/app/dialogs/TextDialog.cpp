// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "app/dialogs/TextDialog.h"

#include "app/Appearance.h"
#include "app/views/Actions.h"

#include <QCoreApplication>
#include <QDialogButtonBox>
#include <QEvent>
#include <QFile>
#include <QTextEdit>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace quillmark::app {

using namespace Qt::StringLiterals;

namespace {

constexpr QSize usualSize(640, 520);

QString resource(const QString &name)
{
    QFile file(u":/quillmark/texts/"_s + name);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

/// Its lines as they are, of a text that is not Markdown.
QString verbatim(const QString &text)
{
    return u"```\n%1\n```\n"_s.arg(text.trimmed());
}

/// A row for each command that has keys.
QString rows(const QMenu &menu)
{
    QString text;
    for (const auto *action : menu.actions()) {
        if (action->menu())
            text += rows(*action->menu());
        const auto keys = QKeySequence::listToString(action->shortcuts(), QKeySequence::NativeText);
        if (!keys.isEmpty())
            text += u"<tr><td width='300'>%1</td><td>%2</td></tr>"_s.arg(action->text().toHtmlEscaped(),
                                                                         keys.toHtmlEscaped());
    }
    return text;
}

} // namespace

TextDialog::TextDialog(std::function<Content()> content, QWidget *parent)
    : QDialog(parent)
    , m_content(std::move(content))
    , m_text(new QTextEdit(this))
{
    m_text->setReadOnly(true);
    m_text->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    m_text->setTabChangesFocus(true);
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(20, 20, 20, 16);
    column->setSpacing(14);
    column->addWidget(m_text, 1);
    column->addWidget(buttons);
    resize(usualSize * Appearance::current().scale());
    retranslate();
}

void TextDialog::changeEvent(QEvent *event)
{
    QDialog::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        retranslate();
}

void TextDialog::retranslate()
{
    const auto content = m_content();
    setWindowTitle(content.title);
    m_text->setAccessibleName(content.title);
    m_text->setLayoutDirection(content.isTranslated ? layoutDirection() : Qt::LeftToRight);
    if (content.format == Qt::RichText)
        m_text->setHtml(content.text);
    else
        m_text->setMarkdown(content.text);
}

TextDialog::Content licences()
{
    return {TextDialog::tr("Licences"),
            verbatim(resource(u"LICENSE"_s)) + verbatim(resource(u"third-party.txt"_s))};
}

TextDialog::Content whatsNew()
{
    auto changes = resource(u"CHANGELOG.md"_s);
    // What stands above the first heading is for the file's authors.
    changes.remove(0, std::max<qsizetype>(0, changes.indexOf(u"\n## "_s)));
    return {TextDialog::tr("What’s New"), changes};
}

TextDialog::Content help(const Actions &actions)
{
    auto text = u"<p>%1</p>"_s.arg(
        TextDialog::tr("Everything in the window can be reached by keys: Tab moves from part to part, the "
                       "arrows move within one, Space and Return choose, and Esc goes back."));
    for (const auto *menu : actions.menus()) {
        if (const auto table = rows(*menu); !table.isEmpty())
            text +=
                u"<h3>%1</h3><table cellpadding='3'>%2</table>"_s.arg(menu->title().toHtmlEscaped(), table);
    }
    text += u"<h3>%1</h3><p>%2</p>"_s.arg(
        TextDialog::tr("On the command line"),
        TextDialog::tr(
            "All that the window shows can be asked of the command quillmark as well: see quillmark "
            "--help."));
    return {.title = TextDialog::tr("Quillmark Help"),
            .text = text,
            .format = Qt::RichText,
            .isTranslated = true};
}

} // namespace quillmark::app

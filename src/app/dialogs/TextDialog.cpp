// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "app/dialogs/TextDialog.h"

#include "app/Appearance.h"
#include "app/views/Actions.h"
#include "app/widgets/Card.h"

#include <QCoreApplication>
#include <QDialogButtonBox>
#include <QEvent>
#include <QFile>
#include <QGuiApplication>
#include <QTextEdit>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace quillmark::app {

using namespace Qt::StringLiterals;

namespace {

constexpr QSize usualSize(680, 560);
constexpr int textMargin = 16; ///< within the card, beside what rounds its corners

QString resource(const QString &name)
{
    QFile file(u":/quillmark/texts/"_s + name);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

/// Two cells, the first at the leading side: Qt's tables run from the left in any language.
QString row(const QString &first, const QString &second)
{
    const auto cell = u"<td width='50%' align='%1' style='padding: 3px 0'>%2</td>"_s;
    const auto cells = QGuiApplication::isRightToLeft()
                           ? cell.arg(u"right"_s, second) + cell.arg(u"right"_s, first)
                           : cell.arg(u"left"_s, first) + cell.arg(u"left"_s, second);
    return u"<tr>%1</tr>"_s.arg(cells);
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
            text += row(action->text().toHtmlEscaped(), keys.toHtmlEscaped());
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
    m_text->setFrameShape(QFrame::NoFrame);
    m_text->viewport()->setAutoFillBackground(false);
    m_text->document()->setDocumentMargin(textMargin);
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(20, 20, 20, 16);
    column->setSpacing(14);
    auto *card = new Card(this);
    auto *onCard = new QVBoxLayout(card);
    constexpr int corner = 4; // what scrolls stays off the rounded corners
    onCard->setContentsMargins(corner, corner, corner, corner);
    onCard->addWidget(m_text);
    column->addWidget(card, 1);
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
    switch (content.format) {
    case Qt::RichText:
        m_text->setHtml(content.text);
        break;
    case Qt::MarkdownText:
        m_text->setMarkdown(content.text);
        break;
    default:
        m_text->setPlainText(content.text);
    }
}

TextDialog::Content licences()
{
    return {.title = TextDialog::tr("Licences"),
            .text = resource(u"LICENSE"_s) + u'\n' + resource(u"NOTICE"_s),
            .format = Qt::PlainText};
}

TextDialog::Content whatsNew()
{
    auto changes = resource(u"CHANGELOG.md"_s);
    // What stands above the first heading is for the file's authors.
    changes.remove(0, std::max<qsizetype>(0, changes.indexOf(u"\n## "_s)));
    return {.title = TextDialog::tr("What’s New"), .text = changes};
}

TextDialog::Content help(const Actions &actions)
{
    // Said for each heading: one of Latin letters alone would run from the left.
    const auto heading = QGuiApplication::isRightToLeft() ? u"<h3 dir='rtl'>%1</h3>"_s : u"<h3>%1</h3>"_s;
    auto text = u"<p>%1</p>"_s.arg(
        TextDialog::tr("Everything in the window can be reached by keys: Tab moves from part to part, the "
                       "arrows move within one, Space and Return choose, and Esc goes back."));
    for (const auto *menu : actions.menus()) {
        if (const auto table = rows(*menu); !table.isEmpty())
            text += heading.arg(menu->title().toHtmlEscaped()) +
                    u"<table cellspacing='0' width='100%'>%1</table>"_s.arg(table);
    }
    text += heading.arg(TextDialog::tr("On the command line")) +
            u"<p>%1</p>"_s.arg(TextDialog::tr(
                "All that the window shows can be asked of the command quillmark as well: see quillmark "
                "--help."));
    return {.title = TextDialog::tr("Quillmark Help"),
            .text = text,
            .format = Qt::RichText,
            .isTranslated = true};
}

} // namespace quillmark::app

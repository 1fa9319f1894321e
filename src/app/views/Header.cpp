// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "app/views/Header.h"

#include "app/Appearance.h"
#include "app/painting.h"
#include "app/views/Actions.h"
#include "app/widgets/Button.h"
#include "app/widgets/IconButton.h"
#include "app/widgets/TextLabel.h"

#include <QAction>
#include <QEvent>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPainter>
#include <QTimer>

#include <algorithm>

namespace quillmark::app {

using namespace Qt::StringLiterals;
using design::Role;

namespace {

constexpr int barHeight = 52;
constexpr int searchWidth = 232;
constexpr int compactSearchWidth = 200;
constexpr int copiedFor = 1500; // ms

/// The line between the search and the buttons.
class Separator final : public QWidget
{
public:
    using QWidget::QWidget;
    QSize sizeHint() const override { return {25, 18}; }

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        painter.fillRect(QRect(width() / 2, (QWidget::height() - 18) / 2, 1, 18),
                         Appearance::current().color(Role::CardBorder));
    }
};

} // namespace

class Header::Note final : public QWidget
{
public:
    explicit Note(QWidget *parent)
        : QWidget(parent)
        , m_text(new TextLabel(TextRole::Small, Role::Text2, this))
    {
        auto *row = new QHBoxLayout(this);
        row->setContentsMargins({});
        row->setSpacing(0);
        row->addSpacing(22); // the icon
        row->addWidget(m_text);
    }

    void set(const QString &symbol, const QString &text)
    {
        m_symbol = symbol;
        m_text->setText(text);
        setVisible(!text.isEmpty());
    }

protected:
    void paintEvent(QPaintEvent *) override
    {
        auto &appearance = Appearance::current();
        QPainter painter(this);
        constexpr qreal icon = 16;
        const auto place =
            placed({0, (QWidget::height() - icon) / 2.0, icon, icon}, rect(), layoutDirection());
        appearance.paintIcon(painter, place, m_symbol, Role::Accent);
    }

private:
    QString m_symbol;
    TextLabel *m_text;
};

Header::Header(const Actions &actions, bool hasMenuButton, QWidget *parent)
    : QWidget(parent)
    , m_actions(actions)
    , m_machine(new ElidedLabel(TextRole::Body, Role::Text2, this))
    , m_title(new ElidedLabel(TextRole::Header, Role::Text, this))
    , m_note(new Note(this))
    , m_search(new QLineEdit(this))
    , m_back(new IconButton(u"chevron.left"_s, this))
    , m_pageButton(new Button(Button::Kind::Normal, {}, this))
    , m_inspect(new IconButton(u"arrow.clockwise"_s, this))
    , m_copy(new IconButton(u"doc.on.doc"_s, this))
    , m_export(new IconButton(u"square.and.arrow.up"_s, this))
    , m_copied(new QTimer(this))
{
    m_machine->setWeight(QFont::Medium);
    m_machine->hide();
    m_searchIcon = m_search->addAction(QIcon(), QLineEdit::LeadingPosition);
    m_clear = m_search->addAction(QIcon(), QLineEdit::TrailingPosition);
    m_clear->setVisible(false);
    connect(m_clear, &QAction::triggered, m_search, &QLineEdit::clear);
    connect(m_search, &QLineEdit::textChanged, m_clear,
            [this](const QString &text) { m_clear->setVisible(!text.isEmpty()); });

    auto *row = new QHBoxLayout(this);
    row->setContentsMargins({});
    row->setSpacing(8);
    row->addSpacing(20); // not a margin, which would not be mirrored; the gap comes on top
    row->addWidget(m_back);
    row->addWidget(m_machine, 1);
    row->addWidget(m_title, 1);
    row->addWidget(m_note);
    row->addWidget(m_search);
    row->addWidget(m_pageButton);
    row->addWidget(new Separator(this));
    for (auto *button : {m_inspect, m_copy, m_export})
        row->addWidget(button);
    if (hasMenuButton) {
        m_menu = new IconButton(u"line.3.horizontal"_s, this);
        auto *menu = new QMenu(m_menu);
        for (auto *part : actions.menus())
            menu->addMenu(part);
        m_menu->setMenu(menu);
        row->addWidget(m_menu);
    }
    row->addSpacing(12);
    m_note->hide();
    m_back->hide();
    m_pageButton->hide();
    connect(m_pageButton, &QAbstractButton::clicked, this, [this] {
        if (m_pageAction)
            m_pageAction->trigger();
    });

    m_copied->setSingleShot(true);
    m_copied->setInterval(copiedFor);
    connect(m_copied, &QTimer::timeout, this, [this] {
        m_copy->setSymbol(u"doc.on.doc"_s);
        retranslate();
    });
    connect(&Appearance::current(), &Appearance::changed, this, &Header::applyAppearance);
    applyAppearance();
    retranslate();
}

void Header::setTitle(const QString &title, bool isMachineName)
{
    m_machine->setText(isMachineName ? title : QString());
    m_machine->setVisible(isMachineName);
    m_title->setText(isMachineName ? QString() : title);
    m_title->setVisible(!isMachineName);
}

void Header::setNote(const QString &symbol, const QString &text)
{
    m_note->set(symbol, text);
}

void Header::setSearchable(bool isSearchable)
{
    m_search->setVisible(isSearchable);
}

void Header::setCanGoBack(bool canGoBack)
{
    m_back->setVisible(canGoBack);
    // The button's own margin makes up for what the bar's lacks.
    layout()->setContentsMargins(canGoBack ? 16 : 28, 0, 20, 0);
}

void Header::setPageAction(QAction *action)
{
    m_pageAction = action;
    m_pageButton->setVisible(action);
    if (action)
        m_pageButton->setText(action->text());
}

void Header::openMenu()
{
    if (m_menu)
        m_menu->openMenu();
}

void Header::showCopied()
{
    m_copy->setSymbol(u"checkmark"_s);
    m_copy->setToolTip(tr("Copied"));
    m_copied->start();
}

void Header::setCompact(bool compact)
{
    m_isCompact = compact;
    applyAppearance();
}

void Header::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        retranslate();
}

void Header::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    paintHairline(painter, 0, width(), QWidget::height() - 1, Appearance::current().color(Role::Hairline));
}

void Header::retranslate()
{
    m_search->setPlaceholderText(tr("Search capabilities"));
    m_search->setAccessibleName(tr("Search capabilities"));
    m_clear->setText(tr("Clear search"));
    m_back->setAction(m_actions.back, tr("Back"));
    m_inspect->setAction(m_actions.inspectAgain, tr("Inspect again"));
    m_copy->setAction(m_actions.copyAsText, tr("Copy as text"));
    m_export->setAction(m_actions.exportReport, tr("Export…"));
    if (m_menu) {
        m_menu->setAccessibleName(tr("Menu"));
        //: Tool tip of the button that opens the menus, with its key
        m_menu->setToolTip(tr("Menu (F10)"));
    }
}

void Header::applyAppearance()
{
    auto &appearance = Appearance::current();
    setFixedHeight(std::max(barHeight, appearance.scaled(30) + 16));
    m_search->setFont(appearance.font(TextRole::Body));
    m_search->setFixedWidth(appearance.scaled(m_isCompact ? compactSearchWidth : searchWidth));
    m_search->setFixedHeight(std::max(appearance.scaled(30), m_search->fontMetrics().height() + 8));
    m_searchIcon->setIcon(appearance.icon(u"magnifyingglass"_s, 16, Role::Text3, devicePixelRatioF()));
    m_clear->setIcon(appearance.icon(u"xmark.circle.fill"_s, 16, Role::Text3, devicePixelRatioF()));
    update();
}

} // namespace quillmark::app

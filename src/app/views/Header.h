// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QPointer>
#include <QString>
#include <QWidget>

#include <vector>

class QAction;
class QHBoxLayout;
class QLineEdit;
class QTimer;

namespace quillmark::app {

class Actions;
class TextLabel;
class Button;
class ElidedLabel;
class IconButton;

/// The bar above the page: what is shown, the search, and the commands used most.
class Header : public QWidget
{
    Q_OBJECT

public:
    /// With a button for the menus where the system has no menu bar of its own.
    Header(const Actions &actions, bool hasMenuButton, QWidget *parent = nullptr);

    /// A page's own title, or what the machine is called, in a smaller type.
    void setTitle(const QString &title, bool isMachineName);
    /// An icon and a few words at the trailing edge; empty: none.
    void setNote(const QString &symbol, const QString &text);
    void setSearchable(bool isSearchable);
    /// The button that goes back, before the title.
    void setCanGoBack(bool canGoBack);
    /// The button of the page's own; nullptr: none.
    void setPageAction(QAction *action);

    QLineEdit *search() const { return m_search; }
    void openMenu();
    /// The copy button says for a moment that it has copied.
    void showCopied();
    void setCompact(bool compact);

protected:
    void changeEvent(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    class Note;
    void retranslate();
    void applyAppearance();
    void applyMargins();

    const Actions &m_actions;
    ElidedLabel *m_machine;
    ElidedLabel *m_title;
    Note *m_note;
    QLineEdit *m_search;
    QAction *m_searchIcon;
    QAction *m_clear;
    IconButton *m_back;
    Button *m_pageButton;
    QPointer<QAction> m_pageAction;
    IconButton *m_inspect;
    IconButton *m_copy;
    IconButton *m_export;
    IconButton *m_menu = nullptr;
    QTimer *m_copied;
    bool m_isCompact = false;
};

} // namespace quillmark::app

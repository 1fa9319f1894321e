// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "inspection/CapabilityModel.h"

#include <QScrollArea>
#include <QString>

#include <optional>

class QAction;
class QVBoxLayout;

namespace quillmark::app {

struct Notice;

/// A page of the window: one column that scrolls, at most 1160 wide and then in the middle. Texts are set
/// again when the language changes, the arrangement when the width or the text size does.
class Page : public QScrollArea
{
    Q_OBJECT

public:
    explicit Page(QWidget *parent = nullptr);

    /// What the window's header says while the page is shown; empty: the name of the machine.
    virtual QString headerTitle() const { return {}; }
    /// Symbol and text at the header's trailing edge, where a page has one: "Updated every second". Announced
    /// by headerChanged().
    virtual QString headerSymbol() const { return {}; }
    virtual QString headerNote() const { return {}; }
    /// A command of the page's own that has its button in the header; nullptr: none. Announced likewise.
    virtual QAction *headerAction() const { return nullptr; }
    /// Whether the search for capabilities stands in the header.
    virtual bool isSearchable() const { return true; }

    // The commands of the Edit menu, for what is selected on the page. The two that tell whether they can do
    // something are asked each time the menu or its shortcut is used.
    virtual bool canCopy() const { return false; }
    virtual void copy() {}
    virtual void selectAll() {}
    /// Puts what the page shows on the clipboard as plain text; false: there is nothing of the page's own,
    /// and the whole report is meant.
    virtual bool copyAsText() { return false; }
    virtual bool canDelete() const { return false; }
    virtual void deleteSelected() {}
    /// Whether the page shows something within it that one goes back from. Announced by headerChanged().
    virtual bool canGoBack() const { return false; }
    /// Back, or Esc. Whether there was something to go back from within the page.
    virtual bool goBack() { return false; }
    /// The filter by status, on the pages that have one. None: all.
    virtual bool hasStatusFilter() const { return false; }
    virtual std::optional<inspection::CapabilityStatus> status() const { return std::nullopt; }
    virtual void setStatus(std::optional<inspection::CapabilityStatus>) {}

    /// Where the focus goes when someone means to work in the page.
    virtual QWidget *firstStop() { return this; }

Q_SIGNALS:
    void headerChanged();
    void statusChanged();
    /// The page has put something on the clipboard.
    void copied();
    /// The window is to tell this.
    void noticeAsked(const quillmark::app::Notice &notice);

protected:
    /// The column. Rows added to it fill its width.
    QVBoxLayout *column() const { return m_column; }
    /// The width within the margins at the usual text size: what decides between wide and narrow
    /// arrangements.
    qreal effectiveWidth() const;
    static constexpr qreal compactWidth = 640;
    bool isCompact() const { return effectiveWidth() < compactWidth; }

    /// Whether the column takes all of the page's height: its rows that can grow do, as the middle of an
    /// empty page.
    void setFilled(bool filled);

    /// Sets all texts, in the language of now. Called by the constructor's user through setUp().
    virtual void retranslate() {}
    /// Fits the arrangement to effectiveWidth().
    virtual void arrange() {}
    /// To be called at the end of the constructor of a page.
    void setUp();

    void resizeEvent(QResizeEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void fitColumn();

    QWidget *m_content;
    QVBoxLayout *m_column;
    qreal m_arrangedFor = -1;
};

} // namespace quillmark::app

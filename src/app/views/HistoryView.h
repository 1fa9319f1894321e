// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "app/AppContext.h"
#include "app/views/Page.h"
#include "history/HistoryFile.h"

#include <QDate>
#include <QUuid>

#include <optional>

namespace quillmark::app {

class Button;
class CardList;
class ComparisonView;
class EmptyState;
class HistoryModel;
class TextLabel;

/// The saved scans: choosing two to compare, deleting one, clearing all. The comparison takes the list's
/// place until one goes back.
class HistoryView : public Page
{
    Q_OBJECT

public:
    explicit HistoryView(const AppContext &context, QWidget *parent = nullptr);

    QString headerTitle() const override;
    QAction *headerAction() const override;
    bool isSearchable() const override { return false; }
    bool canCopy() const override;
    void copy() override;
    bool copyAsText() override;
    bool canDelete() const override;
    /// Asks, and deletes the current scan.
    void deleteSelected() override;
    bool canGoBack() const override { return isComparing(); }
    bool goBack() override;
    QWidget *firstStop() override;

    /// Shows what differs between the two scans that are ticked, once there are two.
    void compare();
    /// Shows what differs between the newest two scans.
    void compareNewest();
    /// Asks in front of the widget's window, and clears the history.
    void askToClear(QWidget *asker);
    /// Asks for a notice of it, once: each inspection would fail alike.
    void tellFailure(const history::SaveError &error);
    bool isComparing() const;

Q_SIGNALS:
    /// Someone wants the machine inspected, to have a first scan.
    void inspectionAsked();

protected:
    void retranslate() override;
    void arrange() override;
    void resizeEvent(QResizeEvent *event) override;
    void showEvent(QShowEvent *event) override;
    bool eventFilter(QObject *object, QEvent *event) override;

private:
    class SelectionBar;
    void update();
    void updateSelection();
    void showComparison(bool isShown);
    void askToDelete(const QModelIndex &index);
    int pageHeight() const;

    const AppContext &m_context;
    HistoryModel *m_model;
    QWidget *m_scans;
    TextLabel *m_count;
    TextLabel *m_explanation;
    CardList *m_list;
    EmptyState *m_empty;
    ComparisonView *m_comparison;
    Button *m_inspect;
    SelectionBar *m_bar;
    QAction *m_clear;
    QUuid m_current;        ///< the list's current scan, while the list is made anew
    int m_listPosition = 0; ///< where the list had been scrolled to when the comparison came
    QDate m_today;          ///< for which the groups were made
    std::optional<history::SaveError> m_toldFailure;
};

} // namespace quillmark::app

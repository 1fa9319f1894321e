// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "app/views/HistoryView.h"

#include "app/Appearance.h"
#include "app/models/HistoryModel.h"
#include "app/momentTexts.h"
#include "app/painting.h"
#include "app/views/ComparisonView.h"
#include "app/views/HistoryDelegate.h"
#include "app/widgets/Button.h"
#include "app/widgets/CardList.h"
#include "app/widgets/EmptyState.h"
#include "app/widgets/NoticeBar.h"
#include "app/widgets/TextLabel.h"
#include "app/widgets/question.h"
#include "history/ScanHistory.h"
#include "history/historyTexts.h"
#include "language/LanguageManager.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QHBoxLayout>
#include <QItemSelectionModel>
#include <QKeyEvent>
#include <QPainter>
#include <QScrollBar>
#include <QVBoxLayout>

#include <algorithm>

namespace quillmark::app {

using namespace Qt::StringLiterals;
using design::Role;

namespace {

constexpr int barHeight = 60;

} // namespace

/// What is ticked, and what can be done with it. Along the bottom of the page, below what scrolls.
class HistoryView::SelectionBar final : public QWidget
{
public:
    explicit SelectionBar(QWidget *parent)
        : QWidget(parent)
        , count(new TextLabel(TextRole::Body, Role::Text, this))
        , moments(new ElidedLabel(TextRole::Small, Role::Text2, this))
        , clear(new Button(Button::Kind::Plain, {}, this))
        , compare(new Button(Button::Kind::Primary, u"arrow.left.arrow.right"_s, this))
    {
        count->setWeight(QFont::DemiBold);
        row = new QHBoxLayout(this);
        row->setSpacing(10);
        row->addWidget(count);
        row->addWidget(moments, 1);
        row->addWidget(clear);
        row->addWidget(compare);
    }

    void show(const QString &selection, const QString &which)
    {
        // A sentence that stands alone may take the room of both.
        const bool isAlone = which.isEmpty();
        count->setWordWrap(isAlone);
        row->setStretchFactor(count, isAlone ? 1 : 0);
        count->setText(selection);
        moments->setText(which);
        moments->setHidden(isAlone);
    }

    TextLabel *count;
    ElidedLabel *moments;
    Button *clear;
    Button *compare;
    QHBoxLayout *row;

protected:
    void paintEvent(QPaintEvent *) override
    {
        const auto &appearance = Appearance::current();
        QPainter painter(this);
        painter.fillRect(rect(), appearance.color(Role::Card));
        paintHairline(painter, 0, width(), 0, appearance.color(Role::CardBorder));
    }
};

HistoryView::HistoryView(const AppContext &context, QWidget *parent)
    : Page(parent)
    , m_context(context)
    , m_model(new HistoryModel(context, this))
    , m_scans(new QWidget(this))
    , m_count(new TextLabel(TextRole::Body, Role::Text, m_scans))
    , m_explanation(new TextLabel(TextRole::Small, Role::Text2, m_scans))
    , m_list(new CardList(m_scans))
    , m_empty(new EmptyState(u"archivebox"_s, this))
    , m_comparison(new ComparisonView(context, this))
    , m_inspect(new Button(Button::Kind::Primary, u"arrow.clockwise"_s, m_empty))
    , m_bar(new SelectionBar(this))
    , m_clear(new QAction(this))
    , m_today(QDate::currentDate())
{
    m_count->setWeight(QFont::DemiBold);
    m_explanation->setWordWrap(true);
    auto *delegate = new HistoryDelegate(m_list);
    m_list->setModel(m_model);
    m_list->setItemDelegate(delegate);
    m_list->installEventFilter(this);
    m_empty->addButton(m_inspect);
    auto *scans = new QVBoxLayout(m_scans);
    scans->setContentsMargins({});
    scans->setSpacing(2);
    scans->addWidget(m_count);
    scans->addWidget(m_explanation);
    scans->addWidget(m_list);
    for (auto *part : {m_scans, static_cast<QWidget *>(m_empty), static_cast<QWidget *>(m_comparison)})
        column()->addWidget(part);
    m_comparison->hide();
    m_bar->hide();

    connect(m_model, &QAbstractItemModel::modelAboutToBeReset, this,
            [this] { m_current = m_list->currentIndex().data(HistoryModel::IdRole).toUuid(); });
    connect(m_model, &QAbstractItemModel::modelReset, this, [this] {
        m_list->selectionModel()->setCurrentIndex(m_model->indexOf(m_current), QItemSelectionModel::NoUpdate);
        update();
    });
    connect(m_model, &HistoryModel::tickedChanged, this, &HistoryView::updateSelection);
    connect(delegate, &HistoryDelegate::removalAsked, this, &HistoryView::askToDelete);
    connect(m_clear, &QAction::triggered, this, [this] { askToClear(this); });
    connect(m_inspect, &QAbstractButton::clicked, this, &HistoryView::inspectionAsked);
    connect(m_bar->compare, &QAbstractButton::clicked, this, &HistoryView::compare);
    connect(m_bar->clear, &QAbstractButton::clicked, this, [this] {
        m_model->tick({});
        m_list->setFocus(Qt::OtherFocusReason);
    });
    connect(&Appearance::current(), &Appearance::changed, this, &HistoryView::updateSelection);
    connect(&m_context.history, &history::ScanHistory::saveFailed, this, &HistoryView::tellFailure);
    setUp();
}

QString HistoryView::headerTitle() const
{
    return isComparing() ? tr("Compare scans") : tr("Scan history");
}

QAction *HistoryView::headerAction() const
{
    return isComparing() || m_context.history.snapshots().isEmpty() ? nullptr : m_clear;
}

bool HistoryView::canCopy() const
{
    return isComparing() && !m_comparison->currentText().isEmpty();
}

void HistoryView::copy()
{
    if (!canCopy())
        return;
    QApplication::clipboard()->setText(m_comparison->currentText());
    Q_EMIT copied();
}

bool HistoryView::copyAsText()
{
    if (!isComparing())
        return false;
    QApplication::clipboard()->setText(m_comparison->text());
    return true;
}

bool HistoryView::canDelete() const
{
    return !isComparing() && m_list->hasFocus() && m_model->scanAt(m_list->currentIndex());
}

void HistoryView::deleteSelected()
{
    askToDelete(m_list->currentIndex());
}

bool HistoryView::goBack()
{
    if (!isComparing())
        return false;
    showComparison(false);
    return true;
}

QWidget *HistoryView::firstStop()
{
    if (isComparing())
        return m_comparison->firstStop() ? m_comparison->firstStop() : this;
    return m_context.history.snapshots().isEmpty() ? static_cast<QWidget *>(m_inspect) : m_list;
}

void HistoryView::compare()
{
    const auto pair = m_model->pair();
    if (!pair)
        return;
    m_comparison->setScans(pair->first, pair->second);
    showComparison(true);
}

void HistoryView::compareNewest()
{
    const auto &scans = m_context.history.snapshots();
    if (scans.size() < 2)
        return;
    m_model->tick({scans[1].id, scans[0].id});
    compare();
}

bool HistoryView::isComparing() const
{
    return !m_comparison->isHidden();
}

void HistoryView::retranslate()
{
    m_today = QDate::currentDate();
    m_explanation->setText(isMac(m_context) ? tr("A scan is saved whenever something has changed. The newest "
                                                 "200 are kept on this Mac.")
                                            : tr("A scan is saved whenever something has changed. The newest "
                                                 "200 are kept on this computer."));
    m_empty->setTexts(history::noScans(),
                      isMac(m_context) ? tr("Quillmark saves a scan each time an inspection finds something "
                                            "new. Inspect this Mac to save the first one.")
                                       : tr("Quillmark saves a scan each time an inspection finds something "
                                            "new. Inspect this computer to save the first one."));
    m_inspect->setText(tr("Inspect now"));
    m_list->setAccessibleName(tr("Saved scans"));
    m_bar->clear->setText(tr("Clear selection"));
    m_bar->compare->setText(tr("Compare"));
    m_clear->setText(tr("Clear history…"));
    m_comparison->retranslate();
    m_model->update();
    updateSelection();
}

void HistoryView::arrange()
{
    m_comparison->arrange(effectiveWidth(), pageHeight());
}

void HistoryView::resizeEvent(QResizeEvent *event)
{
    Page::resizeEvent(event);
    const int height = m_bar->isHidden() ? 0 : Appearance::current().scaled(barHeight);
    const auto margins = widget()->layout()->contentsMargins();
    m_bar->row->setContentsMargins(margins.left(), 0, margins.right(), 0);
    m_bar->setGeometry(viewport()->x(), this->height() - height, viewport()->width(), height);
    m_empty->setMinimumHeight(pageHeight());
    m_comparison->arrange(effectiveWidth(), pageHeight());
}

/// Days pass while the page is not looked at.
void HistoryView::showEvent(QShowEvent *event)
{
    Page::showEvent(event);
    if (m_today != QDate::currentDate())
        retranslate();
}

bool HistoryView::eventFilter(QObject *object, QEvent *event)
{
    if (object != m_list || event->type() != QEvent::KeyPress)
        return Page::eventFilter(object, event);
    const auto index = m_list->currentIndex();
    switch (static_cast<QKeyEvent *>(event)->key()) {
    case Qt::Key_Space: {
        const bool isTicked = index.data(Qt::CheckStateRole).value<Qt::CheckState>() == Qt::Checked;
        m_model->setData(index, QVariant::fromValue(isTicked ? Qt::Unchecked : Qt::Checked),
                         Qt::CheckStateRole);
        return true;
    }
    case Qt::Key_Return:
    case Qt::Key_Enter:
        compare();
        return true;
    default:
        return Page::eventFilter(object, event);
    }
}

void HistoryView::update()
{
    const auto count = m_context.history.snapshots().size();
    m_count->setText(tr("%n scans saved", nullptr, static_cast<int>(count)));
    m_scans->setHidden(isComparing() || count == 0);
    m_empty->setHidden(isComparing() || count > 0);
    Q_EMIT headerChanged();
}

void HistoryView::updateSelection()
{
    const auto ticked = m_model->ticked().size();
    const auto pair = m_model->pair();
    const auto moment = [&](const history::ScanSnapshot &scan) {
        return shortMomentText(scan.date.toLocalTime(), m_context.language.formats());
    };
    if (pair)
        //: Two moments: "18 September, 12:10 and today, 08:41"
        m_bar->show(tr("2 scans selected"), tr("%1 and %2").arg(moment(pair->first), moment(pair->second)));
    else
        m_bar->show(tr("1 scan selected · choose one more"), {});
    m_bar->compare->setEnabled(pair.has_value());
    const bool isShown = ticked > 0 && !isComparing();
    m_bar->setVisible(isShown);
    setViewportMargins(0, 0, 0, isShown ? Appearance::current().scaled(barHeight) : 0);
}

void HistoryView::showComparison(bool isShown)
{
    if (isShown == isComparing())
        return;
    const auto *focus = QApplication::focusWidget();
    const bool hadFocus = isAncestorOf(focus);
    const auto reason = hadFocus && hasKeyboardFocus(*focus) ? Qt::TabFocusReason : Qt::OtherFocusReason;
    if (isShown)
        m_listPosition = verticalScrollBar()->value();
    m_scans->setHidden(isShown);
    m_comparison->setVisible(isShown);
    updateSelection();
    update();
    widget()->layout()->activate();
    verticalScrollBar()->setValue(isShown ? 0 : m_listPosition);
    if (hadFocus)
        firstStop()->setFocus(reason);
}

void HistoryView::askToDelete(const QModelIndex &index)
{
    const auto *scan = m_model->scanAt(index);
    if (!scan)
        return;
    const auto moment = shortMomentText(scan->date.toLocalTime(), m_context.language.formats());
    const auto remove = [this, id = scan->id] {
        const int row = m_model->indexOf(id).row();
        m_toldFailure.reset();
        m_context.history.remove(id);
        // To the one that took its place, if there is one.
        for (const int next : {row, row + 1, row - 1}) {
            if (m_model->scanAt(m_model->index(next))) {
                m_list->setCurrentIndex(m_model->index(next));
                return;
            }
        }
    };
    ask(this,
        {tr("Delete this scan?"), tr("The scan of %1 will be removed from the history.").arg(moment),
         tr("Delete")},
        remove);
}

void HistoryView::askToClear(QWidget *asker)
{
    const auto count = static_cast<int>(m_context.history.snapshots().size());
    ask(asker,
        {tr("Clear the scan history?"),
         tr("All %n saved scans will be removed. This can’t be undone.", nullptr, count),
         tr("Clear history")},
        [this] {
            m_toldFailure.reset();
            m_model->tick({});
            m_context.history.clear();
        });
}

/// Again once someone has changed something by hand.
void HistoryView::tellFailure(const history::SaveError &error)
{
    if (m_toldFailure == error)
        return;
    m_toldFailure = error;
    Notice notice{.kind = Notice::Kind::Error, .sentence = tr("The scan history couldn’t be saved.")};
    notice.detail = error.kind == history::SaveError::Kind::InUse
                        ? tr("Another copy of Quillmark is using it. Scans made here are kept until it ends.")
                        : error.reason;
    Q_EMIT noticeAsked(notice);
}

/// Of what stands within the margins.
int HistoryView::pageHeight() const
{
    const auto margins = widget()->layout()->contentsMargins();
    return std::max(0, viewport()->height() - margins.top() - margins.bottom());
}

} // namespace quillmark::app

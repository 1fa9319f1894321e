// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "app/views/Sidebar.h"

#include "app/Appearance.h"
#include "app/models/SidebarModel.h"
#include "app/momentTexts.h"
#include "app/painting.h"
#include "app/views/SidebarDelegate.h"
#include "app/widgets/TextLabel.h"
#include "inspection/Quillmark.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QListView>
#include <QPainter>
#include <QTimer>
#include <QVBoxLayout>

#include <algorithm>

namespace quillmark::app {

using namespace Qt::StringLiterals;
using design::Role;

namespace {

constexpr int usualWidth = 232;
constexpr int greatestWidth = 320;
constexpr int stripHeight = 52;
constexpr int footerHeight = 46;

/// Wherever one clicks, beside the places or on a heading, the one where the window is stays selected.
class PlaceList final : public QListView
{
public:
    using QListView::QListView;

protected:
    QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex &index,
                                                         const QEvent *) const override
    {
        return index.flags() & Qt::ItemIsSelectable ? QItemSelectionModel::ClearAndSelect
                                                    : QItemSelectionModel::NoUpdate;
    }
};

} // namespace

/// The program's name above the list.
class Sidebar::Strip final : public QWidget
{
public:
    explicit Strip(QWidget *parent)
        : QWidget(parent)
    {
        setFixedHeight(stripHeight);
    }

protected:
    void paintEvent(QPaintEvent *) override
    {
        auto &appearance = Appearance::current();
        QPainter painter(this);
        constexpr int icon = 24;
        constexpr int left = 18;
        const QRectF bounds(rect());
        const QRectF iconPlace(left, (stripHeight - icon) / 2.0, icon, icon);
        appearance.paintIcon(painter, placed(iconPlace, bounds, layoutDirection()), u"app-icon"_s,
                             Role::Text);
        painter.setFont(appearance.font(TextRole::Body, QFont::DemiBold));
        painter.setPen(appearance.color(Role::Text));
        painter.drawText(placed(bounds.adjusted(left + icon + 9, 0, -left, 0), bounds, layoutDirection()),
                         Qt::AlignLeft | Qt::AlignVCenter, u"Quillmark"_s);
    }
};

/// When the machine was inspected, or that it is being inspected.
class Sidebar::Footer final : public QWidget
{
public:
    Footer(const AppContext &context, QWidget *parent)
        : QWidget(parent)
        , m_context(context)
    {
        setFixedHeight(footerHeight);
        m_text = new ElidedLabel(TextRole::Small, Role::Text2, this);
        auto *row = new QHBoxLayout(this);
        constexpr int textBegins = 42;
        row->setContentsMargins({});
        row->setSpacing(0);
        row->addSpacing(textBegins); // on the other side where the window is mirrored
        row->addWidget(m_text);
        row->addSpacing(12);
        // A quarter of a turn in five steps of a tenth of a second: it is seen to turn, and costs little.
        m_turning.setInterval(100);
        connect(&m_turning, &QTimer::timeout, this, [this] {
            m_angle = (m_angle + 30) % 360;
            update();
        });
    }

    void setInspecting(bool isInspecting)
    {
        m_isInspecting = isInspecting;
        m_angle = 0;
        if (isInspecting && Appearance::current().isAnimated())
            m_turning.start();
        else
            m_turning.stop();
        retranslate();
    }

    void retranslate()
    {
        const auto &moment = m_context.inspection.lastUpdated();
        m_text->setText(m_isInspecting ? Sidebar::tr("Inspecting…")
                        : moment       ? inspectedText(moment->toLocalTime(), m_context.language.formats())
                                       : QString());
        update();
    }

protected:
    void paintEvent(QPaintEvent *) override
    {
        auto &appearance = Appearance::current();
        QPainter painter(this);
        paintHairline(painter, 0, width(), 0, appearance.color(Role::CardBorder));
        if (m_text->text().isEmpty())
            return;
        constexpr qreal icon = 16;
        constexpr qreal left = 20;
        const auto place = placed({left, (height() - icon) / 2.0, icon, icon}, rect(), layoutDirection());
        painter.translate(place.center());
        painter.rotate(m_angle);
        painter.translate(-place.center());
        appearance.paintIcon(painter, place, m_isInspecting ? u"arrow.clockwise"_s : u"checkmark.circle"_s,
                             Role::Text2);
    }

private:
    const AppContext &m_context;
    ElidedLabel *m_text;
    QTimer m_turning;
    int m_angle = 0;
    bool m_isInspecting = false;
};

Sidebar::Sidebar(const AppContext &context, QWidget *parent)
    : QWidget(parent)
    , m_model(new SidebarModel(context, this))
    , m_list(new PlaceList(this))
    , m_footer(new Footer(context, this))
{
    m_list->setModel(m_model);
    m_list->setItemDelegate(new SidebarDelegate(m_list));
    m_list->setFrameShape(QFrame::NoFrame);
    m_list->setMouseTracking(true);
    m_list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_list->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_list->viewport()->setAutoFillBackground(false);
    m_list->installEventFilter(this);
    setFocusProxy(m_list);

    auto *column = new QVBoxLayout(this);
    column->setContentsMargins({});
    column->setSpacing(0);
    column->addWidget(new Strip(this));
    column->addWidget(m_list, 1);
    column->addWidget(m_footer);

    connect(m_list->selectionModel(), &QItemSelectionModel::currentChanged, this,
            [this](const QModelIndex &current) {
                if (!m_isSettingPlace && current.isValid())
                    Q_EMIT placeChosen(current.data(SidebarModel::PlaceRole).toString());
            });
    // While a search hides where one is, nothing is selected, and what was current can be chosen again.
    connect(m_list, &QListView::clicked, this, [this](const QModelIndex &index) {
        Q_EMIT placeChosen(index.data(SidebarModel::PlaceRole).toString());
    });
    connect(&context.inspection, &inspection::Quillmark::refreshed, m_footer,
            [this] { m_footer->retranslate(); });
    connect(&Appearance::current(), &Appearance::changed, this, &Sidebar::applyAppearance);
    applyAppearance();
    retranslate();
}

void Sidebar::setPlace(const QString &place)
{
    m_isSettingPlace = true;
    const auto index = m_model->indexOf(place);
    if (index.isValid())
        m_list->setCurrentIndex(index);
    else
        m_list->clearSelection();
    m_isSettingPlace = false;
}

bool Sidebar::hasPlace(const QString &place) const
{
    return m_model->indexOf(place).isValid();
}

QString Sidebar::placeBeside(const QString &place, int steps) const
{
    const auto from = m_model->indexOf(place);
    if (!from.isValid())
        return place;
    const int direction = steps < 0 ? -1 : 1;
    auto result = place;
    for (int row = from.row() + direction; steps != 0 && row >= 0 && row < m_model->rowCount();
         row += direction) {
        const auto found = m_model->index(row).data(SidebarModel::PlaceRole).toString();
        if (found.isEmpty())
            continue;
        result = found;
        steps -= direction;
    }
    return result;
}

QWidget *Sidebar::list() const
{
    return m_list;
}

void Sidebar::setInspecting(bool isInspecting)
{
    m_footer->setInspecting(isInspecting);
}

bool Sidebar::eventFilter(QObject *object, QEvent *event)
{
    if (object == m_list && event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent *>(event)->key();
        if (key == Qt::Key_Return || key == Qt::Key_Enter) {
            Q_EMIT pageAsked();
            return true;
        }
    }
    return QWidget::eventFilter(object, event);
}

void Sidebar::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        retranslate();
}

void Sidebar::retranslate()
{
    m_model->retranslate();
    m_footer->retranslate();
    m_list->setAccessibleName(tr("Sidebar"));
}

void Sidebar::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.fillRect(rect(), Appearance::current().color(Role::Sidebar));
}

void Sidebar::applyAppearance()
{
    const auto &appearance = Appearance::current();
    setFixedWidth(std::min(appearance.scaled(usualWidth), greatestWidth));
    m_list->doItemsLayout();
    update();
}

} // namespace quillmark::app

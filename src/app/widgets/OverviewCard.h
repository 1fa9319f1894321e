// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "app/models/leadingRow.h"
#include "inspection/CapabilityModel.h"

#include <QAbstractButton>

#include <optional>

namespace quillmark::app {

/// A card of the overview that opens something: symbol and title, and two lines below them.
class OverviewCard : public QAbstractButton
{
    Q_OBJECT

public:
    explicit OverviewCard(QWidget *parent = nullptr);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    struct Look
    {
        QColor ground;
        QColor border; ///< invalid: none
        QColor tile;
        QColor title;
    };

    virtual QString symbol() const = 0;
    virtual Look look() const = 0;
    /// The two lines, within `place`, in a layout from left to right.
    virtual void paintLines(QPainter &painter, const QRectF &first, const QRectF &second) = 0;
    /// What the lines say, in full.
    virtual QString detail() const = 0;
    virtual bool opens() const { return true; }
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

    bool isHot() const { return isEnabled() && (underMouse() || isDown()); }
    QRectF mirrored(const QRectF &place) const;
    /// `runs` as for WrappedText.
    void paintText(QPainter &painter, const QRectF &place, const QString &text, const QFont &font,
                   const QColor &color, Qt::LayoutDirection runs = Qt::LayoutDirectionAuto);

private:
    bool m_isCut = false; ///< not all texts had the room they take, when they were painted
};

/// A section of the inspection: its leading row, and how many rows have each status.
class SectionCard : public OverviewCard
{
    Q_OBJECT

public:
    using OverviewCard::OverviewCard;

    /// `builtInDisplay` as for leadingRow().
    void show(const inspection::CapabilitySection &section, std::optional<int> builtInDisplay);
    /// Only the title of the section is known yet.
    void showCollecting(const inspection::CapabilitySection &section);
    const QString &key() const { return m_key; }

protected:
    QString symbol() const override { return m_symbol; }
    QString detail() const override;
    Look look() const override;
    bool opens() const override { return !m_isCollecting; }
    void paintLines(QPainter &painter, const QRectF &first, const QRectF &second) override;

private:
    static QString countText(inspection::CapabilityStatus status, int count);
    void take(const inspection::CapabilitySection &section);
    QString leadLabel() const;
    void paintLead(QPainter &painter, const QRectF &place);
    void paintCounts(QPainter &painter, const QRectF &place) const;
    void paintBars(QPainter &painter, const QRectF &first, const QRectF &second) const;

    QString m_key;
    QString m_symbol;
    std::optional<LeadingRow> m_lead;
    inspection::StatusCounts m_counts;
    bool m_isCollecting = false;
};

/// What has changed since the scan before, or that there is none yet to compare with.
class SinceCard : public OverviewCard
{
    Q_OBJECT

public:
    using OverviewCard::OverviewCard;

    /// `invitation` empty: there is nothing to open.
    void show(const QString &title, const QString &text, const QString &invitation);

protected:
    QString symbol() const override;
    QString detail() const override { return m_line; }
    Look look() const override;
    bool opens() const override { return !m_invitation.isEmpty(); }
    void paintLines(QPainter &painter, const QRectF &first, const QRectF &second) override;

private:
    QString m_line;
    QString m_invitation;
};

} // namespace quillmark::app

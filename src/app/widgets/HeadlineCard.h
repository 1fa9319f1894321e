// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "app/AppContext.h"
#include "app/widgets/Card.h"
#include "inspection/CapabilityModel.h"

#include <QTimer>
#include <QVariantAnimation>

#include <optional>

namespace quillmark::app {

class IconTile;
class ScoreRing;

/// Which machine this is, and how good: the overview's first card. Before the first inspection it says that
/// there is one. For screen readers it is one sentence.
class HeadlineCard : public Card
{
    Q_OBJECT

public:
    explicit HeadlineCard(const AppContext &context, QWidget *parent = nullptr);

    /// Tells what the inspection has found by now, in the language of now.
    void update();
    /// In little width only the ring tells the score.
    void setCompact(bool compact);
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    struct Paragraph
    {
        QString text;
        QFont font;
        design::Role color;
        qreal above = 0; ///< distance to the one before
        int mostLines = 1;
    };

    void arrange();
    void watchProgress();
    QString scoreMeaning() const;
    QString scoreCount() const;
    QString scoreInWords() const;
    QString progressTitle() const;
    QRectF textPlace() const;  ///< in a layout from left to right, as is the next
    QRectF scorePlace() const; ///< of the text beside the ring
    QList<Paragraph> machine() const;
    void paintParagraphs(QPainter &painter, const QRectF &place, const QList<Paragraph> &paragraphs) const;
    void paintProgress(QPainter &painter) const;
    void paintScore(QPainter &painter) const;

    const AppContext &m_context;
    IconTile *m_tile;
    ScoreRing *m_ring;
    bool m_isCompact = false;
    QVariantAnimation m_progress; ///< of the bar, from 0 to 1 and again
    QTimer m_patience;
    bool m_takesLong = false;
};

} // namespace quillmark::app

// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "app/DesktopChoices.h"
#include "design/Icons.h"
#include "design/Theme.h"

#include <QColor>
#include <QFont>
#include <QObject>
#include <QPixmap>
#include <QString>

#include <memory>

class QPainter;
class QRectF;

namespace quillmark::app {

/// What a text is, by which it gets its size and weight.
enum class TextRole {
    FigureXL, ///< battery health
    Figure,   ///< score ring
    Title1,   ///< device name, figures of tiles and charts
    Title2,   ///< page heading
    Title3,   ///< empty states, dialogs
    Header,   ///< window header
    Heading,  ///< card titles
    Body,     ///< rows, controls, menus
    Small,    ///< captions, counts, badges
    Mini,     ///< groups of the sidebar, axis labels
};

/// How the window looks now: colours, icons, fonts and sizes, all from the system's choices of appearance,
/// font and text size, which it follows while the program runs.
///
/// Lengths in the code are logical pixels at the usual text size; scaled() fits those of heights, icons and
/// fields to the text. Margins and gaps stay.
///
/// Lives on the main thread.
class Appearance : public QObject
{
    Q_OBJECT

public:
    /// That of this program: made by the first call, gone with the QApplication, which there must be.
    static Appearance &current();
    ~Appearance() override;

    bool isDark() const { return m_isDark; }
    const design::Theme &theme() const { return m_isDark ? design::Theme::dark() : design::Theme::light(); }
    QColor color(design::Role role) const { return theme().color(role); }

    /// Fills the rectangle, a square, with the symbol.
    void paintIcon(QPainter &painter, const QRectF &place, const QString &symbol, design::Role role);
    /// `size` logical pixels on a screen of this ratio; not scaled.
    QPixmap icon(const QString &symbol, int size, design::Role role, qreal devicePixelRatio)
    {
        return m_icons.pixmap(symbol, size, color(role), devicePixelRatio);
    }

    /// The text size relative to the usual one, from 0.9 to 1.6.
    qreal scale() const { return m_scale; }
    int scaled(int pixels) const { return qRound(pixels * m_scale); }

    QFont font(TextRole role) const;
    QFont font(TextRole role, QFont::Weight weight) const;

    /// Whether the system wants things to move: not where it asks for reduced motion.
    bool isAnimated() const;

    /// Overrides what the system says, for tests and pictures.
    void setDark(bool dark);

Q_SIGNALS:
    /// Colours, fonts or sizes are others now.
    void changed();

protected:
    bool eventFilter(QObject *object, QEvent *event) override;

private:
    Appearance();
    void followPalette();
    bool isSystemDark() const;
    void update(bool dark);
    void applyPalette();

    bool m_isDark = false;
    bool m_isPaletteDark;      ///< that of the system, without ours
    bool m_isApplying = false; ///< what we change ourselves comes back as an event
    qreal m_scale = 1;
    design::Icons m_icons;
    std::unique_ptr<DesktopChoices> m_desktop;
};

} // namespace quillmark::app

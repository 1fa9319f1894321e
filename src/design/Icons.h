// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QColor>
#include <QHash>
#include <QPixmap>
#include <QRectF>
#include <QSet>
#include <QString>

#include <memory>
#include <utility>

class QPainter;
class QSvgRenderer;

namespace quillmark::design {

/// The symbols (icons/ of the project), drawn in a colour. A name that no symbol bears draws a question mark,
/// and is logged once.
///
/// Keeps what it has drawn. To be used on the main thread.
class Icons
{
public:
    Icons();
    ~Icons();
    Icons(const Icons &) = delete;
    Icons &operator=(const Icons &) = delete;

    /// Fills the rectangle with the symbol. It stays a drawing where the painter's device keeps drawings.
    void paint(QPainter &painter, const QRectF &rectangle, const QString &symbol, const QColor &color);

    /// The symbol `size` logical pixels wide and high on a screen of this device pixel ratio.
    QPixmap pixmap(const QString &symbol, int size, const QColor &color, qreal devicePixelRatio);

private:
    QByteArray drawing(const QString &symbol);
    QSvgRenderer &renderer(const QString &symbol, const QColor &color);

    using Tinted = std::pair<QString, QRgb>;
    QHash<Tinted, std::shared_ptr<QSvgRenderer>> m_renderers;
    QHash<std::pair<Tinted, std::pair<int, qreal>>, QPixmap> m_pixmaps;
    QSet<QString> m_unknown; ///< names that were logged
};

} // namespace quillmark::design

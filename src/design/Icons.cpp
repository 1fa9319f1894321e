// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "design/Icons.h"

#include <QFile>
#include <QLoggingCategory>
#include <QPainter>
#include <QSvgRenderer>

#include <cmath>

namespace quillmark::design {

using namespace Qt::StringLiterals;

namespace {

Q_LOGGING_CATEGORY(logIcons, "quillmark.icons")

} // namespace

Icons::Icons() = default;
Icons::~Icons() = default;

QByteArray Icons::drawing(const QString &symbol)
{
    QFile file(u":/quillmark/icons/%1.svg"_s.arg(symbol));
    if (file.open(QIODevice::ReadOnly))
        return file.readAll();
    const auto unknown = u"questionmark.circle"_s;
    if (symbol == unknown)
        return {};
    if (!m_unknown.contains(symbol)) {
        m_unknown.insert(symbol);
        qCWarning(logIcons).noquote() << "there is no symbol" << symbol;
    }
    return drawing(unknown);
}

QSvgRenderer &Icons::renderer(const QString &symbol, const QColor &color)
{
    auto &renderer = m_renderers[{symbol, color.rgb()}];
    if (!renderer) {
        auto svg = drawing(symbol);
        svg.replace("currentColor", color.name(QColor::HexRgb).toLatin1());
        renderer = std::make_shared<QSvgRenderer>(svg);
    }
    return *renderer;
}

void Icons::paint(QPainter &painter, const QRectF &rectangle, const QString &symbol, const QColor &color)
{
    renderer(symbol, color).render(&painter, rectangle);
}

QPixmap Icons::pixmap(const QString &symbol, int size, const QColor &color, qreal devicePixelRatio)
{
    auto &pixmap = m_pixmaps[{{symbol, color.rgb()}, {size, devicePixelRatio}}];
    if (pixmap.isNull()) {
        const int side = static_cast<int>(std::lround(size * devicePixelRatio));
        pixmap = QPixmap(side, side);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        paint(painter, QRectF(0, 0, side, side), symbol, color);
        painter.end();
        pixmap.setDevicePixelRatio(devicePixelRatio);
    }
    return pixmap;
}

} // namespace quillmark::design

// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

// Four pages of rows drawn straight with QPdfWriter: the least that a report drawn by Qt costs as a whole
// process. The document goes to standard output.

#include <QBuffer>
#include <QFontDatabase>
#include <QGuiApplication>
#include <QPainter>
#include <QPdfWriter>

#include <cstdio>

namespace {

constexpr int resolution = 1200;

int device(int points)
{
    return points * resolution / 72;
}

void drawPage(QPainter &painter, QFont font)
{
    font.setPointSize(9);
    QFont bold = font;
    bold.setBold(true);
    painter.fillRect(QRect(device(48), device(48), device(499), device(22)), QColor(0xF7, 0xF6, 0xF4));
    for (int row = 0; row < 34; ++row) {
        const int top = device(75 + row * 19);
        painter.setPen(Qt::black);
        painter.setFont(bold);
        painter.drawText(QRect(device(65), top, device(170), device(19)), Qt::AlignVCenter,
                         QStringLiteral("Capability number %1").arg(row));
        painter.setFont(font);
        painter.drawText(QRect(device(243), top, device(230), device(19)), Qt::AlignVCenter,
                         QStringLiteral("Value of the capability, %1 GB").arg(row * 16));
        painter.drawText(QRect(device(480), top, device(67), device(19)), Qt::AlignVCenter | Qt::AlignRight,
                         QStringLiteral("Supported"));
        painter.setPen(Qt::NoPen);
        painter.setBrush(QColor(0x12, 0x95, 0x7D));
        painter.drawEllipse(QRect(device(49), top + device(5), device(8), device(8)));
        painter.fillRect(QRect(device(48), top + device(19), device(499), device(1) / 2), Qt::lightGray);
    }
}

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    {
        QPdfWriter writer(&buffer);
        writer.setResolution(resolution);
        writer.setPageMargins(QMarginsF());
        QPainter painter(&writer);
        for (int page = 0; page < 4; ++page) {
            if (page > 0)
                writer.newPage();
            drawPage(painter, QFontDatabase::systemFont(QFontDatabase::GeneralFont));
        }
    }
    const auto size = static_cast<std::size_t>(buffer.size());
    return std::fwrite(buffer.data().constData(), 1, size, stdout) == size ? 0 : 1;
}

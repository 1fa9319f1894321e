// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "app/dialogs/ReportPreview.h"

#include "app/Appearance.h"
#include "app/painting.h"
#include "reports/pdf/PdfReport.h"

#include <QFontDatabase>
#include <QPainter>
#include <QTimer>

namespace quillmark::app {

using design::Role;

namespace {

constexpr int paneWidth = 300;
constexpr QSize paperSize(228, 322); ///< at most
constexpr int textMargin = 16;
constexpr int textPixels = 7;
constexpr qsizetype shownLines = 60;

} // namespace

ReportPreview::ReportPreview(QWidget *parent)
    : QWidget(parent)
{
    connect(&Appearance::current(), &Appearance::changed, this, [this] {
        m_isMade = false;
        updateGeometry();
        update();
    });
}

void ReportPreview::setReport(ExportFormat format, const reports::Report &report)
{
    m_format = format;
    m_report = report;
    m_isMade = false;
    update();
}

QSize ReportPreview::sizeHint() const
{
    const auto &appearance = Appearance::current();
    return {appearance.scaled(paneWidth), appearance.scaled(paperSize.height()) + 44};
}

void ReportPreview::make()
{
    m_isMade = true;
    m_page = {};
    m_text.clear();
    if (m_format == ExportFormat::Pdf) {
        const auto width = qRound(Appearance::current().scaled(paperSize.width()) * devicePixelRatioF());
        const auto preview = reports::preview(reports::reportDocument(m_report), width);
        m_page = preview.image;
        m_page.setDevicePixelRatio(devicePixelRatioF());
        Q_EMIT measured(preview.pages, 0);
    } else {
        const auto bytes = contents(m_format, m_report);
        m_text = QString::fromUtf8(bytes).section(u'\n', 0, shownLines);
        Q_EMIT measured(0, bytes.size());
    }
    update();
}

QRect ReportPreview::paper() const
{
    const auto &appearance = Appearance::current();
    QRect place(0, 0, appearance.scaled(paperSize.width()), appearance.scaled(paperSize.height()));
    if (!m_page.isNull())
        place.setSize(m_page.deviceIndependentSize().toSize());
    place.moveCenter(rect().center());
    return place;
}

void ReportPreview::paintEvent(QPaintEvent *)
{
    // The frame first, then what takes longer.
    if (!m_isMade)
        QTimer::singleShot(0, this, [this] {
            if (!m_isMade)
                make();
        });

    const auto &appearance = Appearance::current();
    QPainter painter(this);
    painter.fillRect(rect(), appearance.color(Role::Sidebar));
    const qreal edge = layoutDirection() == Qt::RightToLeft ? width() - 1 : 0;
    painter.fillRect(QRectF(edge, 0, 1, height()), appearance.color(Role::CardBorder));

    const auto place = paper();
    // Paper is white in the dark, too.
    painter.fillRect(place.adjusted(-1, -1, 1, 1), appearance.color(Role::CardBorder));
    painter.fillRect(place, Qt::white);
    if (!m_page.isNull()) {
        painter.drawImage(place.topLeft(), m_page);
        return;
    }
    auto font = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    font.setPixelSize(appearance.scaled(textPixels));
    painter.setFont(font);
    painter.setPen(design::Theme::light().color(Role::Text));
    const auto inside = place.adjusted(textMargin, textMargin, -textMargin, -textMargin);
    painter.setClipRect(inside);
    // No letter is cut, at the side or below.
    const auto metrics = painter.fontMetrics();
    const auto lines = m_text.split(u'\n');
    const int height = metrics.lineSpacing();
    for (int line = 0; line < lines.size() && (line + 1) * height <= inside.height(); ++line)
        painter.drawText(inside.adjusted(0, line * height, 0, 0), Qt::AlignTop | Qt::AlignLeft,
                         metrics.elidedText(lines[line], Qt::ElideRight, inside.width()));
}

} // namespace quillmark::app

// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "reports/pdf/PdfReport.h"

#include "language/Formats.h"
#include "reports/pdf/Canvas.h"
#include "reports/pdf/cover.h"
#include "reports/pdf/describedPdf.h"
#include "reports/pdf/paginate.h"
#include "reports/pdf/tables.h"

#include <QBuffer>
#include <QFontDatabase>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>

namespace quillmark::reports {

using namespace Qt::StringLiterals;

namespace {

constexpr int resolution = 1200;
constexpr qreal unit = resolution / 72.0;
constexpr qreal betweenSections = 16;

/// The pages of a report, laid out in the units of a device, to be painted there or, scaled, anywhere else.
class Pages
{
public:
    Pages(const ReportDocument &document, QPagedPaintDevice &device, const QString &fontFamily)
        : m_document(document)
        , m_typesetter(device, fontFamily, document.direction)
    {
        const auto size = device.pageLayout().pageSize().size(QPageSize::Point);
        m_sheet = {size.width(), size.height()};
        layOut();
    }

    std::size_t count() const { return m_pages.size(); }
    const Sheet &sheet() const { return m_sheet; }

    void paint(QPainter &painter, std::size_t page)
    {
        Canvas canvas(painter, m_icons, unit, m_sheet.width, m_document.direction);
        if (page > 0)
            paintHeader(canvas);
        for (const auto &portion : m_pages[page])
            paint(canvas, portion);
        paintFooter(canvas, page + 1);
    }

private:
    void layOut()
    {
        std::vector<Group> sections;
        for (const auto &section : m_document.sections) {
            sections.push_back(table(section, m_typesetter, metrics(styles::row, 0)));
            sections.back().gap = betweenSections;
        }
        addNotes(sections);
        m_sectionPages->assign(static_cast<std::size_t>(m_document.sections.size()), 0);
        for (const auto &spacing : {airy, tight, abridged}) {
            setCover(spacing);
            m_firstSection = m_groups.size();
            m_groups.insert(m_groups.end(), sections.begin(), sections.end());
            m_pages = paginate(m_groups, {m_sheet.top, m_sheet.bodyTop(), m_sheet.bodyBottom()});
            if (contentsAreOnCover())
                break;
        }
        for (std::size_t page = 0; page < m_pages.size(); ++page) {
            for (const auto &portion : m_pages[page]) {
                const auto section = portion.group - m_firstSection; // wraps round before the first
                if (section < m_sectionPages->size() && !portion.isContinued())
                    m_sectionPages->at(section) = static_cast<int>(page) + 1;
            }
        }
    }

    void setCover(const CoverSpacing &spacing)
    {
        m_groups = {headline(m_document, m_typesetter, m_sheet, spacing)};
        const auto add = [&](Group group) {
            group.gap = m_groups.size() == 1 ? spacing.aboveTables : spacing.betweenTables;
            group.isOnCover = true;
            m_groups.push_back(std::move(group));
        };
        if (!m_document.attention.rows.isEmpty())
            add(table(m_document.attention, m_typesetter, metrics(spacing.row, spacing.mostLines)));
        if (!m_document.sections.isEmpty())
            add(contents(m_document, m_typesetter, m_sheet, spacing.row, m_sectionPages));
        if (!m_document.nothing.isEmpty())
            add(note(m_document.nothing, styles::hardware, m_typesetter, m_sheet));
    }

    /// Below the last row, and whole with it: a page of its own would be a poor end.
    void addNotes(std::vector<Group> &sections)
    {
        if (m_document.leftOut.isEmpty())
            return;
        const auto leftOut = note(m_document.leftOut, styles::caption, m_typesetter, m_sheet);
        if (sections.empty()) {
            sections.push_back(leftOut);
            sections.back().gap = betweenSections;
            sections.back().isOnCover = true;
            return;
        }
        auto &end = sections.back().rows.back();
        end = {end.height + betweenSections + leftOut.heading.height,
               [row = end, text = leftOut.heading](Canvas &canvas, qreal top) {
                   row.paint(canvas, top);
                   text.paint(canvas, top + row.height + betweenSections);
               }};
    }

    /// Also where there are none.
    bool contentsAreOnCover() const
    {
        return m_pages.size() < 2 || m_pages[1].empty() || m_pages[1].front().group >= m_firstSection;
    }

    TableMetrics metrics(qreal row, int mostLines)
    {
        // Two rows as tall as that fit below a heading.
        const qreal tallest = (m_sheet.bodyBottom() - m_sheet.bodyTop() - styles::headingHeight) / 2;
        return {.left = m_sheet.left(),
                .right = m_sheet.right(),
                .wordWidth = widestWord(m_document, m_typesetter),
                .row = row,
                .tallest = tallest,
                .mostLines = mostLines};
    }

    void paint(Canvas &canvas, const Portion &portion) const
    {
        const auto &group = m_groups[portion.group];
        qreal y = portion.top;
        const auto paintBlock = [&](const Block &block) {
            block.paint(canvas, y);
            y += block.height;
        };
        paintBlock(portion.isContinued() ? group.continued : group.heading);
        for (auto row = portion.first; row < portion.end; ++row)
            paintBlock(group.rows[row]);
    }

    void paintHeader(Canvas &canvas)
    {
        const auto date = m_typesetter.set(m_document.date, styles::caption);
        const qreal width = m_sheet.right() - m_sheet.left() - date->width() - 12;
        const auto machine =
            m_typesetter.set(m_document.machine, styles::caption, {.width = width, .mostLines = 1});
        const qreal top = 53.5 - machine->height() / 2;
        canvas.text(*machine, m_sheet.left(), top);
        canvas.text(*date, m_sheet.right() - date->width(), top);
    }

    void paintFooter(Canvas &canvas, std::size_t page)
    {
        const language::Formats formats(m_document.language);
        const auto madeWith = m_typesetter.set(m_document.madeWith, styles::footer);
        const auto number =
            m_typesetter.set(m_document.pageOf.arg(formats.count(static_cast<qsizetype>(page)),
                                                   formats.count(static_cast<qsizetype>(m_pages.size()))),
                             styles::footer);
        canvas.rule(m_sheet.left(), m_sheet.right(), m_sheet.footerRule(), 0.5, design::Role::CardBorder);
        const qreal top = m_sheet.footerRule() + 8.5;
        canvas.text(*madeWith, m_sheet.left(), top);
        canvas.text(*number, m_sheet.right() - number->width(), top);
    }

    const ReportDocument &m_document;
    Typesetter m_typesetter;
    design::Icons m_icons;
    Sheet m_sheet{};
    std::vector<Group> m_groups;
    std::vector<Page> m_pages;
    std::size_t m_firstSection = 0; ///< among the groups
    std::shared_ptr<std::vector<int>> m_sectionPages = std::make_shared<std::vector<int>>();
};

void setUpPages(QPdfWriter &writer, const PdfOptions &options)
{
    writer.setResolution(resolution);
    writer.setPageSize(
        QPageSize(options.paper == language::Paper::Letter ? QPageSize::Letter : QPageSize::A4));
    writer.setPageMargins(QMarginsF());
}

QString fontFamily(const PdfOptions &options)
{
    return options.fontFamily.isEmpty() ? QFontDatabase::systemFont(QFontDatabase::GeneralFont).family()
                                        : options.fontFamily;
}

} // namespace

QByteArray pdf(const Report &report, const PdfOptions &options)
{
    return pdf(reportDocument(report), options);
}

QByteArray pdf(const ReportDocument &document, const PdfOptions &options)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    {
        QPdfWriter writer(&buffer);
        setUpPages(writer, options);
        writer.setTitle(document.fileTitle);
        writer.setCreator(document.application);
        writer.addFileAttachment(u"report.json"_s, document.json, u"application/json"_s);
        Pages pages(document, writer, fontFamily(options));
        QPainter painter(&writer);
        for (std::size_t page = 0; page < pages.count(); ++page) {
            if (page > 0)
                writer.newPage();
            pages.paint(painter, page);
        }
    }
    return describedPdf(buffer.data(), "Quillmark", document.language.toLatin1());
}

PagePreview preview(const ReportDocument &document, int width, const PdfOptions &options)
{
    // Laid out as for the file, in which nothing is written.
    QBuffer buffer;
    QPdfWriter writer(&buffer);
    setUpPages(writer, options);
    Pages pages(document, writer, fontFamily(options));
    const qreal scale = width / pages.sheet().width;
    QImage image(width, qRound(pages.sheet().height * scale), QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.scale(scale / unit, scale / unit);
    painter.setRenderHints(QPainter::TextAntialiasing | QPainter::SmoothPixmapTransform);
    pages.paint(painter, 0);
    return {image, static_cast<qsizetype>(pages.count())};
}

} // namespace quillmark::reports

// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "reports/pdf/describedPdf.h"

#include <QList>

#include <optional>

namespace quillmark::reports {

namespace {

/// The number after the last occurrence of the word.
std::optional<qsizetype> lastNumber(const QByteArray &pdf, const QByteArray &word)
{
    const auto at = pdf.lastIndexOf(word);
    if (at < 0)
        return std::nullopt;
    qsizetype end = at + word.size();
    while (end < pdf.size() && QByteArrayView(" \r\n0123456789").contains(pdf.at(end)))
        ++end;
    bool isNumber = false;
    const auto text = pdf.mid(at + word.size(), end - at - word.size()).simplified();
    const auto number = text.split(' ').first().toLongLong(&isNumber);
    return isNumber ? std::optional(number) : std::nullopt;
}

/// The dictionary object of that number with an entry more; empty when there is no such object.
QByteArray extended(const QByteArray &pdf, qsizetype number, const QByteArray &entry)
{
    const QByteArray begin = QByteArray::number(number) + " 0 obj";
    const auto from = pdf.indexOf('\n' + begin) + 1;
    const auto end = pdf.indexOf("endobj", from);
    const auto close = pdf.lastIndexOf(">>", end);
    if (from <= 0 || end < 0 || close < from)
        return {};
    return pdf.mid(from, close - from) + entry + "\n>>\nendobj\n";
}

} // namespace

QByteArray describedPdf(const QByteArray &pdf, const QByteArray &author, const QByteArray &language)
{
    const auto info = lastNumber(pdf, "/Info");
    const auto root = lastNumber(pdf, "/Root");
    const auto size = lastNumber(pdf, "/Size");
    const auto table = lastNumber(pdf, "startxref");
    if (!info || !root || !size || !table || pdf.mid(*table, 4) != "xref")
        return pdf;
    const auto newInfo = extended(pdf, *info, "/Author (" + author + ")");
    const auto newRoot =
        extended(pdf, *root, "/Lang (" + language + ")\n/ViewerPreferences << /DisplayDocTitle true >>");
    if (newInfo.isEmpty() || newRoot.isEmpty())
        return pdf;

    QByteArray result = pdf + '\n';
    QByteArray references = "xref\n";
    const auto append = [&](qsizetype number, const QByteArray &object) {
        // An entry is twenty bytes long, the line break included.
        references += QByteArray::number(number) + " 1\n" +
                      QByteArray::number(result.size()).rightJustified(10, '0') + " 00000 n \n";
        result += object;
    };
    append(*info, newInfo);
    append(*root, newRoot);
    const auto newTable = result.size();
    result += references + "trailer\n<<\n/Size " + QByteArray::number(*size) + "\n/Info " +
              QByteArray::number(*info) + " 0 R\n/Root " + QByteArray::number(*root) + " 0 R\n/Prev " +
              QByteArray::number(*table) + "\n>>\nstartxref\n" + QByteArray::number(newTable) + "\n%%EOF\n";
    return result;
}

} // namespace quillmark::reports

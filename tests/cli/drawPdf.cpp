// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

// drawPdf RECORDING [again]: the report of a recorded machine as PDF on standard output, drawn by the module;
// the second time that it draws it, if asked to.

#include "cli/PdfModule.h"
#include "support/ReportSamples.h"

#include <cstdio>

int main(int argc, char **argv)
{
    using namespace quillmark;
    if (argc < 2)
        return 2;
    const auto machine = platform::openRecording(argv[1]);
    if (!machine)
        return 2;
    auto pdf = cli::pdfReport(support::reportOf(**machine));
    if (argc > 2)
        pdf = cli::pdfReport(support::reportOf(**machine));
    if (!pdf) {
        std::fprintf(stderr, "%s\n", pdf.error().reason.toUtf8().constData());
        return 1;
    }
    return std::fwrite(pdf->constData(), 1, static_cast<std::size_t>(pdf->size()), stdout) ==
                   static_cast<std::size_t>(pdf->size())
               ? 0
               : 1;
}

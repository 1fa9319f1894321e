// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "reports/DrawPdf.h"
#include "reports/pdf/PdfReport.h"

#include <QCoreApplication>
#include <QDir>
#include <QFontDatabase>
#include <QGuiApplication>
#include <QLibrary>
#include <QRawFont>

#include <algorithm>
#include <array>
#include <cstdio>
#include <memory>
#include <type_traits>

namespace quillmark::reports {

using namespace Qt::StringLiterals;

namespace {

/// Without the plugin Qt would end the process.
QString missingPlatform()
{
    auto folders =
        qEnvironmentVariable("QT_QPA_PLATFORM_PLUGIN_PATH").split(QDir::listSeparator(), Qt::SkipEmptyParts);
    for (const auto &path : QCoreApplication::libraryPaths())
        folders += path + "/platforms"_L1;
    QString reason;
    for (const QDir folder : folders) {
        for (const auto &name : folder.entryList({u"*qoffscreen*"_s}, QDir::Files)) {
            QLibrary plugin(folder.filePath(name));
            if (plugin.load())
                return {};
            reason = plugin.errorString();
        }
    }
    return reason.isEmpty() ? u"Qt’s plugin “offscreen” is not in %1"_s.arg(folders.join(u", "_s)) : reason;
}

/// What Qt says about a session that is not there is no news to whoever wants a file.
void keepQuiet(QtMsgType type, const QMessageLogContext &, const QString &message)
{
    if (type == QtFatalMsg)
        std::fprintf(stderr, "%s\n", qPrintable(message));
}

/// What Qt draws text with, without a display.
std::unique_ptr<QGuiApplication> startApplication()
{
    // A desktop's theme and input method would want its display, and may end the process without it.
    qunsetenv("QT_QPA_PLATFORMTHEME");
    qunsetenv("QT_IM_MODULE");
    static char name[] = "quillmark";
    static char option[] = "-platform";
    static char platform[] = "offscreen";
    static char *arguments[4];
    static int count;
    std::ranges::copy(std::array<char *, 4>{name, option, platform, nullptr}, arguments);
    count = 3; // Qt takes out what it knows
    const auto handler = qInstallMessageHandler(keepQuiet);
    auto application = std::make_unique<QGuiApplication>(count, arguments);
    qInstallMessageHandler(handler);
    return application;
}

} // namespace

} // namespace quillmark::reports

extern "C" Q_DECL_EXPORT bool quillmark_drawPdf(const QString &version,
                                                const quillmark::reports::ReportDocument &document,
                                                QByteArray &pdf, QString &failure)
{
    using namespace quillmark::reports;
    if (version != applicationVersion()) {
        failure = u"it is of version %1, the program of %2"_s.arg(applicationVersion(), version);
        return false;
    }
    std::unique_ptr<QGuiApplication> application;
    if (!QCoreApplication::instance()) {
        failure = missingPlatform();
        if (!failure.isEmpty())
            return false;
        application = startApplication();
    }
    if (!qGuiApp) {
        failure = u"the program’s application object is not one that draws"_s;
        return false;
    }
    // Without fonts Qt draws boxes, and says of them that they have a glyph for anything.
    const auto font = QRawFont::fromFont(QFontDatabase::systemFont(QFontDatabase::GeneralFont));
    if (font.fontTable("head").isEmpty()) {
        failure = u"no font is installed"_s;
        return false;
    }
    pdf = quillmark::reports::pdf(document);
    return true;
}

static_assert(std::is_same_v<decltype(quillmark_drawPdf), quillmark::reports::DrawPdf>);

// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "app/Application.h"
#include "app/RunApp.h"
#include "reports/Report.h"

#include <type_traits>

extern "C" Q_DECL_EXPORT int quillmark_runApp(const QString &version, const quillmark::app::Launch &launch,
                                              QString &failure)
{
    if (version != quillmark::reports::applicationVersion()) {
        failure = QStringLiteral("the module quillmark-app belongs to version %1, the program is version %2")
                      .arg(quillmark::reports::applicationVersion(), version);
        return 1;
    }
    return quillmark::app::run(launch, failure);
}

static_assert(std::is_same_v<decltype(quillmark_runApp), quillmark::app::RunApp>);

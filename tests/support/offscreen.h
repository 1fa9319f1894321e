// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QRegularExpression>
#include <QTest>

namespace quillmark::support {

/// Has any warning fail the test, but for what Qt's screen for tests says of itself when a window tells its size or
/// comes forward. To be called from a test's init(), where QT_FATAL_WARNINGS is not set.
inline void failOnWarnings()
{
    QTest::failOnWarning(QRegularExpression(QStringLiteral("^(?!This plugin does not support )")));
}

} // namespace quillmark::support

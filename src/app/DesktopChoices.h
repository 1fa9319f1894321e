// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>
#include <QString>
#include <QVariant>

#include <memory>
#include <optional>

namespace quillmark::app {

/// What the user has chosen on the desktop and Qt does not pass on. A desktop that does not say has chosen
/// nothing.
///
/// Learns of it after it was made, and whenever it changes. Lives on the main thread, which it never keeps
/// waiting.
class DesktopChoices : public QObject
{
    Q_OBJECT

public:
    /// That of the system that the program was built for. Starts no program, and asks none that does not run.
    static std::unique_ptr<DesktopChoices> ofSystem();

    /// Dark colours, or light ones; none: what the palette says.
    const std::optional<bool> &prefersDark() const { return m_prefersDark; }
    bool reducesMotion() const { return m_asksForLess || !m_hasAnimations; }

    /// Takes a setting in, under the names that it has on desktops of freedesktop.org and GNOME. Others are
    /// passed over.
    void take(const QString &group, const QString &key, const QVariant &value);

Q_SIGNALS:
    void changed();

private:
    std::optional<bool> m_prefersDark;
    bool m_asksForLess = false;
    bool m_hasAnimations = true;
};

} // namespace quillmark::app

// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "app/DesktopChoices.h"

namespace quillmark::app {

using namespace Qt::StringLiterals;

void DesktopChoices::take(const QString &group, const QString &key, const QVariant &value)
{
    const auto before = std::pair(m_prefersDark, reducesMotion());
    if (group == "org.freedesktop.appearance"_L1 && key == "color-scheme"_L1) {
        enum { NoPreference, Dark, Light };
        const auto scheme = value.toUInt();
        m_prefersDark = scheme == Dark || scheme == Light ? std::optional(scheme == Dark) : std::nullopt;
    } else if (group == "org.freedesktop.appearance"_L1 && key == "reduced-motion"_L1) {
        m_asksForLess = value.toUInt() == 1;
    } else if (group == "org.gnome.desktop.interface"_L1 && key == "enable-animations"_L1) {
        m_hasAnimations = value.toBool();
    }
    if (before != std::pair(m_prefersDark, reducesMotion()))
        Q_EMIT changed();
}

} // namespace quillmark::app

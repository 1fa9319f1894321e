// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "battery/batteryTexts.h"

#include "battery/Text.h"

namespace quillmark::battery {

QString ofDesignCapacity(const QString &percent)
{
    return Text::tr("%1 of design capacity").arg(percent);
}

QString reportedBySystem(const QString &percent)
{
    return Text::tr("macOS reports %1").arg(percent);
}

QString reportedNote()
{
    return Text::tr("macOS smooths its figure and keeps a reserve, so the two can differ by a few points.");
}

QString noBattery(bool onMac)
{
    return onMac ? Text::tr("This Mac has no battery") : Text::tr("This computer has no battery");
}

QString noBatteryNote(bool onMac)
{
    return onMac
               ? Text::tr("Battery health is shown on portable Macs. Everything else in Quillmark works as "
                          "usual.")
               : Text::tr("Battery health is shown on portable computers. Everything else in Quillmark works "
                          "as usual.");
}

} // namespace quillmark::battery

// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <optional>

namespace quillmark::battery {
struct BatteryReading;
}
namespace quillmark::history {
class ScanHistory;
}
namespace quillmark::inspection {
class Quillmark;
}
namespace quillmark::language {
class LanguageManager;
}
namespace quillmark::monitor {
class LiveMonitor;
}
namespace quillmark::platform {
class Machine;
}
namespace quillmark::settings {
class Settings;
}

namespace quillmark::app {

/// What the views of one window work with. All of it outlives them, and lives on the main thread.
struct AppContext
{
    const platform::Machine &machine;
    settings::Settings &settings;
    language::LanguageManager &language;
    inspection::Quillmark &inspection;
    history::ScanHistory &history;
    monitor::LiveMonitor &monitor;
};

/// Whether to say "this Mac" or "this computer".
bool isMac(const AppContext &context);

} // namespace quillmark::app

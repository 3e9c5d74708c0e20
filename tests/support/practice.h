// A station on a folder of its own, with a scripted host, a clock that stands still and settings in
// memory.
#pragma once

#include <memory>
#include <string>

#include "platform/settings/backend.h"
#include "shell/station.h"
#include "tests/support/scripted_host.h"
#include "tests/support/temporary_folder.h"

namespace support {

class FixedClock : public host::Clock {
 public:
  [[nodiscard]] text::DateTime now() const override { return time; }
  text::DateTime time = text::DateTime::of(2026, 11, 22, 14 * 3600 + 5 * 60);
};

// One desk: its own host and settings; several desks may share a folder.
struct Desk {
  explicit Desk(const std::string& folder, std::string_view program = "General Medicine",
                std::string_view language = "tr")
      : settings(std::make_unique<settings::MemoryBackend>()),
        station({host, clock, settings, screens}, folder, program) {
    station.ayarYaz("Language", language);
  }
  ScriptedHost host;
  FixedClock clock;
  settings::Settings settings;
  shell::ScreenDirectory screens;
  shell::Station station;
};

}  // namespace support

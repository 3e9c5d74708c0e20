// A patient is on the card of one station at a time: what a station shows stands in its slot of the
// register. A station without a register works alone.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "shell/station.h"

namespace shell {

// Opens the register; see StationRegister::open(). Busy after a second.
[[nodiscard]] platform::Result<StationRegister::Company> OpenStationRegister(Station& istasyon);

// While it lives, no other station takes a patient or lets one go: what is looked up, asked and
// published within it is one step. Short: the others wait.
class PatientLock {
 public:
  // Busy when another station keeps the register for too long.
  [[nodiscard]] static platform::Result<PatientLock> take(Station& istasyon);

  // The number of the other station that has the patient; 0 for none.
  [[nodiscard]] long whereElse(std::string_view name) const;
  [[nodiscard]] bool isElsewhere(std::string_view name) const { return whereElse(name) > 0; }
  // From now on the patient is this station's, and the one before is free; empty for none.
  void publish(std::string_view name);

 private:
  PatientLock(Station& istasyon, std::optional<files::ScopedRangeLock> held)
      : istasyon_(istasyon), held_(std::move(held)) {}

  Station& istasyon_;
  std::optional<files::ScopedRangeLock> held_;
};

// The card shows nobody.
void hastaBirak(Station& istasyon);

// Tells the other stations that the appointment book has changed.
void NotifyAppointmentChanged(Station& istasyon);
// Whether another station has changed it since this was last asked.
[[nodiscard]] bool appointmentsChanged(Station& istasyon);

}  // namespace shell

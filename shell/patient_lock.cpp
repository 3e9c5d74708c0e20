#include "shell/patient_lock.h"

#include <utility>

namespace shell {

namespace {

using platform::Fault;
using platform::Result;

// Then the user decides whether to wait for longer.
constexpr std::chrono::milliseconds openingPatience{1000};

// Publishing clears the flag in the slot; what it told is not lost with it.
void keepFlag(Station& istasyon) {
  const auto record = istasyon.sicil.own();
  if (record && record->appointmentFlag != 0) istasyon.RandevuDegisti = true;
}

}  // namespace

Result<StationRegister::Company> OpenStationRegister(Station& istasyon) {
  return istasyon.sicil.open(istasyon.UygYolu, openingPatience);
}

// A register that cannot be locked any more is no reason to keep a doctor from the patients; one
// that somebody else keeps is.
Result<PatientLock> PatientLock::take(Station& istasyon) {
  auto held = istasyon.sicil.lock();
  if (held) return PatientLock(istasyon, std::move(*held));
  if (held.error().fault() == Fault::Busy) return std::unexpected(held.error());
  return PatientLock(istasyon, std::nullopt);
}

long PatientLock::whereElse(std::string_view name) const {
  return held_ ? istasyon_.sicil.whereElse(name).value_or(0) : 0;
}

void PatientLock::publish(std::string_view name) {
  if (held_) keepFlag(istasyon_);
  istasyon_.AgKaydi.name = slotName(name);
  istasyon_.AgKaydi.appointmentFlag = 0;
  if (held_) istasyon_.sicil.writeOwn(istasyon_.AgKaydi).ignore();
}

void hastaBirak(Station& istasyon) {
  if (istasyon.AgKaydi.name.empty()) return;
  auto lock = PatientLock::take(istasyon);
  if (lock) lock->publish({});
}

void NotifyAppointmentChanged(Station& istasyon) {
  const auto lock = istasyon.sicil.lock();
  if (lock) istasyon.sicil.flagOthers().ignore();
}

bool appointmentsChanged(Station& istasyon) {
  const auto lock = istasyon.sicil.lock();
  if (lock) keepFlag(istasyon);
  istasyon.AgKaydi.appointmentFlag = 0;
  if (lock) istasyon.sicil.writeOwn(istasyon.AgKaydi).ignore();
  return std::exchange(istasyon.RandevuDegisti, false);
}

}  // namespace shell

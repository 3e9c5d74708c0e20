// The date of a patient's record, and what the screens say of the patient on that day.
#pragma once

#include <string>
#include <string_view>

#include "platform/forms/text_control.h"
#include "shell/station.h"

namespace shell {

// Whether a record of the patient on the card can have that date: not later than today, not before
// the birth, as far as the card tells it.
[[nodiscard]] bool tarihUygun(const Station& istasyon, const text::DateTime& date);

// Keeps the date that the box holds now, for a date that is refused, and selects it.
void tarihOdakta(Station& istasyon, forms::DateBox& box);
// False when the box holds no date that a record can have: then it says so, and the date that was
// kept comes back. A good date is written out.
bool hatalitarih(Station& istasyon, forms::DateBox& box);
// The same before a save, for a date that leaving the box has not checked: saved by a key while it
// is typed, or left although it is none.
[[nodiscard]] bool kayitTarihi(Station& istasyon, forms::DateBox& box,
                               const forms::Control* active);

// Whose record it is, of which day and which speciality, into the open buffer.
[[nodiscard]] dao::Status sahibiniYaz(const Station& istasyon, dao::Recordset& table,
                                      std::string_view patient, const forms::DateBox& box);

// "Age : 34 years", on the day in the box; empty when one of the two dates is missing.
[[nodiscard]] std::string tarihteYas(Station& istasyon, const forms::DateBox& box);

// The patient, without the marks of namesakes, with age, sex and blood group.
[[nodiscard]] std::string hastaBandi(Station& istasyon, std::string_view name);

}  // namespace shell

// The list of doctors that the record screens offer; it grows by use.
#pragma once

#include "platform/forms/text_control.h"
#include "shell/station.h"

namespace shell {

inline constexpr int doctorWidth = 40;

void doktorlariYaz(Station& istasyon, forms::ComboBox& doctors);
// A name that the list lacks is added to it. One that cannot be stored stays on the record alone.
void doktorEkle(Station& istasyon, std::string_view name);

}  // namespace shell

// The font records of Data/setting.dat: which font a screen shows and prints its record in.
#pragma once

#include "shell/station.h"

namespace shell {

// The record numbers, one per screen or family of screens.
namespace font_record {
inline constexpr int card = 1;
inline constexpr int examination = 9;  // and the radiology report
inline constexpr int find = 23;
}  // namespace font_record

// Applies the record's font to the form. A record that another form wrote last, or that was never
// written, leaves the form as it is.
void Setkayitlarioku(Station& istasyon, forms::Form& form, int record);

// Writes the form's name and font into the record; the rest of the record stays.
platform::Status setkayityaz(Station& istasyon, const forms::Form& form, int record);

}  // namespace shell

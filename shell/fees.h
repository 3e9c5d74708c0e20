// Fees on the screens: their picture, and those that were written in old lira.
#pragma once

#include "platform/forms/text_control.h"
#include "shell/station.h"

namespace shell {

// A number in the field gets the picture "0.00"; what is none stays as it was typed.
void ucretBicimle(forms::TextControl& fee);

// Called when a stored record is shown. An amount in old lira asks whether all amounts of the store
// are to be converted. On Yes their number, the largest and the smallest are told, and a backup is
// offered, before they are; then the field shows the new one.
void eskiUcretSor(Station& istasyon, forms::TextControl& fee);

}  // namespace shell

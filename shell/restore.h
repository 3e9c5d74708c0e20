// Restoring the stores from the backup, and trying whether that would work.
#pragma once

#include "shell/station.h"

namespace shell {

// Asks for the Personal and for the Clinical store whether the backup's file is to replace it; the
// Smoking store follows without a question. All of them are replaced, or, after a fault, none. Then
// the files beside the stores come back, after a question, newer ones after another. The
// stores of the station are open afterwards. True when they were closed meanwhile: whatever shows
// their rows is to be filled again.
bool mnugeriyukle_Click(Station& istasyon);

// Opens the newest backup in a scratch folder and tells what a restore would bring back.
void yedegiDene(Station& istasyon);

}  // namespace shell

// Opening the stores at a station.
#pragma once

#include "shell/station.h"

namespace shell {

// Opens them all and tells what could not be opened, or that nothing can be changed: better now
// than when the first card has been written.
void depolariAc(Station& istasyon);

}  // namespace shell

// The run of maintenance over the practice's stores.
#pragma once

#include "shell/station.h"

namespace shell {

// Checks, mends and compacts the three stores behind a progress window, and tells what became of
// each. Nothing is done, and the user told, while another station runs. The stores are closed
// meanwhile and open again afterwards; texts and rows that were read before must be read anew.
void dosyabakimi(Station& istasyon);

// What a run that was killed left beside the stores. For a station that is alone.
void removeLeftovers(Station& istasyon);

}  // namespace shell

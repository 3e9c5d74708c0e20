// Before the stores are opened: whether they are what was left here.
#pragma once

#include "shell/station.h"

namespace shell {

// Tells of a store that has vanished, was emptied or lost most of its records, and offers its
// backup. What stands in its place is kept under another name. Nothing is changed unless this
// station is alone.
void depolariDenetle(Station& istasyon, bool alone);

}  // namespace shell

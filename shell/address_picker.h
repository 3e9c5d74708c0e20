// Names of patients with an address, for letters, envelopes and labels.
#pragma once

#include <string>
#include <vector>

#include "shell/station.h"

namespace shell {

// Opens the finder for `names` and waits until it is closed. It begins with them in its list; what
// the user confirms there is added behind them, each name once, and only when its card has an
// address. Cancelling leaves them as they are.
void adresSec(Station& istasyon, std::vector<std::string>& names);

}  // namespace shell

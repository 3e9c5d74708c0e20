// The toolbar buttons of a record screen that show which kinds of record the patient has.
#pragma once

#include <string_view>

#include "platform/forms/menu.h"
#include "shell/station.h"

namespace shell {

// Each button that is seen takes the image of its kind with or without a row in the visit ledger.
void vizitDugmeleri(Station& istasyon, forms::Toolbar& toolbar, std::string_view patient);

}  // namespace shell

// The toolbar buttons of a record screen that show which kinds of record the patient has.
#pragma once

#include <string_view>

#include "platform/forms/menu.h"
#include "shell/station.h"

namespace shell {

// Each button takes the image of its kind with or without a row in the visit ledger; a toolbar has
// those of the buttons that it needs.
void vizitDugmeleri(Station& istasyon, forms::Toolbar& toolbar, std::string_view patient);

}  // namespace shell

// How a failure is told to people: its kind in their language, and behind it the words of the
// failure itself, which name the file, table or field.
#pragma once

#include <string>

#include "shell/phrases.h"
#include "shell/station.h"

namespace shell {

// One line for a panel or a list: the kind alone, or the failure's own words where there is no name
// for its kind.
[[nodiscard]] std::string kisaNedeni(Station& istasyon, const platform::Status& fault);
// Two lines for a box.
[[nodiscard]] std::string nedeni(Station& istasyon, const platform::Status& fault);

// A box. The phrase says what did not come about.
void hataSoyle(Station& istasyon, const platform::Status& fault);
void hataSoyle(Station& istasyon, Phrase failed, const platform::Status& fault);
// What reading the user's settings came to.
void ayarlarOkunduMu(Station& istasyon, const platform::Status& read);

}  // namespace shell

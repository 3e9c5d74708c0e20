// The shared helpers of record screens: the generic snapshot and select-all.
#pragma once

#include <string>

#include "shell/station.h"

namespace shell {

// The texts of all controls in their order, then that of `txttarih`, with no separator.
[[nodiscard]] std::string alanMetinleri(const forms::Form& form);
// The texts of all controls except `txttarih`: empty when nothing is on the screen.
[[nodiscard]] bool bosMu(const forms::Form& form);

// Takes the generic snapshot into Station::AlanYedegi and disables Save.
void alanyedekle(Station& istasyon, forms::Form& form);

// Selects the whole text of the form's active control.
void hepsinisec(const forms::Form& form);

}  // namespace shell

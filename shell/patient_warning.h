// The patient's standing warning, such as an allergy.
#pragma once

#include <string_view>

#include "platform/forms/label.h"
#include "shell/station.h"

namespace shell {

enum class Warned { No, Yes };

// Shows the warning of the patient of that name on the label, whose tool-tip says what it is, and
// hides the label where there is none to read. Tells whether the patient has a row of his own.
Warned uyariGoster(Station& istasyon, std::string_view patient, forms::Label& label);

}  // namespace shell

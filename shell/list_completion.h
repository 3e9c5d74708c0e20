// Combo boxes that complete what is typed from their list.
#pragma once

#include <string_view>

#include "platform/forms/text_control.h"

namespace shell {

// The first row whose beginning equals the typed text, without regard to case, completes it: the
// rest is appended and selected, so that typing on replaces it. Steering keys complete nothing.
void completeFromList(forms::ComboBox& combo, const forms::Key& key);

// The same for any field, with a row that begins with the typed text.
void completeWith(forms::TextControl& field, std::string_view row, const forms::Key& key);

// The row that begins with the first letter of the typed text, whatever its case; -1 when there is
// none.
[[nodiscard]] int rowOfFirstLetter(const forms::ComboBox& combo);

// A text that no row equals letter for letter becomes a row, for this session.
void keepTypedValue(forms::ComboBox& combo);

// Connects both to the combo: while typing, and on leaving it.
void completeWhileTyping(forms::ComboBox& combo);

}  // namespace shell

// The captions of all controls, set at run time from the text lookup.
#pragma once

#include <span>
#include <string>
#include <string_view>

#include "shell/field_row.h"
#include "shell/station.h"

namespace shell {

// Captions every control of the form that the list of captions names; a control that the form lacks
// is passed over. Called first thing in a form's load, and again when the language changes.
void basliklariyaz(Station& istasyon, forms::Form& form);

// The captions and units of the fields of a record screen.
void alanBasliklari(Station& istasyon, forms::Form& form, std::span<const FieldRow> fields);
// The field's unit in the user's language.
[[nodiscard]] std::string unitOf(Station& istasyon, const FieldRow& row);

}  // namespace shell

// The captions of all controls, set at run time from the text lookup.
#pragma once

#include <span>
#include <string_view>

#include "shell/field_row.h"
#include "shell/station.h"

namespace shell {

// Captions every control of the form that the list of captions names; a control that the form lacks
// is passed over. Called first thing in a form's load, and again when the language changes.
void basliklariyaz(Station& istasyon, forms::Form& form);

// The captions of the fields of a record screen.
void alanBasliklari(Station& istasyon, forms::Form& form, std::span<const FieldRow> fields);

}  // namespace shell

// The fields of the patient card, one row each.
#pragma once

#include <span>

#include "shell/field_row.h"

namespace registry {

// In the order of the snapshot.
[[nodiscard]] std::span<const shell::FieldRow> cardFields();

// The seven list fields, in the order in which a save adds new values to their tables.
struct ListField {
  forms::Control& (*control)(forms::Form& form);
  std::string_view table;  // its one column has the same name
  int cut;
};
[[nodiscard]] std::span<const ListField> listFields();

}  // namespace registry

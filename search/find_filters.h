// The filters of the finder, as data.
#pragma once

#include <span>
#include <string_view>

#include "platform/forms/text_control.h"
#include "search/card_conditions.h"

namespace search {

// One filter: its control, what it says in front of it, and what it asks of which columns.
struct FilterRow {
  forms::TextControl& (*control)(forms::Form& form);
  std::string_view captionKey;
  Test test;
  Columns columns;
};
// In the order in which a card is tested.
[[nodiscard]] std::span<const FilterRow> filterRows();

// Filters with a list from the Personal store, and the table that holds it.
struct FilterList {
  forms::TextControl& (*control)(forms::Form& form);
  std::string_view table;
};
[[nodiscard]] std::span<const FilterList> filterLists();

}  // namespace search

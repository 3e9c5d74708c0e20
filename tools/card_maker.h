// The other fields of an invented patient's card.
#pragma once

#include <cstdint>
#include <span>
#include <string_view>
#include <vector>

#include "platform/dao/value.h"
#include "tools/name_maker.h"

namespace tools {

// A column of `IDCard` and what stands in it.
struct Entry {
  std::string_view column;
  dao::Value value;
};
using Card = std::vector<Entry>;

// A patient as of the reference date. It depends on the seed and the person alone.
struct Patient {
  NamedPerson person;
  int age = 0;  // in whole years, roughly
  text::DateTime birth;
  Card card;  // what a save of the card writes; a column left out is Null
};
[[nodiscard]] Patient makePatient(const NamedPerson& person, std::uint64_t seed,
                                  const text::DateTime& reference);

// A column of the card whose values a value list collects.
struct ListedColumn {
  std::string_view column;
  std::string_view list;
};
[[nodiscard]] std::span<const ListedColumn> listedColumns();

// The mark in the column `Key` of a patient who is hidden until the password is given.
inline constexpr std::string_view hiddenKey = "¬";

}  // namespace tools

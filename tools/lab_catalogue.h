// A catalogue of laboratory tests as a practice keeps it.
#pragma once

#include <span>
#include <string_view>

namespace tools {

// A row of the table `Tests`; an end that a range does not have is empty. `decimals` is how exactly
// the invented values are written; a test without decimals of its own (-1) is answered in words.
struct CatalogueTest {
  std::string_view name;
  std::string_view unit;
  std::string_view min;
  std::string_view max;
  int decimals = 0;
  std::string_view information = {};
};
[[nodiscard]] std::span<const CatalogueTest> catalogueTests();

// Tests that are asked for together, by their names.
using Panel = std::span<const std::string_view>;
[[nodiscard]] std::span<const Panel> panels();

}  // namespace tools

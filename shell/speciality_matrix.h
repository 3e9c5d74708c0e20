// Which entries of the main window each speciality shows and hides, as data.
#pragma once

#include <array>
#include <span>
#include <string_view>

namespace shell::matrix {

using Names = std::span<const std::string_view>;

struct Row {
  int BransNo;
  std::string_view examination;  // the entry that muayenetus opens
  Names visible;
  Names hidden;
};

// Hidden before a row applies, at start and after a switch on a polyclinic copy.
[[nodiscard]] Names hiddenAtStart();
[[nodiscard]] Names hiddenAtSwitch();

// The rows at start and after a switch; null for a number that has none.
[[nodiscard]] const Row* atStart(int bransNo);
[[nodiscard]] const Row* atSwitch(int bransNo);

}  // namespace shell::matrix

// The ten layouts of a printed page.
#pragma once

#include <array>
#include <span>
#include <string>
#include <string_view>

#include "shell/station.h"

namespace documents {

struct Template {
  // Text keys; together they are the entry in the list of templates.
  std::array<std::string_view, 4> parts;
  int top;  // of the body, in twips
  bool nameAndDate = false;
  bool heading = false;
  bool signature = false;
};

namespace place {
inline constexpr int textTop = 300;
inline constexpr int belowHeading = 2700;
inline constexpr int nameLine = 2100;
inline constexpr int dateX = 7000;
inline constexpr int signatureRight = 8000;
inline constexpr int signatureGap = 200;
inline constexpr int headingTop = 300;
inline constexpr int headingTextIndent = 300;
}  // namespace place

// In the order of their numbers, 0 to 9.
[[nodiscard]] std::span<const Template> templates();
// The template of a stored number; a number that is none is the plain text.
[[nodiscard]] const Template& templateOf(int number);
[[nodiscard]] std::string templateEntry(shell::Station& istasyon, const Template& entry);

}  // namespace documents

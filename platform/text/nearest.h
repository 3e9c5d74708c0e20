// What the Turkish code page has in the place of characters that it lacks.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace text {

// The text in characters of the code page 1254: "Łukasz ≥ 3" becomes "Lukasz >= 3". Letters of
// other scripts become Latin ones; what has nothing near it becomes '?', and marks that nobody sees
// go.
[[nodiscard]] std::string nearestTurkish(std::string_view text);

struct Substitute {
  std::string character;
  std::string nearest;
  bool operator==(const Substitute&) const = default;
};
// Which characters nearestTurkish() replaces, each once, in the order of the text.
[[nodiscard]] std::vector<Substitute> substitutesIn(std::string_view text);

}  // namespace text

// The words that invented patients are made of. Lists of names begin with the most frequent ones.
#pragma once

#include <span>
#include <string_view>

namespace tools {

using Words = std::span<const std::string_view>;

// The numbers are those that the card stores.
enum class Sex { Female = 0, Male = 1 };

struct Town {
  std::string_view name;
  std::string_view areaCode;
};

[[nodiscard]] Words givenNames(Sex sex);
[[nodiscard]] Words surnames();
[[nodiscard]] std::span<const Town> towns();

[[nodiscard]] Words bloodGroups();  // as the card lists them
[[nodiscard]] Words professions();
[[nodiscard]] Words employers();
[[nodiscard]] Words jobs();
[[nodiscard]] Words formsOfAddress(Sex sex);
[[nodiscard]] Words doctors();
[[nodiscard]] Words districts();
[[nodiscard]] Words streets();
[[nodiscard]] Words remarks();

namespace relationship {
inline constexpr std::string_view self = "Kendisi";
inline constexpr std::string_view spouse = "Eşi";
inline constexpr std::string_view child = "Çocuğu";
}  // namespace relationship

}  // namespace tools

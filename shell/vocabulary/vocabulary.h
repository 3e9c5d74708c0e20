// The words of the program: every caption and message is looked up here by its key.
#pragma once

#include <optional>
#include <span>
#include <string_view>

#include "shell/vocabulary/row.h"

namespace shell {

enum class Language { Turkish, English };

// The text of a key in one table, or none when that table lacks the key. Keys compare byte by byte.
// One hash probe, no allocation; the text lives as long as the program.
[[nodiscard]] std::optional<std::string_view> turkcemetin(std::string_view key);
[[nodiscard]] std::optional<std::string_view> ingilizcemetin(std::string_view key);

// What the user reads for a key: the language's own table first, then the Turkish table over the
// result. A key in neither table comes back as it stands, and then the view is the argument's.
[[nodiscard]] std::string_view lookUp(std::string_view key, Language language);

// Every row, grouped by topic; no key occurs twice.
[[nodiscard]] std::span<const Row> rows();

}  // namespace shell

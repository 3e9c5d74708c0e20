// The one table of who builds on whom. Includes follow its arrows, near and far, and no others.
#pragma once

#include <optional>
#include <span>
#include <string_view>
#include <vector>

namespace architecture {

struct Part {
  std::string_view folder;
  std::vector<std::string_view> buildsOn;  // only parts that stand before it in the table
};

[[nodiscard]] std::span<const Part> parts();

// The part that a path lies in; none for tests, benchmarks and what is no part.
[[nodiscard]] std::optional<std::string_view> partOf(std::string_view path);
// Precondition: both are folders of the table.
[[nodiscard]] bool mayInclude(std::string_view from, std::string_view to);

}  // namespace architecture

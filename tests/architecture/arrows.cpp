#include "tests/architecture/arrows.h"

#include <algorithm>

namespace architecture {

namespace {

// From the ground up.
const std::vector<Part> table{
    {"platform/status", {}},
    {"platform/text", {"platform/status"}},
    {"platform/files", {"platform/text"}},
    {"platform/dao", {"platform/text"}},
    {"platform/settings", {"platform/files"}},
    {"platform/richtext", {"platform/text"}},
    {"platform/page", {"platform/richtext"}},
    {"platform/forms", {"platform/richtext"}},
    {"platform/host", {"platform/forms"}},
    {"shell/vocabulary", {}},
    {"stores", {"platform/dao", "platform/files"}},
    {"shell",
     {"stores", "platform/host", "platform/settings", "platform/page", "shell/vocabulary"}},
    {"documents", {"shell"}},
    {"registry", {"shell"}},
    {"exam", {"documents"}},
    {"search", {"documents"}},
    {"images", {"shell"}},
    {"scheduling", {"shell"}},
    {"app", {"registry", "exam", "search", "images", "scheduling"}},
    {"tools", {"shell"}},
    {"desktop", {"app", "tools"}},
};

bool liesIn(std::string_view path, std::string_view folder) {
  return path == folder || (path.starts_with(folder) && path[folder.size()] == '/');
}

const Part* find(std::string_view folder) {
  const auto found = std::ranges::find(table, folder, &Part::folder);
  return found == table.end() ? nullptr : &*found;
}

}  // namespace

std::span<const Part> parts() {
  return table;
}

// The deepest folder of the table counts.
std::optional<std::string_view> partOf(std::string_view path) {
  std::optional<std::string_view> deepest;
  for (const Part& part : table) {
    const bool deeper = !deepest || part.folder.size() > deepest->size();
    if (deeper && liesIn(path, part.folder)) deepest = part.folder;
  }
  return deepest;
}

bool mayInclude(std::string_view from, std::string_view to) {
  if (from == to) return true;
  const Part* const part = find(from);
  return part != nullptr && std::ranges::any_of(part->buildsOn, [&](std::string_view ground) {
           return mayInclude(ground, to);
         });
}

}  // namespace architecture

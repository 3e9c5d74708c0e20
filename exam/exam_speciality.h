// What the examination looks like in each speciality: the companion buttons that it shows and the
// frame of its special page.
#pragma once

#include <array>
#include <string_view>

namespace exam {

enum class Frame { None, Gynecology, Eye, Ent, Heart };

struct Workspace {
  int BransNo;
  Frame frame;
  // Of the buttons that belong to some specialities only, those that stay; the others are hidden.
  std::array<std::string_view, 3> companions;

  [[nodiscard]] bool shows(std::string_view companion) const;
};

// General medicine for a number that has no row.
[[nodiscard]] const Workspace& workspaceOf(int bransNo);

}  // namespace exam

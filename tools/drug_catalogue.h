// A catalogue of drugs as a practice keeps it: substances under their generic names.
#pragma once

#include <span>
#include <string_view>

namespace tools {

// A row of the table `drug`. The insert is the one of the drug's group.
struct CatalogueDrug {
  std::string_view name;
  std::string_view dosage;
  std::string_view number;  // of packages on a prescription
  std::string_view insert;
};
[[nodiscard]] std::span<const CatalogueDrug> catalogueDrugs();

}  // namespace tools

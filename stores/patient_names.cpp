#include "stores/patient_names.h"

#include <algorithm>
#include <utility>

namespace stores {

PatientNames::Name PatientNames::named(std::string_view spelling) {
  wanted_.assign(spelling);
  const auto [known, isNew] = bySpelling_.try_emplace(wanted_);
  if (isNew) known->second = patientNamed(spelling);
  return {known->first, known->second};
}

std::uint32_t PatientNames::patientNamed(std::string_view spelling) {
  const auto next = static_cast<std::uint32_t>(byKey_.size());
  return byKey_.try_emplace(database_.orderKey(spelling), next).first->second;
}

std::vector<std::uint32_t> PatientNames::places() const {
  std::vector<std::pair<std::string_view, std::uint32_t>> ordered(byKey_.begin(), byKey_.end());
  std::ranges::sort(ordered);
  std::vector<std::uint32_t> places(ordered.size());
  std::uint32_t place = 0;
  for (const auto& [key, patient] : ordered) places[patient] = place++;
  return places;
}

}  // namespace stores

// The examinations of invented patients.
#pragma once

#include "tools/card_maker.h"
#include "tools/visit_maker.h"

namespace tools {

// Who examines in this practice.
[[nodiscard]] std::span<const std::string_view> examiners();

class ExamMaker {
 public:
  explicit ExamMaker(std::uint64_t seed) : random_(seed) {}

  // What a save of the examination writes; a column left out is Null.
  [[nodiscard]] Card make(const Patient& patient, const Visit& visit);

 private:
  void put(std::string_view column, dao::Value value);
  void story(const Visit& visit);
  void measurements(const Patient& patient, const Visit& visit);
  void gynecology(const Patient& patient);
  [[nodiscard]] int between(int lowest, int highest);

  Random random_;
  Card card_;
};

}  // namespace tools

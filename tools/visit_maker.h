// The visit ledger of invented patients.
#pragma once

#include <string>
#include <vector>

#include "tools/card_maker.h"

namespace tools {

// One examination.
struct Visit {
  std::int64_t number = 0;
  text::DateTime date;
  int bransNo = 0;
};

// One row of the table `Visit`.
struct LedgerRow {
  std::string key;            // the speciality's word, a backslash and the patient's name
  std::vector<Visit> visits;  // by day

  [[nodiscard]] std::string numbers() const;  // "12;13;"
};

// Numbers the visits of a practice as they come.
class VisitMaker {
 public:
  VisitMaker(std::uint64_t seed, const text::DateTime& reference)
      : random_(seed), reference_(reference) {}

  // Most patients have been here, some in a second speciality as well.
  [[nodiscard]] std::vector<LedgerRow> make(const Patient& patient);

 private:
  [[nodiscard]] LedgerRow row(const Patient& patient, int speciality);

  Random random_;
  text::DateTime reference_;
  std::int64_t lastNumber_ = 0;
};

}  // namespace tools

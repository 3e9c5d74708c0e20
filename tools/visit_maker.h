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
  std::string key;      // the speciality's word, a backslash and the patient's name
  std::string numbers;  // "12;13;"
  int count = 0;
  text::DateTime last;
};

// A patient's examinations under one speciality.
struct Visits {
  LedgerRow ledger;
  std::vector<Visit> days;  // in their order
};

// Numbers the visits of a practice as they come.
class VisitMaker {
 public:
  VisitMaker(std::uint64_t seed, const text::DateTime& reference)
      : random_(seed), reference_(reference) {}

  // Most patients have been here, some in a second speciality as well.
  [[nodiscard]] std::vector<Visits> make(const Patient& patient);

 private:
  [[nodiscard]] Visits visits(const Patient& patient, int speciality);

  Random random_;
  text::DateTime reference_;
  std::int64_t lastNumber_ = 0;
};

}  // namespace tools

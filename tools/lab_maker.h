// Laboratory values of invented patients.
#pragma once

#include <cstdint>
#include <vector>

#include "tools/card_maker.h"
#include "tools/lab_catalogue.h"
#include "tools/visit_maker.h"

namespace tools {

struct LabWork {
  std::vector<Card> values;  // rows of the table `Analyze`
  LedgerRow ledger;          // of the table `Visit`
};

// Numbers the values of a practice as they come.
class LabMaker {
 public:
  LabMaker(std::uint64_t seed, const text::DateTime& reference)
      : random_(seed), reference_(reference) {}

  // A few patients are followed over years: a panel or two, several times a year, with values that
  // drift from one time to the next. Without values for the others.
  [[nodiscard]] LabWork make(const Patient& patient);

 private:
  void addCourse(const Patient& patient, const CatalogueTest& test,
                 const std::vector<text::DateTime>& days, LabWork& work);
  void add(const Patient& patient, const CatalogueTest& test, const text::DateTime& day,
           const std::string& result, LabWork& work);
  [[nodiscard]] std::vector<text::DateTime> days();

  Random random_;
  text::DateTime reference_;
  std::int64_t lastNumber_ = 0;
};

}  // namespace tools

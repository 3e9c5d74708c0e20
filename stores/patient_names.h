// Internal to the rebuild of the ledger: the patients that records name.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "platform/dao/database.h"

namespace stores {

// Tells patients apart as the store tells keys apart. Few names are new, so the store's order is
// asked for each spelling only once.
class PatientNames {
 public:
  struct Name {
    std::string_view spelling;  // lives as long as these names
    std::uint32_t patient = 0;  // counts from 0
  };

  explicit PatientNames(const dao::Database& database) : database_(database) {}

  [[nodiscard]] Name named(std::string_view spelling);
  // By patient: the place in the order of the store.
  [[nodiscard]] std::vector<std::uint32_t> places() const;

 private:
  [[nodiscard]] std::uint32_t patientNamed(std::string_view spelling);

  const dao::Database& database_;
  std::string wanted_;
  std::unordered_map<std::string, std::uint32_t> bySpelling_;
  std::unordered_map<std::string, std::uint32_t> byKey_;
};

}  // namespace stores

#include "tools/visit_maker.h"

#include <algorithm>
#include <functional>

#include "shell/speciality.h"

namespace tools {

namespace {

constexpr int internalMedicine = shell::brans::internalMedicine;
constexpr int pediatrics = shell::brans::pediatrics;
constexpr int gynecology = shell::brans::gynecology;
constexpr int general = shell::brans::general;
constexpr long longestAgo = 3000;  // days

std::string_view word(int number) {
  return std::ranges::find(shell::specialities(), number, &shell::Speciality::BransNo)->BransAdi;
}

int secondSpeciality(const Patient& patient) {
  if (patient.age < 15) return pediatrics;
  return patient.person.sex == Sex::Female ? gynecology : internalMedicine;
}

}  // namespace

std::vector<LedgerRow> VisitMaker::make(const Patient& patient) {
  std::vector<LedgerRow> rows;
  if (random_.percent(80)) rows.push_back(row(patient, general));
  if (random_.percent(30)) rows.push_back(row(patient, secondSpeciality(patient)));
  return rows;
}

LedgerRow VisitMaker::row(const Patient& patient, int speciality) {
  const auto oldest =
      static_cast<std::size_t>(std::min(longestAgo, text::daysBetween(patient.birth, reference_)));
  std::vector<long> ago(1 + random_.ranked(9));
  for (long& days : ago) days = static_cast<long>(random_.ranked(oldest + 1));
  std::ranges::sort(ago, std::greater());
  LedgerRow made{std::string(word(speciality)) + "\\" + patient.person.name, {}};
  for (const long days : ago)
    made.visits.push_back({++lastNumber_, text::addDays(reference_, -days), speciality});
  return made;
}

std::string LedgerRow::numbers() const {
  std::string text;
  for (const Visit& visit : visits) text += std::to_string(visit.number) + ";";
  return text;
}

}  // namespace tools

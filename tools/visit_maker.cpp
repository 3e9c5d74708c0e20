#include "tools/visit_maker.h"

#include <algorithm>

#include "shell/speciality.h"

namespace tools {

namespace {

constexpr int internalMedicine = shell::brans::internalMedicine;
constexpr int pediatrics = 3;
constexpr int gynecology = 4;
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
  LedgerRow made{std::string(word(speciality)) + "\\" + patient.person.name, {}, 0, {}};
  made.count = 1 + static_cast<int>(random_.ranked(9));
  for (int visit = 0; visit < made.count; ++visit) {
    made.numbers += std::to_string(++lastNumber_) + ";";
  }
  const long oldest = std::min(longestAgo, text::daysBetween(patient.birth, reference_));
  const std::size_t ago = random_.ranked(static_cast<std::size_t>(oldest) + 1);
  made.last = text::addDays(reference_, -static_cast<long>(ago));
  return made;
}

}  // namespace tools

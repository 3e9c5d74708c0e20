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

std::vector<Visits> VisitMaker::make(const Patient& patient) {
  std::vector<Visits> all;
  if (random_.percent(80)) all.push_back(visits(patient, general));
  if (random_.percent(30)) all.push_back(visits(patient, secondSpeciality(patient)));
  return all;
}

Visits VisitMaker::visits(const Patient& patient, int speciality) {
  const auto oldest =
      static_cast<std::size_t>(std::min(longestAgo, text::daysBetween(patient.birth, reference_)));
  std::vector<long> ago(1 + random_.ranked(9));
  for (long& days : ago) days = static_cast<long>(random_.ranked(oldest + 1));
  std::ranges::sort(ago, std::greater());
  Visits made;
  made.ledger.key = std::string(word(speciality)) + "\\" + patient.person.name;
  made.ledger.count = static_cast<int>(ago.size());
  for (const long days : ago) {
    made.days.push_back({++lastNumber_, text::addDays(reference_, -days), speciality});
    made.ledger.numbers += std::to_string(lastNumber_) + ";";
  }
  made.ledger.last = made.days.back().date;
  return made;
}

}  // namespace tools

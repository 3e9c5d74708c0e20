#include "tools/lab_maker.h"

#include <algorithm>
#include <cmath>

#include "platform/text/number.h"
#include "shell/speciality.h"
#include "stores/visit_ledger.h"

namespace tools {

namespace {

constexpr unsigned followedPercent = 3;
constexpr int youngest = 8;  // years: a course never begins before birth
constexpr std::string_view word = "GenMed";

const CatalogueTest& testNamed(std::string_view name) {
  return *std::ranges::find(catalogueTests(), name, &CatalogueTest::name);
}

struct Span {
  double low;
  double high;
};

// An end that the range does not have is as far away as the other one.
Span spanOf(const CatalogueTest& test) {
  const double min = text::Val(test.min);
  const double max = test.max.empty() ? min * 2 : text::Val(test.max);
  return {test.min.empty() ? max / 2 : min, max};
}

std::string written(double value, int decimals) {
  constexpr std::string_view pictures[] = {"0", "0.0", "0.00"};
  return text::format(value, pictures[decimals]);
}

}  // namespace

LabWork LabMaker::make(const Patient& patient) {
  LabWork work;
  if (patient.age < youngest || !random_.percent(followedPercent)) return work;
  const std::vector<text::DateTime> when = days();
  const Panel panel = random_.pick(panels());
  for (const std::string_view name : panel) addCourse(patient, testNamed(name), when, work);
  work.ledger.key = stores::ledgerKey(word, stores::kind::laboratory, patient.person.name);
  return work;
}

std::vector<text::DateTime> LabMaker::days() {
  std::vector<text::DateTime> days;
  long ago = static_cast<long>(random_.below(60));
  for (std::size_t left = 3 + random_.below(8); left > 0; --left) {
    days.insert(days.begin(), text::addDays(reference_, -ago));
    ago += 50 + static_cast<long>(random_.below(90));
  }
  return days;
}

// A walk that starts somewhere around the range.
void LabMaker::addCourse(const Patient& patient, const CatalogueTest& test,
                         const std::vector<text::DateTime>& days, LabWork& work) {
  const auto share = [this](std::size_t parts) {
    return static_cast<double>(random_.below(parts));
  };
  const Span span = spanOf(test);
  const double width = span.high - span.low;
  double value = span.low + width * (share(160) - 20) / 100;
  for (const text::DateTime& day : days) {
    if (test.decimals < 0) {
      add(patient, test, day, random_.percent(92) ? "negatif" : "pozitif", work);
      continue;
    }
    value = std::max(span.low / 3, value + width * (share(50) - 25) / 100);
    add(patient, test, day, written(value, test.decimals), work);
  }
}

void LabMaker::add(const Patient& patient, const CatalogueTest& test, const text::DateTime& day,
                   const std::string& result, LabWork& work) {
  work.values.push_back({{"Name", patient.person.name},
                         {"Date", day},
                         {"Count", ++lastNumber_},
                         {"Speciality", shell::brans::general},
                         {"Test", test.name},
                         {"result", result},
                         {"Unit", test.unit},
                         {"Min", test.min},
                         {"Max", test.max}});
  work.ledger.visits.push_back({lastNumber_, day, shell::brans::general});
}

}  // namespace tools

// How quickly the patient finder goes through all cards, without the window that shows it.
// Usage: find_bench [patients of the comparison] [patients of the large practice, 0 for none]
//
// The comparison is with the engine alone: one statement that steps over the same columns of all
// cards and tests nothing. Both are measured in turn; the medians are shown.
#include <malloc.h>
#include <time.h>

#include "bench/bench_desk.h"
#include "bench/lines.h"
#include "platform/dao/engine.h"
#include "platform/text/number.h"
#include "search/frm_find.h"

namespace {

using namespace bench;

constexpr std::size_t rounds = 7;
constexpr double megabyte = 1024.0 * 1024.0;

struct Search {
  const char* what;
  std::vector<std::pair<const char*, const char*>> filters;
  const char* columns;  // what the filters and the rows of the list are made of
};

// Where many fit, the columns of the list are read as well.
constexpr auto allColumns =
    "Name, Key, \"Place of Birth\", Company, Notes, \"Date of Birth\", \"Year of Birth\", Sex, "
    "Profession, email, Telephone1, Telephone2";

const std::vector<Search> searches{
    {"3 filters, few fit",
     {{"Txtİsim", "me"}, {"comdogumyeri", "an"}, {"ComMeslek", "öğret"}},
     "Name, Key, \"Place of Birth\", Profession"},
    {"3 filters on other columns",
     {{"comdogumyeri", "a"}, {"ComKurum", "a"}, {"txtnot", "a"}},
     allColumns},
    {"3 filters, most fit",
     {{"Txtİsim", "e"}, {"TxtSoyisim", "a"}, {"comdogumyeri", "a"}},
     allColumns},
};

struct Run {
  double total = 0;
  double longest = 0;      // slice, on the clock
  double longestWork = 0;  // slice, without the time that other programs had meanwhile
  std::size_t rows = 0;
};

double processorTime() {
  timespec now{};
  clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
  return static_cast<double>(now.tv_sec) * 1e3 + static_cast<double>(now.tv_nsec) / 1e6;
}

// From the press of the button to the last row.
Run searchThrough(Desk& desk, search::FrmFind& finder) {
  Run run;
  const auto slice = [&](auto work) {
    const double begun = processorTime();
    const double time = timed(work);
    run.longestWork = std::max(run.longestWork, processorTime() - begun);
    run.total += time;
    run.longest = std::max(run.longest, time);
  };
  slice([&] { finder.BulListYazTUR(); });
  while (!desk.host.tasks.empty()) {
    const auto task = std::move(desk.host.tasks.front());
    desk.host.tasks.pop_front();
    slice(task);
  }
  run.rows = finder.BulList.rowCount();
  return run;
}

void fill(search::FrmFind& finder, const Search& wanted) {
  finder.alanlaribosalt();
  for (const auto& [name, typed] : wanted.filters)
    dynamic_cast<forms::TextControl&>(*finder.find(name)).setText(typed);
}

std::size_t stepOver(const dao::Database& database, const char* columns) {
  auto statement = database.engine()->prepare(
      std::string("SELECT ") + columns + " FROM IDCard ORDER BY Name", "bench");
  if (!statement) fail(statement.error().text());
  const int count = statement->columnCount();
  std::size_t bytes = 0;
  while (statement->step("bench").value_or(false)) {
    for (int column = 0; column < count; ++column) bytes += statement->text(column).size();
  }
  return bytes;
}

void compare(Desk& desk) {
  search::FrmFind finder(desk.station);
  finder.Load();
  for (const Search& wanted : searches) {
    fill(finder, wanted);
    std::vector<double> ours;
    std::vector<double> engine;
    Run run;
    for (std::size_t round = 0; round < rounds; ++round) {
      run = searchThrough(desk, finder);
      ours.push_back(run.total);
      engine.push_back(timed([&] {
        if (stepOver(desk.station.stores.personal.database, wanted.columns) == 0)
          fail("the engine found nothing");
      }));
    }
    if (run.rows == 0) fail("nobody was found");
    print(atMost(std::string(wanted.what) + ", " + std::to_string(run.rows) + " rows", median(ours),
                 median(engine), 2));
  }
}

double allocated() {
  return static_cast<double>(mallinfo2().uordblks + mallinfo2().hblkhd) / megabyte;
}

void printRun(const char* what, const Run& run) {
  std::printf("%s: %zu rows in %.0f ms\n", what, run.rows, run.total);
  print(belowFrame(std::string(what) + ", longest slice", run.longestWork));
  std::printf("  on the clock, with what else the machine did: %.1f ms\n", run.longest);
}

void measureLarge(Desk& desk) {
  search::FrmFind finder(desk.station);
  std::printf("opening the finder: %.1f ms\n", timed([&] { finder.Load(); }));
  for (const Search& wanted : searches) {
    fill(finder, wanted);
    printRun(wanted.what, searchThrough(desk, finder));
  }
  finder.alanlaribosalt();
  finder.BulList.clearRows();
  const double before = allocated();
  printRun("everybody", searchThrough(desk, finder));
  std::printf("memory of the list: %.0f MB\n", allocated() - before);
}

template <class Measure>
void withPractice(long patients, Measure measure) {
  const TemporaryFolder folder;
  tools::PracticeOptions options;
  options.patients = static_cast<std::size_t>(patients);
  need(tools::makePractice(folder.path(), options));
  std::printf("%ld patients\n", patients);
  Desk desk(folder.path());
  printHeadings();
  measure(desk);
}

}  // namespace

int main(int count, char** words) try {
  const auto few = count > 1 ? text::wholeNumber(words[1]) : 100'000;
  const auto many = count > 2 ? text::wholeNumber(words[2]) : 1'000'000;
  if (!few || *few < 1000 || !many || *many < 0)
    fail("usage: find_bench [patients, 1000 or more] [patients of the large practice]");
  withPractice(*few, compare);
  if (*many > 0) withPractice(*many, measureLarge);
} catch (const std::exception& failure) {
  std::fprintf(stderr, "%s\n", failure.what());
  return 1;
}

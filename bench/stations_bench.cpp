// Several stations at work on one folder, against the bare engine doing the same.
// Usage: stations_bench [stations [seconds [patients]]]
//
// Every station brings random patients onto its card and counts every second visit up in the notes:
// questions, patient lock, all fields, one transaction. The baseline's processes read and write the
// same rows with statements prepared beforehand, under the same settings of the engine, in one
// transaction a save. Both take turns; what the notes count must be what was saved.
#include <sys/sysinfo.h>

#include <array>
#include <atomic>
#include <random>
#include <span>

#include "bench/bench_desk.h"
#include "bench/child.h"
#include "bench/lines.h"
#include "bench/plain_station.h"
#include "platform/text/number.h"

namespace {

using namespace bench;
using Clock = std::chrono::steady_clock;

constexpr int mostStations = 64;
constexpr std::size_t mostTimes = 200'000;
constexpr int turns = 3;
constexpr double goal = 0.7;

// The latencies of one kind of work at one station.
struct Times {
  std::size_t count = 0;
  std::array<float, mostTimes> milliseconds;

  void add(double time) {
    if (count < mostTimes) milliseconds[count++] = static_cast<float>(time);
  }
};

struct Tally {
  Times loads;
  Times saves;
  long errors = 0;
  long elsewhere = 0;  // the patient was on another station's card
};

struct Board {
  std::atomic<int> ready = 0;
  std::atomic<bool> go = false;
  std::array<Tally, mostStations> stations;
};

class OurStation {
 public:
  explicit OurStation(const std::string& folder) : desk_(folder) {}

  bool load(const std::string& name) {
    desk_.station.SeciliHasta = name;
    if (!desk_.main.hastaoku()) return false;
    desk_.main.Eskialanmain();
    return true;
  }
  bool save() {
    desk_.main.txtnot.setText(
        std::to_string(text::wholeNumber(desk_.main.txtnot.text()).value_or(0) + 1));
    desk_.main.mnukaydet.press();
    return !desk_.main.mnukaydet.enabled();
  }

 private:
  Desk desk_;
};

template <class Station>
void work(Station& station, std::span<const std::string> names, unsigned seed, double seconds,
          Tally& tally) {
  std::mt19937 random(seed);
  const auto end = Clock::now() + std::chrono::duration<double>(seconds);
  for (unsigned visit = 0; Clock::now() < end; ++visit) {
    const std::string& name = names[random() % names.size()];
    bool done = false;
    const double loading = timed([&] { done = station.load(name); });
    if (!done) {
      ++tally.elsewhere;
      continue;
    }
    tally.loads.add(loading);
    if (visit % 2 != 0) continue;
    const double saving = timed([&] { done = station.save(); });
    done ? tally.saves.add(saving) : static_cast<void>(++tally.errors);
  }
}

struct Crew {
  int stations;
  double seconds;
  std::string folder;
  std::vector<std::string> names;
};

template <class Station>
void turn(const Crew& crew, Board& board, unsigned number) {
  board.ready = 0;
  board.go = false;
  std::vector<std::unique_ptr<Child>> children;
  for (int i = 0; i < crew.stations; ++i) {
    children.push_back(std::make_unique<Child>([&, i] {
      Station station(crew.folder);
      ++board.ready;
      while (!board.go) ::usleep(200);
      work(station, crew.names, number * 1000 + static_cast<unsigned>(i), crew.seconds,
           board.stations[static_cast<std::size_t>(i)]);
    }));
  }
  while (board.ready < crew.stations) {
    for (const auto& child : children)
      if (!child->isRunning()) fail("a station did not start");
    ::usleep(1000);
  }
  board.go = true;
  for (const auto& child : children) {
    if (!child->await()) fail("a station did not come to its end");
  }
}

// What the notes of all cards count.
long counted(const std::string& folder) {
  auto store = dao::OpenDatabase(folder + "/Data/Personal.mdb");
  if (!store) fail(store.error().text());
  need(store->integrityCheck());
  auto cards = store->OpenRecordset("IDCard");
  if (!cards) fail(cards.error().text());
  long sum = 0;
  for (; !cards->Eof(); need(cards->MoveNext()))
    sum += text::wholeNumber(cards->Fields("Notes").text()).value_or(0);
  return sum;
}

struct Result {
  double perSecond = 0;
  double loads = 0;  // 99 of 100 are quicker, milliseconds
  double saves = 0;
  long errors = 0;
  long elsewhere = 0;
  long saved = 0;
};

double percentile(std::vector<float>& times) {
  if (times.empty()) return 0;
  std::ranges::sort(times);
  return times[times.size() * 99 / 100];
}

Result summed(const Board& board, double seconds) {
  Result sum;
  std::vector<float> loads;
  std::vector<float> saves;
  for (const Tally& tally : board.stations) {
    const auto add = [](std::vector<float>& all, const Times& times) {
      all.insert(all.end(), times.milliseconds.begin(),
                 times.milliseconds.begin() + static_cast<std::ptrdiff_t>(times.count));
    };
    add(loads, tally.loads);
    add(saves, tally.saves);
    sum.errors += tally.errors;
    sum.elsewhere += tally.elsewhere;
  }
  sum.saved = static_cast<long>(saves.size());
  sum.perSecond = static_cast<double>(loads.size() + saves.size()) / seconds;
  sum.loads = percentile(loads);
  sum.saves = percentile(saves);
  return sum;
}

void print(const char* who, const Result& result, long lost) {
  std::printf("%-14s %10.0f %12.2f %12.2f %9ld %9ld %9ld %9ld\n", who, result.perSecond,
              result.loads, result.saves, result.saved, result.elsewhere, result.errors, lost);
}

// Cards whose notes count from nothing.
std::vector<std::string> prepare(const std::string& folder, std::size_t patients) {
  tools::PracticeOptions options;
  options.patients = patients;
  need(tools::makePractice(folder, options));
  auto store = dao::OpenDatabase(folder + "/Data/Personal.mdb");
  if (!store || !store->Execute("UPDATE [IDCard] SET [Notes] = '0', [Key] = ''"))
    fail("the cards cannot be prepared");
  std::vector<std::string> names;
  auto cards = store->OpenRecordset("IDCard");
  for (; cards && !cards->Eof(); need(cards->MoveNext()))
    names.push_back(cards->Fields("Name").text());
  return names;
}

void compare(Crew crew, std::size_t patients) {
  const TemporaryFolder ourFolder;
  const TemporaryFolder plainFolder;
  crew.names = prepare(ourFolder.path(), patients);
  std::filesystem::copy(ourFolder.path(), plainFolder.path(),
                        std::filesystem::copy_options::recursive);
  const Shared<Board> ours;
  const Shared<Board> plain;
  const double seconds = crew.seconds;
  crew.seconds /= turns;
  for (unsigned number = 0; number < turns; ++number) {
    crew.folder = ourFolder.path();
    turn<OurStation>(crew, *ours, number);
    crew.folder = plainFolder.path();
    turn<PlainStation>(crew, *plain, number);
  }
  const Result our = summed(*ours, seconds);
  const Result bare = summed(*plain, seconds);
  std::printf("%-14s %10s %12s %12s %9s %9s %9s %9s\n", "", "per second", "loads p99 ms",
              "saves p99 ms", "saved", "elsewhere", "errors", "lost");
  print("stations", our, our.saved - counted(ourFolder.path()));
  print("bare engine", bare, bare.saved - counted(plainFolder.path()));
  const double ratio = our.perSecond / bare.perSecond;
  std::printf("ratio %.2f   at least %.1f: %s\n", ratio, goal,
              ratio >= goal ? "reached" : "MISSED");
}

// Before every load: whether any of sixteen stations has the patient, against reading their slots.
void measureCheck() {
  constexpr std::size_t stations = 16;
  constexpr int rounds = 2000;
  const TemporaryFolder folder;
  std::filesystem::create_directory(folder.path() + "/Data");
  std::vector<shell::StationRegister> all(stations);
  for (shell::StationRegister& each : all) {
    if (!each.open(folder.path() + "/") || !each.takeSlot()) fail("no slot");
    each.letIn();
    files::NetRecord record;
    record.used = 1;
    record.name = "Hasta Işık " + std::to_string(each.slot());
    need(each.writeOwn(record));
  }
  auto file = files::RecordFile::open(folder.path() + "/Data/net.dat", files::NetRecord::length);
  if (!file) fail(file.error().text());
  std::vector<double> checks;
  std::vector<double> reads;
  for (int round = 0; round < rounds; ++round) {
    checks.push_back(timed([&] {
      const auto lock = all.front().lock();
      if (all.front().isElsewhere("Ayşe Yıldız") != false) fail("nobody has this patient");
    }));
    reads.push_back(timed([&] {
      for (long slot = 1; slot <= static_cast<long>(stations); ++slot)
        if (!file->get(slot)) fail("a slot cannot be read");
    }));
  }
  printHeadings();
  Line line = belowFrame("patient lock over 16 stations", median(checks));
  line.baseline = median(reads);
  bench::print(line);
}

}  // namespace

int main(int count, char** words) try {
  const auto word = [&](int at, long usual) {
    return count > at ? text::wholeNumber(words[at]).value_or(0) : usual;
  };
  const long stations = word(1, 8);
  const long seconds = word(2, 30);
  const long patients = word(3, 2000);
  if (stations < 1 || stations > mostStations || seconds < 1 || patients < 100)
    fail("usage: stations_bench [stations [seconds [patients]]]");
  std::printf("%ld stations, %ld s each, %ld patients, %d processors\n", stations, seconds,
              patients, get_nprocs());
  compare({static_cast<int>(stations), static_cast<double>(seconds), {}, {}},
          static_cast<std::size_t>(patients));
  measureCheck();
} catch (const std::exception& failure) {
  std::fprintf(stderr, "%s\n", failure.what());
  return 1;
}

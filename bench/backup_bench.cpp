// What a checked backup costs over the engine's own compact copy and its check, on one store in one
// run, and for how long a save of another station waits beside it.
// Usage: backup_bench [megabytes [folder]]
#include <sqlite3.h>

#include <atomic>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <string>

#include "bench/child.h"
#include "bench/lines.h"
#include "platform/dao/collation.h"
#include "platform/dao/engine_functions.h"
#include "stores/store_copy.h"
#include "stores/store_kinds.h"
#include "stores/stores.h"

namespace {

namespace fs = std::filesystem;

constexpr double allowedRatio = 1.3;

[[noreturn]] void fail(const std::string& why) {
  std::fprintf(stderr, "%s\n", why.c_str());
  std::exit(1);
}

template <class Work>
double milliseconds(Work work) {
  const auto before = std::chrono::steady_clock::now();
  work();
  return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - before)
      .count();
}

// Examinations with a text each, of patients in no order, so that the indexes have work to do.
void fill(stores::ClinicalStore& clinical, std::int64_t rows) {
  auto transaction = clinical.database.beginTransaction();
  const std::string text(3000, 'x');
  for (std::int64_t row = 0; row < rows; ++row) {
    const std::string patient = "Hasta " + std::to_string(row * 7919 % rows / 10);
    const auto added = clinical.database.Execute(
        "INSERT INTO [Physical Exam]([Count], [Name], [Date], [Speciality], [Therapy]) "
        "VALUES(?, ?, ?, ?, ?)",
        {row, patient, "2026-11-22", std::int64_t{20}, text});
    if (!added) fail(added.error().text());
  }
  if (const auto stored = transaction->commit(); !stored) fail(stored.text());
}

class BareEngine {
 public:
  explicit BareEngine(const fs::path& path) {
    if (sqlite3_open(path.c_str(), &connection_) != SQLITE_OK ||
        dao::addFunctions(connection_, dao::Order::General, collator_) != SQLITE_OK)
      fail("The store cannot be opened.");
    run(std::string(dao::kConnectionSettings));
  }
  BareEngine(const BareEngine&) = delete;
  BareEngine& operator=(const BareEngine&) = delete;
  ~BareEngine() { sqlite3_close(connection_); }
  void run(const std::string& sql) {
    if (sqlite3_exec(connection_, sql.c_str(), nullptr, nullptr, nullptr) != SQLITE_OK)
      fail(sqlite3_errmsg(connection_));
  }

 private:
  dao::Collator collator_{dao::Order::General};
  sqlite3* connection_ = nullptr;
};

void bareCopy(const fs::path& from, const fs::path& to) {
  BareEngine(from).run("VACUUM INTO '" + to.string() + "'");
  BareEngine(to).run("PRAGMA integrity_check");
}

// A station that saves three times a second.
void saveForEver(const fs::path& store, std::atomic<double>& longest) {
  constexpr ::useconds_t between = 300'000;
  auto database = dao::OpenDatabase(store, {.busyTimeout = std::chrono::minutes{5}});
  if (!database) fail(database.error().text());
  for (std::int64_t number = 0;; ++number) {
    const double waited = milliseconds([&] {
      if (!database->Execute("UPDATE [Physical Exam] SET [Therapy] = 'x' WHERE [Count] = ?",
                             {number % 1000}))
        fail("The other station cannot save.");
    });
    longest = std::max(longest.load(), waited);
    ::usleep(between);
  }
}

// Milliseconds.
double longestSaveBeside(const fs::path& store, const fs::path& copy, dao::Others others) {
  const bench::Shared<std::atomic<double>> longest;
  const bench::Child station([&] { saveForEver(store, *longest); });
  if (const auto copied = stores::copyStore(store, copy, {}, others); !copied) fail(copied.text());
  return *longest;
}

}  // namespace

int main(int argc, char** argv) {
  const std::int64_t megabytes = argc > 1 ? std::atoll(argv[1]) : 200;
  const fs::path folder = fs::path(argc > 2 ? argv[2] : fs::temp_directory_path().string()) /
                          ("backup-bench-" + std::to_string(megabytes));
  fs::create_directories(folder / "Data");
  stores::Stores stores;
  stores.folder = folder.string() + "/";
  if (const auto opened = stores::OpenStores(stores); !opened) fail(opened.text());
  constexpr std::int64_t rowsPerMegabyte = 310;
  fill(stores.clinical, megabytes * rowsPerMegabyte);
  const fs::path store = stores::dataFile(folder, stores::clinicalKind);
  std::printf("store of %.0f MB\n", static_cast<double>(fs::file_size(store)) / 1e6);
  // Each is measured behind a copy that warms the caches.
  bareCopy(store, folder / "warm.mdb");
  fs::remove(folder / "warm.mdb");
  const double bare = milliseconds([&] { bareCopy(store, folder / "bare.mdb"); });
  fs::remove(folder / "bare.mdb");
  const double ours = milliseconds([&] {
    if (const auto copied = stores::copyStore(store, folder / "copy.mdb"); !copied)
      fail(copied.text());
  });
  bench::printHeadings();
  const bench::Line line = bench::atMost("checked backup", ours, bare, allowedRatio);
  bench::print(line);
  const double beside = longestSaveBeside(store, folder / "copy.mdb", dao::Others::Wait);
  const double going = longestSaveBeside(store, folder / "copy.mdb", dao::Others::GoOn);
  bench::print(bench::atMost("longest save beside one that lets others work", going, beside, 1));
  stores::CloseStores(stores);
  fs::remove_all(folder);
  return line.reached ? 0 : 1;
}

// What the visit ledger costs over the bare engine: each line is a ratio of two times measured in
// turn on one file. Usage: ledger_bench [records [folder]]
#include <sqlite3.h>
#include <sys/resource.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <functional>
#include <random>
#include <string>
#include <vector>

#include "platform/dao/collation.h"
#include "platform/dao/engine_functions.h"
#include "stores/clinical_schema.h"
#include "stores/store_file.h"
#include "stores/visit_ledger.h"

namespace {

using Clock = std::chrono::steady_clock;
using Milliseconds = std::chrono::duration<double, std::milli>;

constexpr std::array kKinds{
    &stores::kind::examination, &stores::kind::operation,        &stores::kind::angiography,
    &stores::kind::growth,      &stores::kind::echocardiography, &stores::kind::exerciseTest,
    &stores::kind::vaccination, &stores::kind::pregnancyControl, &stores::kind::pregnancy,
    &stores::kind::lens,        &stores::kind::pathology,        &stores::kind::laboratory};
constexpr std::array kGiven{"Ayşe",  "Mehmet", "İsmail", "Zeynep", "ismet",  "Şule", "Ahmet",
                            "Fatma", "Işıl",   "Burak",  "Çiğdem", "Emine",  "Elif", "Hüseyin",
                            "Ömer",  "Ümit",   "Ali",    "Hatice", "Mustafa"};
constexpr const char* kFrequent = "Gülten Sık Gelen";
constexpr std::size_t kFrequentRecords = 200;

class Failure {};

void need(bool done, const char* what, const std::string& text = "") {
  if (done) return;
  std::fprintf(stderr, "%s: %s\n", what, text.c_str());
  throw Failure();
}

template <class T>
T need(dao::Result<T> result, const char* what) {
  need(result.has_value(), what, result ? "" : result.error().text());
  return std::move(*result);
}

void need(const dao::Status& status, const char* what) {
  need(status.ok(), what, status.text());
}

double timed(const std::function<void()>& work) {
  const auto start = Clock::now();
  work();
  return Milliseconds(Clock::now() - start).count();
}

double median(std::vector<double> times) {
  std::ranges::nth_element(times, times.begin() + static_cast<std::ptrdiff_t>(times.size() / 2));
  return times[times.size() / 2];
}

// Both in turn, so that what else the machine does falls on both. The median time of the ledger.
double compare(const std::string& title, double goal, int rounds,
               const std::function<void()>& ledger, const std::function<void()>& bare) {
  std::vector<double> ledgerTimes;
  std::vector<double> bareTimes;
  for (int round = 0; round < rounds; ++round) {
    bareTimes.push_back(timed(bare));
    ledgerTimes.push_back(timed(ledger));
  }
  const double time = median(ledgerTimes);
  const double bareTime = median(bareTimes);
  std::printf("%-44s %10.3f ms %10.3f ms %7.2f   (goal %.1f)\n", title.c_str(), time, bareTime,
              time / bareTime, goal);
  std::fflush(stdout);
  return time;
}

// The engine without the seam, with the same settings.
class Bare {
 public:
  explicit Bare(const std::filesystem::path& path) : collator_(dao::Order::General) {
    constexpr int kFlags = SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX;
    check(sqlite3_open_v2(path.c_str(), &handle_, kFlags, nullptr));
    check(addFunctions(handle_, dao::Order::General, collator_));
    run(dao::kConnectionSettings.data());
  }
  Bare(const Bare&) = delete;
  Bare& operator=(const Bare&) = delete;
  ~Bare() {
    while (sqlite3_stmt* statement = sqlite3_next_stmt(handle_, nullptr))
      sqlite3_finalize(statement);
    sqlite3_close(handle_);
  }
  sqlite3_stmt* prepare(const std::string& sql) {
    sqlite3_stmt* statement = nullptr;
    check(sqlite3_prepare_v2(handle_, sql.c_str(), -1, &statement, nullptr));
    return statement;
  }
  void run(const std::string& sql) {
    check(sqlite3_exec(handle_, sql.c_str(), nullptr, nullptr, nullptr));
  }
  void check(int code) { need(code == SQLITE_OK, "engine", sqlite3_errmsg(handle_)); }

 private:
  sqlite3* handle_ = nullptr;
  dao::Collator collator_;
};

std::string textAt(sqlite3_stmt* statement, int column) {
  const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(statement, column));
  return text ? text : "";
}

// As many patients as records in ten.
std::string nameOf(std::size_t number, std::size_t records) {
  const std::size_t patient = number * 2654435761u % std::max<std::size_t>(records / 10, 1);
  return std::string(kGiven[patient % kGiven.size()]) + " Yılmazoğlu " + std::to_string(patient);
}

struct Filler {
  Bare& bare;
  std::array<std::size_t, kKinds.size()> last{};

  void add(std::size_t kind, const std::string& name, std::size_t number) {
    const std::string date = text::isoText(text::fromDayNumber(36'000 + long(number % 9000)));
    sqlite3_stmt* insert = statements[kind];
    sqlite3_bind_int64(insert, 1, static_cast<sqlite3_int64>(++last[kind]));
    sqlite3_bind_text(insert, 2, name.c_str(), -1, SQLITE_TRANSIENT);
    sqlite3_bind_text(insert, 3, date.c_str(), -1, SQLITE_TRANSIENT);
    sqlite3_bind_int(insert, 4, static_cast<int>(number % 12) + 1);
    need(sqlite3_step(insert) == SQLITE_DONE, "insert");
    sqlite3_reset(insert);
  }
  std::vector<sqlite3_stmt*> statements = prepared();

 private:
  // Half of an examination is text.
  std::vector<sqlite3_stmt*> prepared() {
    std::vector<sqlite3_stmt*> all;
    for (const stores::RecordKind* kind : kKinds) {
      const bool exam = kind == &stores::kind::examination;
      all.push_back(bare.prepare(
          "INSERT INTO \"" + std::string(kind->table) + "\"(Count, Name, Date, Speciality" +
          (exam ? ", Complain, History) VALUES(?,?,?,?,'" + std::string(250, 'k') + "','" +
                      std::string(250, 'h') + "')"
                : ") VALUES(?,?,?,?)")));
    }
    return all;
  }
};

// Four records in ten are examinations.
void fill(Bare& bare, std::size_t records) {
  Filler filler{bare};
  bare.run("BEGIN");
  const std::size_t step = records / kFrequentRecords;
  for (std::size_t number = 0; number < records; ++number) {
    const std::size_t kind = number % 20 < 8 ? 0 : number % kKinds.size();
    if (step > 0 && number % step == 0) {
      filler.add(0, kFrequent, 1);
    } else {
      filler.add(kind, nameOf(number, records), number);
    }
  }
  bare.run("COMMIT");
}

std::size_t bytesRead = 0;  // keeps the reading from being left out

void readRecords(const std::vector<sqlite3_stmt*>& selects) {
  for (sqlite3_stmt* select : selects) {
    while (sqlite3_step(select) == SQLITE_ROW) {
      sqlite3_column_text(select, 3);
      bytesRead += static_cast<std::size_t>(sqlite3_column_bytes(select, 3)) +
                   static_cast<std::size_t>(sqlite3_column_int64(select, 0)) +
                   static_cast<std::size_t>(sqlite3_column_int64(select, 2)) + textAt(select, 1)[0];
    }
    sqlite3_reset(select);
  }
}

using LedgerText = std::array<std::string, 4>;

std::vector<LedgerText> ledgerOf(Bare& bare) {
  std::vector<LedgerText> rows;
  sqlite3_stmt* select = bare.prepare("SELECT * FROM Visit ORDER BY spname");
  while (sqlite3_step(select) == SQLITE_ROW) {
    LedgerText& row = rows.emplace_back();
    for (int column = 0; column < 4; ++column)
      row[static_cast<std::size_t>(column)] = textAt(select, column);
  }
  sqlite3_finalize(select);
  return rows;
}

void writeLedger(Bare& bare, sqlite3_stmt* insert, const std::vector<LedgerText>& rows) {
  bare.run("BEGIN IMMEDIATE; DELETE FROM Visit");
  for (const LedgerText& row : rows) {
    for (int column = 0; column < 4; ++column) {
      const std::string& text = row[static_cast<std::size_t>(column)];
      sqlite3_bind_text(insert, column + 1, text.data(), static_cast<int>(text.size()),
                        SQLITE_STATIC);
    }
    need(sqlite3_step(insert) == SQLITE_DONE, "insert");
    sqlite3_reset(insert);
  }
  bare.run("COMMIT");
}

long peakMemory() {
  rusage usage{};
  ::getrusage(RUSAGE_SELF, &usage);
  return usage.ru_maxrss / 1024;
}

double benchRebuild(stores::ClinicalStore& clinical, Bare& bare, std::size_t records, int rounds) {
  const long before = peakMemory();
  need(stores::vizitolustur(clinical), "vizitolustur");
  std::printf("%zu records: the rebuild took %ld MB of memory\n", records, peakMemory() - before);
  const std::vector<LedgerText> rows = ledgerOf(bare);
  std::vector<sqlite3_stmt*> selects;
  for (const stores::RecordKind* kind : kKinds) {
    selects.push_back(bare.prepare("SELECT Count, Date, Speciality, Name FROM \"" +
                                   std::string(kind->table) + "\" ORDER BY Count"));
  }
  sqlite3_stmt* insert = bare.prepare("INSERT INTO Visit VALUES(?,?,?,?)");
  return compare(
      "rebuild, " + std::to_string(records) + " records, " + std::to_string(rows.size()) + " rows",
      3, rounds, [&] { need(stores::vizitolustur(clinical), "vizitolustur"); },
      [&] {
        readRecords(selects);
        writeLedger(bare, insert, rows);
      });
}

void barePatient(Bare& bare, sqlite3_stmt* row, const std::string& key) {
  sqlite3_bind_text(row, 1, key.c_str(), -1, SQLITE_STATIC);
  need(sqlite3_step(row) == SQLITE_ROW, "ledger row");
  std::string numbers = textAt(row, 0);
  sqlite3_reset(row);
  need(!numbers.empty(), "numbers");
  numbers.pop_back();
  std::ranges::replace(numbers, ';', ',');
  sqlite3_stmt* select =
      bare.prepare("SELECT Count, Date FROM \"Physical Exam\" WHERE Count IN (" + numbers + ")");
  std::size_t found = 0;
  for (; sqlite3_step(select) == SQLITE_ROW; ++found) bytesRead += textAt(select, 1).size();
  sqlite3_finalize(select);
  need(found >= kFrequentRecords, "records");
}

void benchPatient(stores::ClinicalStore& clinical, Bare& bare) {
  constexpr int kRepeated = 100;
  const std::string key = stores::ledgerKey("Surgery", stores::kind::examination, kFrequent);
  sqlite3_stmt* row = bare.prepare("SELECT \"Visit Numbers\" FROM Visit WHERE spname = ?");
  const auto ledger = [&] {
    for (int time = 0; time < kRepeated; ++time) {
      const auto numbers = need(stores::readLedgerRow(clinical.Visit, key), "readLedgerRow");
      const auto listed =
          need(stores::listedRecords(clinical.database, stores::kind::examination, numbers.numbers),
               "listedRecords");
      need(listed.size() >= kFrequentRecords, "records");
    }
  };
  compare("100 times the dates of a patient, 200 records", 2, 15, ledger, [&] {
    for (int time = 0; time < kRepeated; ++time) barePatient(bare, row, key);
  });
}

// The time of a rebuild.
double bench(const std::filesystem::path& path, std::size_t records, int rounds) {
  std::filesystem::remove(path);
  stores::ClinicalStore clinical;
  clinical.database =
      need(stores::createStore(path, dao::Order::General, stores::clinicalSchema()), "createStore");
  clinical.Visit = need(clinical.database.OpenRecordset("Visit"), "OpenRecordset");
  double time = 0;
  {
    Bare bare(path);
    fill(bare, records);
    time = benchRebuild(clinical, bare, records, rounds);
    benchPatient(clinical, bare);
  }
  clinical.database.Close();
  std::filesystem::remove(path);
  return time;
}

void run(int count, char** values) {
  constexpr std::size_t kTenth = 10;
  const std::size_t records = count > 1 ? std::strtoul(values[1], nullptr, 10) : 1'000'000;
  const std::filesystem::path folder =
      count > 2 ? values[2] : std::filesystem::temp_directory_path();
  const std::filesystem::path path = folder / "ledger_bench.mdb";
  std::printf("%-44s %13s %13s %7s\n", "", "ledger", "bare engine", "ratio");
  const double few = bench(path, records / kTenth, 9);
  const double many = bench(path, records, 5);
  std::printf("ten times the records take %.1f times as long (goal 12)\n", many / few);
  std::printf("(%zu)\n", bytesRead % 10);
}

}  // namespace

int main(int count, char** values) {
  try {
    run(count, values);
  } catch (const Failure&) {
    return 1;
  }
  return 0;
}

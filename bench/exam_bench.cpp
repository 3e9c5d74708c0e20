// What the examination costs over the bare engine: each line compares the screen with the reads
// that it cannot do without, made on the same file in turn; medians. The last lines measure work
// that a user waits for. Usage: exam_bench [examinations]
#include <sqlite3.h>

#include "bench/bench_desk.h"
#include "exam/frm_exam.h"
#include "platform/dao/engine_functions.h"
#include "platform/text/number.h"
#include "stores/old_fees.h"
#include "stores/visit_ledger.h"

namespace {

using namespace bench;

constexpr auto frequent = "Gülten Sık Gelen";
constexpr auto otherPatient = "Nâzım Öbürü";
constexpr long frequentVisits = 1000;
constexpr long otherVisits = 200;
constexpr std::size_t rounds = 31;

void needDone(const dao::Result<std::int64_t>& done) {
  if (!done) fail(done.error().text());
}

// Every so often one of the frequent patient's, and of the other two's, among everybody else's.
void fillStore(stores::ClinicalStore& clinical, long records) {
  auto transaction = clinical.database.beginTransaction();
  if (!transaction) fail(transaction.error().text());
  needDone(clinical.database.Execute(
      "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < ?1) "
      "INSERT INTO [Physical Exam] ([Count], [Name], [Date], [Speciality], [Complain], [History], "
      "[Past Illness], [Diagnosis], [Therapy], [Pulse], [Fee]) SELECT i, "
      "CASE WHEN i % ?2 = 7 THEN ?3 WHEN i % ?4 = 11 THEN ?5 WHEN i % ?4 = 13 THEN ?5 || ' 2' "
      "ELSE 'Mehmet Yılmaz ' || (i * 7919 % 50000) END, date('2010-01-01', (i % 6000) || ' days'), "
      "20, 'Baş ağrısı, halsizlik', 'Üç gündür süren yakınma, ateş yok. ' || hex(zeroblob(60)), "
      "'Astım', 'Migren', 'Parasetamol 500 mg 3x1', '72', '250.00' FROM n",
      {records, records / frequentVisits, frequent, records / otherVisits, otherPatient}));
  need(transaction->commit());
  need(stores::vizitolustur(clinical));
}

// The engine without the seam, with the same settings.
class Bare {
 public:
  explicit Bare(const std::string& path) : collator_(dao::Order::General) {
    check(sqlite3_open_v2(path.c_str(), &handle_, SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX,
                          nullptr));
    check(dao::addFunctions(handle_, dao::Order::General, collator_));
    check(sqlite3_exec(handle_, dao::kConnectionSettings.data(), nullptr, nullptr, nullptr));
    ledger_ = prepare("SELECT [Visit Numbers] FROM Visit WHERE spname = ?");
    record_ = prepare("SELECT * FROM [Physical Exam] WHERE [Count] = ?");
  }
  Bare(const Bare&) = delete;
  Bare& operator=(const Bare&) = delete;
  ~Bare() {
    sqlite3_finalize(ledger_);
    sqlite3_finalize(record_);
    sqlite3_close(handle_);
  }

  // One row of the ledger and the dates of what it lists.
  std::string readDates(const std::string& key) {
    sqlite3_bind_text(ledger_, 1, key.c_str(), -1, SQLITE_STATIC);
    if (sqlite3_step(ledger_) != SQLITE_ROW) fail("no ledger row");
    std::string numbers = reinterpret_cast<const char*>(sqlite3_column_text(ledger_, 0));
    sqlite3_reset(ledger_);
    numbers.pop_back();
    std::ranges::replace(numbers, ';', ',');
    sqlite3_stmt* const dates =
        prepare("SELECT [Count], [Date] FROM [Physical Exam] WHERE [Count] IN (" + numbers + ")");
    while (sqlite3_step(dates) == SQLITE_ROW) read_ += sqlite3_column_text(dates, 1)[0];
    sqlite3_finalize(dates);
    return numbers;
  }
  // One whole record.
  void readRecord(const std::string& number) {
    sqlite3_bind_text(record_, 1, number.c_str(), -1, SQLITE_STATIC);
    if (sqlite3_step(record_) != SQLITE_ROW) fail("no record");
    for (int column = 0; column < sqlite3_column_count(record_); ++column) {
      if (const auto* text = sqlite3_column_text(record_, column)) read_ += text[0];
    }
    sqlite3_reset(record_);
  }
  [[nodiscard]] long read() const { return read_; }

 private:
  sqlite3_stmt* prepare(const std::string& sql) {
    sqlite3_stmt* statement = nullptr;
    check(sqlite3_prepare_v2(handle_, sql.c_str(), -1, &statement, nullptr));
    return statement;
  }
  void check(int code) {
    if (code != SQLITE_OK) fail(sqlite3_errmsg(handle_));
  }

  sqlite3* handle_ = nullptr;
  sqlite3_stmt* ledger_ = nullptr;
  sqlite3_stmt* record_ = nullptr;
  dao::Collator collator_;
  long read_ = 0;
};

template <class Ours, class Raw>
void compare(const char* what, double goal, Ours ours, Raw raw) {
  std::vector<double> times;
  std::vector<double> bare;
  for (std::size_t round = 0; round < rounds; ++round) {
    bare.push_back(timed(raw));
    times.push_back(timed(ours));
  }
  const double ratio = median(times) / median(bare);
  std::printf("%-58s %9.3f ms %9.3f ms %6.2f   (goal %.1f: %s)\n", what, median(times),
              median(bare), ratio, goal, ratio <= goal ? "reached" : "MISSED");
}

std::string keyOf(const char* patient) {
  return stores::ledgerKey("GenMed", stores::kind::examination, patient);
}

void measureOpening(Desk& desk, Bare& bare) {
  desk.station.SeciliHasta = frequent;
  compare(
      "open the examination of a patient who was here 1000 times", 2,
      [&] {
        exam::FrmExam screen(desk.station);
        screen.Load();
        if (screen.liste.count() < frequentVisits) fail("the list is short");
      },
      [&] {
        const std::string numbers = bare.readDates(keyOf(frequent));
        bare.readRecord(numbers.substr(numbers.rfind(',') + 1));
      });
}

void measureChange(Desk& desk, Bare& bare) {
  exam::FrmExam screen(desk.station);
  screen.Load();
  const std::array<std::string, 2> names{otherPatient, std::string(otherPatient) + " 2"};
  std::size_t turn = 0;
  compare(
      "change to a patient with 200 records", 2,
      [&] {
        screen.lblisim.setCaption(names.at(++turn % 2));
        if (screen.liste.count() < otherVisits) fail("the list is short");
      },
      [&] { bare.readDates(keyOf(names[0].c_str())); });
}

void measureListing(Desk& desk) {
  desk.station.SeciliHasta = frequent;
  exam::FrmExam screen(desk.station);
  screen.Load();
  std::printf("%-58s %9.3f ms\n", "write out the 1000 examinations of a patient",
              timed([&] { screen.mnumuayenedökümü.press(); }));
}

void measureConversion(stores::ClinicalStore& clinical, long rows) {
  needDone(clinical.database.Execute(
      "UPDATE [Physical Exam] SET [Fee] = '250000' WHERE [Count] <= ?", {rows}));
  std::int64_t changed = 0;
  const double time = timed([&] {
    const auto converted = stores::ConvertOldFees(clinical);
    needDone(converted);
    changed = *converted;
  });
  std::printf("%-58s %9.3f ms\n",
              ("convert " + std::to_string(changed) + " fees of " +
               std::to_string(clinical.PhysicalExam.RecordCount()))
                  .c_str(),
              time);
}

void run(long records) {
  const TemporaryFolder folder;
  Desk desk(folder.path());
  fillStore(desk.station.stores.clinical, records);
  Bare bare(folder.path() + "/Data/Sanavel.mdb");
  std::printf("%ld examinations\n%-58s %12s %12s %6s\n", records, "", "screen", "bare engine",
              "ratio");
  measureOpening(desk, bare);
  measureChange(desk, bare);
  measureListing(desk);
  measureConversion(desk.station.stores.clinical, 100'000);
  std::printf("(%ld)\n", bare.read() % 10);
}

}  // namespace

int main(int count, char** words) try {
  const auto records = count > 1 ? text::wholeNumber(words[1]) : 1'000'000;
  if (!records || *records < 10'000) fail("usage: exam_bench [examinations, 10000 or more]");
  run(*records);
} catch (const std::exception& failure) {
  std::fprintf(stderr, "%s\n", failure.what());
  return 1;
}

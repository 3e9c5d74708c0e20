// The ledger under several stations, and under a rebuild that dies.
#include <signal.h>
#include <sys/time.h>
#include <unistd.h>

#include <chrono>
#include <map>
#include <random>
#include <set>

#include "tests/platform/files/child_process.h"
#include "tests/stores/visit_fixture.h"

namespace stores {
namespace {

constexpr std::string_view word = "Surgery";
constexpr std::array patients{"Ayşe Işık", "Ayşe Işık*", "Çağ Öz"};
constexpr int savesOfAStation = 60;
constexpr int mostAttempts = 20;  // each waits for as long as the store is willing to
constexpr std::chrono::minutes longestRun{5};

// One save of a record screen: all of it is one transaction.
dao::Status save(ClinicalStore& clinical, std::string_view patient, int visits) {
  auto transaction = clinical.database.beginTransaction();
  if (!transaction) return transaction.error();
  const Visited visited{std::string(patient), day(28 - visits % 28)};
  if (addRecord(clinical, kind::examination, visited) == 0)
    return {dao::Fault::Other, "the record could not be written"};
  const auto records = patientRecords(clinical.database, kind::examination, patient, 2);
  if (!records) return records.error();
  const LedgerRow row{numbersOf(records), records->back().date};
  const dao::Status written =
      writeLedgerRow(clinical.Visit, ledgerKey(word, kind::examination, patient), row);
  return written ? transaction->commit() : written;
}

// A disk that takes its time keeps a station waiting for longer than it is willing to; then its
// user is told to try again.
bool mayTryAgain(const dao::Status& status) {
  EXPECT_TRUE(status || status.fault() == dao::Fault::Busy) << status.text();
  return status.fault() == dao::Fault::Busy;
}

bool saveInATightLoop(const std::string& folder, Signal& start) {
  Stores stores;
  stores.folder = folder + "/";
  if (!OpenStores(stores) || !start.await()) return false;
  for (int visits = 0; visits < savesOfAStation; ++visits) {
    const auto patient = static_cast<std::size_t>(visits) % patients.size();
    dao::Status saved = save(stores.clinical, patients[patient], visits);
    for (int attempt = 1; attempt < mostAttempts && mayTryAgain(saved); ++attempt)
      saved = save(stores.clinical, patients[patient], visits);
    if (!saved) return false;
  }
  return true;
}

// Whether it is whole: no record twice, none that is not there.
bool isListOf(const dao::Result<std::vector<DatedRecord>>& records, const LedgerRow& row) {
  const std::vector<std::int64_t> listed = numbersOf(records);
  EXPECT_EQ(listed, row.numbers);
  const std::set<std::int64_t> distinct(listed.begin(), listed.end());
  return listed == row.numbers && distinct.size() == listed.size();
}

// The number of entries, nothing when another station is in the way, -1 when the list is torn.
std::optional<int> lengthOfList(ClinicalStore& clinical, std::string_view patient) {
  const auto row = readLedgerRow(clinical.Visit, ledgerKey(word, kind::examination, patient));
  if (!row && mayTryAgain(row.error())) return std::nullopt;
  if (!row) return -1;
  const auto records = listedRecords(clinical.database, kind::examination, row->numbers);
  if (!records && mayTryAgain(records.error())) return std::nullopt;
  return isListOf(records, *row) ? static_cast<int>(row->numbers.size()) : -1;
}

// Until every save has come through; a station that died never brings the rest.
bool readListsAllTheTime(const std::string& folder, Signal& start) {
  Stores stores;
  stores.folder = folder + "/";
  if (!OpenStores(stores) || !start.await()) return false;
  std::map<std::string_view, int> seen;
  const auto end = std::chrono::steady_clock::now() + longestRun;
  for (int total = 0; total < 2 * savesOfAStation;) {
    if (std::chrono::steady_clock::now() > end) return false;
    total = 0;
    for (const std::string_view patient : patients) {
      const int length = lengthOfList(stores.clinical, patient).value_or(seen[patient]);
      if (length < seen[patient]) return false;
      seen[patient] = length;
      total += length;
    }
  }
  return true;
}

class VisitStationsTest : public VisitTest {
 protected:
  // A process must not inherit an open store.
  void SetUp() override {
    VisitTest::SetUp();
    CloseStores(stores_);
  }
};

TEST_F(VisitStationsTest, TwoThatSaveAtOnceLoseNothing) {
  Signal start;
  ChildProcess reader([&] { return readListsAllTheTime(folder_.path(), start); });
  ChildProcess one([&] { return saveInATightLoop(folder_.path(), start); });
  ChildProcess other([&] { return saveInATightLoop(folder_.path(), start); });
  ASSERT_TRUE(start.give() && start.give() && start.give());
  ASSERT_TRUE(one.succeeded());
  ASSERT_TRUE(other.succeeded());
  EXPECT_TRUE(reader.succeeded());
  open();
  EXPECT_EQ(stores_.clinical.PhysicalExam.RecordCount(), 2 * savesOfAStation);
  for (const std::string_view patient : patients) {
    const auto held = patientRecords(database(), kind::examination, patient, 2);
    EXPECT_EQ(readLedgerRow(visit(), ledgerKey(word, kind::examination, patient))->numbers,
              numbersOf(held));
    EXPECT_EQ(held->size(), 2 * savesOfAStation / patients.size());
  }
}

// Ends like a power cut after that time.
void dieIn(std::chrono::microseconds delay) {
  ::signal(SIGALRM, [](int) { ::kill(::getpid(), SIGKILL); });
  const itimerval once{{0, 0}, {0, delay.count()}};
  ::setitimer(ITIMER_REAL, &once, nullptr);
}

class VisitCrashTest : public VisitStationsTest {
 protected:
  using Clock = std::chrono::steady_clock;

  void SetUp() override {
    VisitTest::SetUp();
    auto transaction = database().beginTransaction();
    for (int count = 0; count < 1500; ++count) {
      const std::string name = "Hasta " + std::to_string(count % 700);
      ASSERT_NE(addRecord(stores_.clinical, kind::laboratory, {name, day(1)}), 0);
      ASSERT_TRUE(writeLedgerRow(visit(), "Eski\\" + name, {{count}, day(2)}));
    }
    ASSERT_TRUE(transaction->commit());
    old_ = ledger();
    CloseStores(stores_);
    bytes_ = bytesOf(folder_ / clinicalPath);
    open();
    const auto begun = Clock::now();
    ASSERT_TRUE(vizitolustur(stores_.clinical));
    whole_ = std::chrono::duration_cast<std::chrono::microseconds>(Clock::now() - begun);
    new_ = ledger();
  }
  void goBack() {
    CloseStores(stores_);
    writeBytes(folder_ / clinicalPath, bytes_);
  }
  bool rebuildAndDie(std::chrono::microseconds delay) {
    auto database = dao::OpenDatabase(folder_ / clinicalPath);
    if (!database) return false;
    ClinicalStore clinical;
    clinical.database = std::move(*database);
    dieIn(delay);
    return vizitolustur(clinical).ok();
  }

  Rows old_;
  Rows new_;
  std::string bytes_;
  std::chrono::microseconds whole_{};
};

TEST_F(VisitCrashTest, AKilledRebuildLeavesTheOldLedgerOrTheNewOne) {
  std::mt19937 random(6);
  int leftOld = 0;
  goBack();
  for (int round = 0; round < 100; ++round) {
    SCOPED_TRACE(round);
    const auto delay = std::chrono::microseconds(1) + whole_ * (random() % 1000) / 900;
    {
      static_cast<void>(ChildProcess([&] { return rebuildAndDie(delay); }).succeeded());
    }
    open();
    const dao::Status sound = database().integrityCheck();
    ASSERT_TRUE(sound) << sound.text();
    const Rows rows = ledger();
    ASSERT_TRUE(rows == old_ || rows == new_) << rows.size();
    leftOld += rows == old_ ? 1 : 0;
    if (rows == new_) {
      goBack();
    } else {
      CloseStores(stores_);
    }
  }
  EXPECT_GT(leftOld, 10);
}

}  // namespace
}  // namespace stores

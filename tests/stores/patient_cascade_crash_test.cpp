// Renames and deletes that end in the middle: in all files or in none.
#include <chrono>
#include <random>
#include <thread>

#include "tests/stores/crash_support.h"
#include "tests/stores/patient_cascade_fixture.h"

namespace stores {
namespace {

constexpr int kills = 60;

std::string patient(int number) {
  return "Çağrı Işık " + std::to_string(number);
}

// No more than the work needs, as stations are started by the hundred.
Stores openFew(const std::string& folder) {
  Stores stores;
  stores.folder = folder + "/";
  stores.personal.database = dao::OpenDatabase(stores.folder + personalPath).value();
  stores.personal.IDCard = stores.personal.database.OpenRecordset("IDCard").value();
  stores.clinical.database = dao::OpenDatabase(stores.folder + clinicalPath).value();
  return stores;
}

class CascadeCrashTest : public testing::Test {
 protected:
  CascadeCrashTest() {
    Stores stores = storesOf(folder_);
    EXPECT_TRUE(OpenStores(stores));
    EXPECT_TRUE(CreateSmokingStore(stores.folder));
  }

  // Lets the work run in a process of its own, which tells each step that it has done, and ends it
  // somewhere in the step behind the `steps` first ones, however fast or slow the disk is.
  template <class Work>
  void interrupt(int steps, Work work) {
    using Clock = std::chrono::steady_clock;
    Counter done;
    ChildProcess station([&] {
      Stores stores = openFew(folder_.path());
      return done.send(0) && work(stores, done);
    });
    for (int step = 0; step <= steps; ++step) {
      const auto begun = Clock::now();
      ASSERT_GE(done.receive(), 0);
      if (step > 0) stepTime_ = Clock::now() - begun;
    }
    const auto moment = Clock::now() + stepTime_ * (random_() % 100) / 100;
    while (Clock::now() < moment) std::this_thread::yield();  // the station needs a processor
    station.kill();
    std::error_code none;
    const auto journal = std::filesystem::file_size(folder_ / "Data/Sanavel.mdb-journal", none);
    interrupted_ += !none && journal > 0;
  }

  static void expectSound(Stores& stores) {
    for (dao::Database* store : {&stores.personal.database, &stores.clinical.database}) {
      const dao::Status sound = store->integrityCheck();
      EXPECT_TRUE(sound) << sound.text();
    }
  }

  ProgramFolder folder_{inMemory()};
  std::minstd_rand random_{42};
  std::chrono::steady_clock::duration stepTime_ = std::chrono::milliseconds(4);
  int interrupted_ = 0;  // how often the work was in the middle of a transaction
};

// The rows of one patient: those that carry the name are all rows there are.
void expectWhole(Stores& stores, const std::string& name, const Census& whole) {
  EXPECT_EQ(census(stores, name), whole);
  const auto numbers = numberOf(stores.clinical.database,
                                "SELECT count(*) FROM [Visit] v, [Physical Exam] p WHERE "
                                "v.[spname] = 'GenMed\\' || ?1 AND p.[Name] = ?1 AND "
                                "instr(';' || v.[Visit Numbers], ';' || p.[Count] || ';') > 0",
                                {name});
  EXPECT_EQ(numbers, 2) << "the ledger names the records";
}

TEST_F(CascadeCrashTest, ARenameIsInEveryTableOrInNone) {
  Census whole;
  {
    Stores stores = openFew(folder_.path());
    ASSERT_TRUE(addPatient(stores, patient(0), 1));
    ASSERT_TRUE(execute(stores.personal.database, "DELETE FROM Appointment", {}));
    ASSERT_TRUE(execute(stores.personal.database, "DELETE FROM Account", {}));
    whole = census(stores);
  }
  int current = 0;
  for (int round = 0; round < kills; ++round) {
    SCOPED_TRACE(round);
    interrupt(round % 3, [&](Stores& stores, Counter& done) {
      for (int name = current;; ++name)
        if (!renamePatient(stores, patient(name), patient(name + 1)) || !done.send(name))
          return false;
    });
    Stores stores = openFew(folder_.path());
    expectSound(stores);
    ASSERT_TRUE(stores.personal.IDCard.MoveFirst());
    const std::string name = stores.personal.IDCard.Fields("Name").text();
    expectWhole(stores, name, whole);
    ASSERT_FALSE(HasFailure());
    current = std::stoi(name.substr(patient(0).size() - 1));
  }
  EXPECT_GT(current, 0);
  EXPECT_GT(interrupted_, 0);
}

TEST_F(CascadeCrashTest, ADeleteIsInEveryTableOrInNone) {
  constexpr int patients = 8;
  int next = 1;
  for (int round = 0; round < kills; ++round) {
    SCOPED_TRACE(round);
    std::vector<std::string> names;
    Census one;
    {
      Stores stores = openFew(folder_.path());
      for (int left = static_cast<int>(census(stores)["IDCard"]); left < patients; ++left, ++next) {
        ASSERT_TRUE(addPatient(stores, patient(next), next));
        ASSERT_TRUE(addTrial(stores, patient(next), next));
        one = census(stores, patient(next));
      }
    }
    interrupt(round % 3, [&](Stores& stores, Counter& done) {
      for (int number = next - patients; number < next; ++number)
        if (!deletePatient(stores, patient(number)) || !done.send(number)) return false;
      return true;
    });
    Stores stores = openFew(folder_.path());
    expectSound(stores);
    Census all = census(stores);
    const std::int64_t cards = all["IDCard"];
    for (const char* table : numberedTables) EXPECT_EQ(all[table], 2 * cards) << table;
    EXPECT_EQ(all["Visit"], 2 * cards);
    EXPECT_EQ(all["Motor"], cards);
    EXPECT_EQ(all["tblRem"], next - 1) << "reminders stay";
    for (const auto& [table, rows] : smokingCensus(stores)) EXPECT_EQ(rows, cards) << table;
    ASSERT_FALSE(HasFailure());
  }
  EXPECT_GT(next, patients + 1) << "some deletes came to their end";
  EXPECT_GT(interrupted_, 0);
}

TEST_F(CascadeCrashTest, AFullDiskLeavesEverythingUnderTheOldName) {
  Stores stores = openFew(folder_.path());
  for (int number = 1; number < 40; ++number)
    ASSERT_TRUE(addPatient(stores, patient(number), number));
  const Census before = census(stores, patient(7));
  int refused = 0;
  bool renamed = false;
  const std::uintmax_t size = std::filesystem::file_size(folder_ / clinicalPath);
  for (std::uintmax_t room = 2'000; !renamed; room += size / 40) {
    SCOPED_TRACE(room);
    ASSERT_LT(room, 2 * size);
    Counter outcome;
    ChildProcess station([&] {
      Stores full = openFew(folder_.path());
      limitFileSize(room);
      const dao::Status status = renamePatient(full, patient(7), "Başka");
      return outcome.send(static_cast<int>(status.fault()));
    });
    const auto fault = static_cast<dao::Fault>(outcome.receive());
    ASSERT_TRUE(station.succeeded());
    renamed = fault == dao::Fault::None;
    if (renamed) break;
    ++refused;
    // A page that was written in part before the limit counts as a failed write.
    EXPECT_TRUE(fault == dao::Fault::DiskFull || fault == dao::Fault::Failed);
    expectSound(stores);
    EXPECT_EQ(census(stores, patient(7)), before);
  }
  EXPECT_GT(refused, 5);
  EXPECT_EQ(census(stores, "Başka")["Visit"], 2);
  EXPECT_EQ(census(stores, patient(7))["Visit"], 0);
}

// A walk over rows that another process renames ends, meets every row, and is never refused.
TEST_F(CascadeCrashTest, OthersReadWhileAPatientIsRenamed) {
  constexpr int renames = 40;
  {
    Stores stores = openFew(folder_.path());
    for (int number = 0; number < 20; ++number)
      ASSERT_TRUE(addPatient(stores, patient(number), number + 1));
  }
  Signal ready;
  ChildProcess station([&] {
    Stores stores = openFew(folder_.path());
    std::string name = patient(7);
    if (!ready.give()) return false;
    for (int round = 0; round < renames; ++round) {
      const std::string now = "Z " + patient(100 + round);
      if (!renamePatient(stores, name, now)) return false;
      name = now;
    }
    return true;
  });
  ASSERT_TRUE(ready.await());
  Stores stores = openFew(folder_.path());
  dao::Recordset exams = stores.clinical.database.OpenRecordset("Physical Exam").value();
  for (int round = 0; round < 2 * renames; ++round) {
    int rows = 0;
    for (dao::Status moved = exams.MoveFirst(); moved && !exams.Eof(); moved = exams.MoveNext())
      ++rows;
    ASSERT_EQ(rows, 40);
    ASSERT_TRUE(stores.personal.IDCard.Seek("=", patient(3)));
    ASSERT_FALSE(stores.personal.IDCard.NoMatch());
  }
  EXPECT_TRUE(station.succeeded());
  EXPECT_EQ(census(stores, "Z " + patient(100 + renames - 1))["Physical Exam"], 2);
}

}  // namespace
}  // namespace stores

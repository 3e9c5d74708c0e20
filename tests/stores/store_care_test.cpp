// Maintenance of a store's file: what it mends, what it leaves, and what a kill leaves of it.
#include "stores/store_care.h"

#include <sys/stat.h>

#include "tests/stores/crash_support.h"
#include "tests/stores/stores_fixture.h"

namespace stores {
namespace {

constexpr int patients = 400;

class StoreCareTest : public StoresTest {
 protected:
  StoreCareTest() : StoresTest(inMemory()) {}

  void SetUp() override {
    open();
    auto transaction = stores_.personal.database.beginTransaction();
    for (int row = 0; row < patients; ++row)
      ASSERT_TRUE(addCard("Ayşe Yıldız " + std::to_string(row)));
    for (const char* job : {"alpha", "beta", "gamma"})
      ASSERT_TRUE(add(stores_.personal.Financier, "financier", job));
    ASSERT_TRUE(transaction->commit());
    CloseStores(stores_);
  }
  void expectWhole() {
    auto database = dao::OpenDatabase(path_);
    ASSERT_TRUE(database);
    EXPECT_TRUE(database->integrityCheck());
    EXPECT_EQ(database->OpenRecordset("IDCard")->RecordCount(), patients);
    EXPECT_EQ(database->OpenRecordset("Financier")->RecordCount(), 3);
  }
  void expectNothingBeside() {
    for (const auto& entry : std::filesystem::directory_iterator(folder_ / "Data"))
      EXPECT_FALSE(entry.path().filename().string().starts_with("NewFile")) << entry.path();
  }
  void overwrite(std::string_view old, std::string_view now) {
    std::string bytes = bytesOf(path_);
    ASSERT_NE(bytes.rfind(old), bytes.npos);
    writeBytes(path_, bytes.replace(bytes.rfind(old), old.size(), now));
  }

  std::string path_ = folder_ / personalPath;
};

TEST_F(StoreCareTest, GivesBackTheRoomOfDeletedRows) {
  {
    auto database = dao::OpenDatabase(path_);
    ASSERT_TRUE(database->Execute("INSERT INTO [Job] ([job]) SELECT [Name] FROM [IDCard]"));
    ASSERT_TRUE(database->Execute("DELETE FROM [Job]"));
  }
  ::chmod(path_.c_str(), 0660);
  std::int64_t last = 0;
  const StoreCare care = careForStore(path_, [&](std::int64_t done, std::int64_t total) {
    EXPECT_TRUE(last <= done && done <= total);
    last = done;
    return true;
  });
  ASSERT_TRUE(care.status) << care.status.text();
  EXPECT_FALSE(care.wasDamaged);
  EXPECT_LT(care.after, care.before);
  EXPECT_EQ(care.after, std::filesystem::file_size(path_));
  EXPECT_GT(last, 0);
  EXPECT_EQ(static_cast<unsigned>(std::filesystem::status(path_).permissions()), 0660U);
  expectWhole();
  expectNothingBeside();
}

TEST_F(StoreCareTest, MendsAnIndexThatDiffersFromItsTable) {
  overwrite("beta", "zeta");
  const StoreCare care = careForStore(path_);
  EXPECT_TRUE(care.status) << care.status.text();
  EXPECT_TRUE(care.wasDamaged);
  EXPECT_TRUE(care.kept.empty());
  expectWhole();
}

TEST_F(StoreCareTest, LeavesAFileThatItCannotReadAsItWas) {
  const std::string whole = bytesOf(path_);
  for (const std::string& content :
       {whole.substr(0, whole.size() / 2), whole.substr(0, 4096), std::string("no store")}) {
    SCOPED_TRACE(content.size());
    writeBytes(path_, content);
    const StoreCare care = careForStore(path_);
    EXPECT_FALSE(care.status);
    EXPECT_FALSE(care.status.text().empty());
    EXPECT_EQ(care.before, care.after);
    EXPECT_TRUE(bytesOf(path_) == content);
    expectNothingBeside();
  }
  EXPECT_EQ(careForStore(folder_ / "Data/Smoke.mdb").status.fault(), dao::Fault::Missing);
}

TEST_F(StoreCareTest, StopsWithTheStoreAsItWas) {
  const std::string before = bytesOf(path_);
  const StoreCare care = careForStore(path_, [](std::int64_t, std::int64_t) { return false; });
  EXPECT_FALSE(care.status);
  EXPECT_TRUE(bytesOf(path_) == before);
  expectNothingBeside();
}

// Killed at each of the moments at which it tells how far it is, and in between.
TEST_F(StoreCareTest, KilledAtAnyMomentLosesNothing) {
  for (int moment = 0; moment < 12; ++moment) {
    SCOPED_TRACE(moment);
    Counter told;
    {
      ChildProcess station([&] {
        for (int number = 0;;) {
          const StoreCare care =
              careForStore(path_, [&](std::int64_t, std::int64_t) { return told.send(number++); });
          if (!care.status) return false;
        }
      });
      for (int seen = 0; seen <= 7 * moment; ++seen) ASSERT_GE(told.receive(), 0);
      station.kill();
    }
    expectWhole();
    removeUnfinishedCopies(folder_ / "Data");
    expectNothingBeside();
  }
}

}  // namespace
}  // namespace stores

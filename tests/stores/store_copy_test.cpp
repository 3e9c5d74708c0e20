// Copies of stores that are checked before they count, and what is left when they fail.
#include "stores/store_copy.h"

#include <sys/stat.h>

#include "stores/store_care.h"
#include "tests/stores/crash_support.h"
#include "tests/stores/stores_fixture.h"
#include "tests/support/ordinary_user.h"

namespace stores {
namespace {

constexpr auto oldCopy = "the copy of yesterday";

class StoreCopyTest : public StoresTest {
 protected:
  StoreCopyTest() : StoresTest(inMemory()) {}

  void SetUp() override {
    open();
    fill(400);
    std::filesystem::create_directory(folder_ / "Backup");
    writeBytes(copy_, oldCopy);
  }
  void fill(int rows) {
    auto transaction = stores_.personal.database.beginTransaction();
    for (int row = 0; row < rows; ++row)
      ASSERT_TRUE(addCard("Ayşe Yıldız " + std::to_string(cards().RecordCount())));
    ASSERT_TRUE(transaction->commit());
  }
  std::int64_t cardsIn(const std::string& path) {
    auto database = dao::OpenDatabase(path, {.access = dao::Access::ReadOnly});
    if (!database || !database->integrityCheck()) return -1;
    return database->OpenRecordset("IDCard")->RecordCount();
  }
  // Nothing but the copy lies in its folder.
  void expectNothingBeside() {
    for (const auto& entry : std::filesystem::directory_iterator(folder_ / "Backup"))
      EXPECT_EQ(entry.path().filename(), "Personal.mdb");
  }

  std::string store_ = folder_ / personalPath;
  std::string copy_ = folder_ / "Backup/Personal.mdb";
};

TEST_F(StoreCopyTest, TakesTheNameOfTheOldCopyWhenItIsWhole) {
  ASSERT_TRUE(::chmod(store_.c_str(), 0600) == 0 && std::filesystem::remove(copy_));
  std::vector<std::int64_t> seen;
  const dao::Status copied = copyStore(store_, copy_, [&](std::int64_t done, std::int64_t total) {
    EXPECT_TRUE(seen.empty() || done >= seen.back());
    seen.push_back(done);
    EXPECT_LE(done, total);
    return true;
  });
  ASSERT_TRUE(copied) << copied.text();
  EXPECT_EQ(cardsIn(copy_), 400);
  EXPECT_GT(seen.size(), 10u);
  EXPECT_EQ(std::filesystem::status(copy_).permissions(),
            std::filesystem::perms::owner_read | std::filesystem::perms::owner_write);
  expectNothingBeside();
  fill(1);
  EXPECT_TRUE(copyStore(store_, copy_));
  EXPECT_EQ(cardsIn(copy_), 401);
}

// The store that is copied onto itself loses its empty pages. A link is no place for a copy; only
// that of a store is followed by whoever looks after it.
TEST_F(StoreCopyTest, CompactsAStoreWhereItLies) {
  ASSERT_TRUE(stores_.personal.database.Execute("DELETE FROM IDCard WHERE Name LIKE '*1*'"));
  const std::int64_t left = cards().RecordCount();
  CloseStores(stores_);
  const std::string link = folder_ / "link.mdb";
  std::filesystem::create_symlink(store_, link);
  const auto before = std::filesystem::file_size(store_);
  EXPECT_EQ(copyStore(store_, link).fault(), dao::Fault::NotAFile);
  EXPECT_EQ(std::filesystem::file_size(store_), before);
  const StoreCare care = careForStore(link, {});
  EXPECT_TRUE(care.status) << care.status.text();
  EXPECT_TRUE(std::filesystem::is_symlink(link));
  EXPECT_LT(std::filesystem::file_size(store_), before);
  EXPECT_EQ(cardsIn(store_), left);
  open();
}

struct FailingCase {
  const char* what;
  dao::Fault fault;
  std::function<void(const std::string& store, const std::string& copy)> spoil;
  std::function<bool(std::int64_t, std::int64_t)> progress = {};
};

TEST_F(StoreCopyTest, AFailureLeavesTheOldCopyAlone) {
  const auto damage = [](const std::string& store, std::size_t at) {
    std::string bytes = bytesOf(store);
    bytes.replace(at, 3000, std::string(3000, '\x7f'));
    writeBytes(store, bytes);
  };
  const std::vector<FailingCase> cases{
      {"no store", dao::Fault::Missing,
       [](const auto& store, const auto&) { std::filesystem::remove(store); }},
      {"the first page", dao::Fault::Damaged,
       [&](const auto& store, const auto&) { damage(store, 0); }},
      {"a page of rows", dao::Fault::Damaged,
       [&](const auto& store, const auto&) {
         damage(store, bytesOf(store).find("Ayşe Yıldız 200") / 4096 * 4096);
       }},
      {"a table out of order", dao::Fault::Damaged,
       [](const auto& store, const auto&) {
         std::string bytes = bytesOf(store);
         for (auto at = bytes.find("Yıldız 200"); at != bytes.npos; at = bytes.find("Yıldız 200"))
           bytes.replace(at, 3, "ZZZ");
         writeBytes(store, bytes);
       }},
      {"a file that is no store", dao::Fault::Damaged,
       [](const auto& store, const auto&) { writeBytes(store, std::string(5000, 'x')); }},
      {"stopped while it writes", dao::Fault::Other, [](const auto&, const auto&) {},
       [](std::int64_t, std::int64_t) { return false; }},
      {"stopped while it checks", dao::Fault::Other, [](const auto&, const auto&) {},
       [](std::int64_t done, std::int64_t total) { return done <= total / 2; }},
  };
  CloseStores(stores_);
  const std::string sound = bytesOf(store_);
  for (const FailingCase& each : cases) {
    for (const dao::Others others : {dao::Others::Wait, dao::Others::GoOn}) {
      SCOPED_TRACE(each.what);
      writeBytes(store_, sound);
      each.spoil(store_, copy_);
      const dao::Status copied = copyStore(store_, copy_, each.progress, others);
      EXPECT_EQ(copied.fault(), each.fault) << copied.text();
      EXPECT_FALSE(copied.text().empty());
      EXPECT_EQ(bytesOf(copy_), oldCopy);
      expectNothingBeside();
    }
  }
}

TEST_F(StoreCopyTest, AFolderThatIsGoneOrClosedIsAFault) {
  EXPECT_EQ(copyStore(store_, folder_ / "Gone/Personal.mdb").fault(), dao::Fault::Missing);
  std::filesystem::permissions(folder_.path(), std::filesystem::perms(0755));
  ASSERT_EQ(::chmod((folder_ / "Backup").c_str(), 0555), 0);
  {
    const support::OrdinaryUser user;
    EXPECT_EQ(copyStore(store_, copy_).fault(), dao::Fault::ReadOnly);
  }
  EXPECT_EQ(bytesOf(copy_), oldCopy);
}

TEST_F(StoreCopyTest, AFullDiskLeavesTheOldCopyAlone) {
  ChildProcess station([&] {
    limitFileSize(std::filesystem::file_size(store_) / 2);
    return copyStore(store_, copy_).fault() == dao::Fault::DiskFull;
  });
  EXPECT_TRUE(station.succeeded());
  EXPECT_EQ(bytesOf(copy_), oldCopy);
  expectNothingBeside();
}

// The compact copy has its room, the copy of all pages among the temporary files has not.
TEST_F(StoreCopyTest, TheStationsWaitWhereThereIsNoRoomForASecondCopy) {
  fill(8000);
  ASSERT_TRUE(stores_.personal.database.Execute("DELETE FROM IDCard"));
  ChildProcess station([&] {
    limitFileSize(std::filesystem::file_size(store_) / 2);
    return copyStore(store_, copy_, {}, dao::Others::GoOn).ok();
  });
  EXPECT_TRUE(station.succeeded());
  EXPECT_EQ(cardsIn(copy_), 0);
}

TEST_F(StoreCopyTest, TwoCopiesIntoOneFileDoNotMix) {
  dao::Status inner;
  const auto other = [&](std::int64_t, std::int64_t) {
    if (inner) inner = copyStore(store_, copy_);
    return true;
  };
  EXPECT_TRUE(copyStore(store_, copy_, other));
  EXPECT_EQ(inner.fault(), dao::Fault::Busy);
  EXPECT_EQ(cardsIn(copy_), 400);
}

// The journal of a crashed program that had the old copy open.
TEST_F(StoreCopyTest, AStaleJournalIsNotPlayedIntoTheNewCopy) {
  writeBytes(copy_ + "-journal", std::string(600, '\xd9'));
  ASSERT_TRUE(copyStore(store_, copy_));
  EXPECT_FALSE(std::filesystem::exists(copy_ + "-journal"));
  EXPECT_EQ(cardsIn(copy_), 400);
}

// Each save of the other station puts one row into two tables: a copy between the two would differ.
bool saveForEver(const std::string& folder, Counter& saved) {
  Stores stores;
  stores.folder = folder;
  if (!OpenStores(stores)) return false;
  for (int number = 0;; ++number) {
    auto transaction = stores.personal.database.beginTransaction();
    const std::string name = "Çağrı " + std::to_string(number);
    if (!transaction || !add(stores.personal.IDCard, "Name", name) ||
        !add(stores.personal.Profession, "Profession", name) || !transaction->commit())
      return false;
    if (number == 3 && !saved.send(number)) return false;
  }
}

TEST_F(StoreCopyTest, IsOfOneMomentWhileAnotherStationSaves) {
  fill(4000);  // a snapshot of some steps
  Counter saved;
  ChildProcess station([&] { return saveForEver(folder_.path() + "/", saved); });
  ASSERT_EQ(saved.receive(), 3);
  std::int64_t last = 0;
  for (int round = 0; round < 20; ++round) {
    const auto others = round % 2 == 0 ? dao::Others::Wait : dao::Others::GoOn;
    const dao::Status copied = copyStore(store_, copy_, {}, others);
    ASSERT_TRUE(copied) << copied.text();
    auto copy = dao::OpenDatabase(copy_).value();
    const std::int64_t count = copy.OpenRecordset("IDCard")->RecordCount() - 4400;
    EXPECT_EQ(copy.OpenRecordset("Profession")->RecordCount(), count);
    EXPECT_GE(count, last) << "the other station got no turn";
    last = count;
  }
  EXPECT_GT(last, 4);
}

// Copies again and again until it is killed, wherever it happens to be.
TEST_F(StoreCopyTest, AKilledCopyLeavesTheOldOneOrTheNewOneWhole) {
  fill(4000);
  std::filesystem::remove(copy_);
  for (int round = 0; round < 25; ++round) {
    SCOPED_TRACE(round);
    Counter told;
    const int steps = round * 3 % 40;
    ChildProcess station([&] {
      int step = 0;
      const auto tell = [&](std::int64_t, std::int64_t) { return step++ != steps || told.send(1); };
      while (copyStore(store_, copy_, tell).ok()) told.send(2);
      return false;
    });
    if (round == 0) {
      while (told.receive() != 2) {
      }
    } else {
      (void)told.receive();
    }
    station.kill();
    ASSERT_EQ(cardsIn(copy_), 4400);
  }
  EXPECT_TRUE(copyStore(store_, copy_));
  expectNothingBeside();
}

}  // namespace
}  // namespace stores

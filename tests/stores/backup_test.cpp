// Backups of several stores, what a restore puts in place, and the drill of it.
#include "stores/backup.h"

#include <algorithm>

#include "stores/contents.h"
#include "stores/restore.h"
#include "stores/restore_drill.h"
#include "stores/smoking_store.h"
#include "tests/stores/crash_support.h"
#include "tests/stores/stores_fixture.h"

namespace stores {
namespace {

namespace fs = std::filesystem;

class BackupTest : public StoresTest {
 protected:
  BackupTest() : StoresTest(inMemory()) {}

  void SetUp() override {
    open();
    ASSERT_TRUE(addCard("Ayşe Yıldız"));
    ASSERT_TRUE(CreateSmokingStore(folder_.path() + "/"));
    fs::create_directory(backup_);
  }
  std::int64_t cardsIn(const std::string& path) {
    auto database = dao::OpenDatabase(path, {.access = dao::Access::ReadOnly});
    return database ? database->OpenRecordset("IDCard")->RecordCount() : -1;
  }
  std::vector<std::string> filesIn(const std::string& folder) {
    std::vector<std::string> names;
    for (const auto& entry : fs::directory_iterator(folder))
      names.push_back(entry.path().filename().string());
    std::ranges::sort(names);
    return names;
  }
  void damage(const std::string& path) {
    std::string bytes = bytesOf(path);
    bytes.replace(4096, 6000, std::string(6000, '\x7f'));
    writeBytes(path, bytes);
  }

  std::string backup_ = folder_ / "Backup";
};

TEST_F(BackupTest, HoldsTheStoresUnderTheirNamesAndLeavesAnOlderSmokingCopy) {
  writeBytes(folder_ / "Backup/Smoke.mdb", "older");
  const auto onScreen = std::span(storeKinds).first(2);
  std::int64_t last = 0;
  ASSERT_TRUE(backUp(folder_.path(), backup_, onScreen, [&](std::int64_t done, std::int64_t total) {
    EXPECT_LE(last, done);
    EXPECT_LE(done, total);
    last = done;
    return true;
  }));
  EXPECT_EQ(filesIn(backup_),
            (std::vector<std::string>{"Personal.mdb", "Sanavel.mdb", "Smoke.mdb", "contents.txt"}));
  EXPECT_EQ(bytesOf(folder_ / "Backup/Smoke.mdb"), "older");
  ASSERT_TRUE(backUp(folder_.path(), backup_, storeKinds));
  for (const StoreKind& kind : storeKinds)
    EXPECT_TRUE(checkCopy(fs::path(backup_) / kind.file, kind)) << kind.file;
}

TEST_F(BackupTest, TheLastThreeStayAndAreNeverTakenForFewer) {
  const auto fewer = [&] { return fewerThanBackup(folder_.path(), backup_, storeKinds); };
  EXPECT_TRUE(fewer().empty()) << "there is no backup yet";
  for (const char* name : {"Burak", "Ceren", "Deniz"}) {
    ASSERT_TRUE(backUp(folder_.path(), backup_, storeKinds));
    ASSERT_TRUE(addCard(name));
  }
  writeBytes(folder_ / "Backup/Backup 2/mine.txt", "a note of the user's");
  ASSERT_TRUE(backUp(folder_.path(), backup_, storeKinds));
  EXPECT_EQ(cardsIn(folder_ / "Backup/Personal.mdb"), 4);
  EXPECT_EQ(cardsIn(folder_ / "Backup/Backup 1/Personal.mdb"), 3);
  EXPECT_EQ(cardsIn(folder_ / "Backup/Backup 2/Personal.mdb"), 2);
  EXPECT_EQ(contentsOf(folder_ / "Backup/Backup 1").at("Personal.mdb"), 3);
  EXPECT_TRUE(fewer().empty());
  // Whether the note is there or not.
  ASSERT_TRUE(stores_.personal.database.Execute("DELETE FROM IDCard"));
  for (const bool noted : {true, false}) {
    if (!noted) fs::remove(folder_ / "Backup/contents.txt");
    ASSERT_EQ(fewer().size(), 1U);
    EXPECT_EQ(fewer().front().file, "Personal.mdb");
    EXPECT_EQ(fewer().front().backup, 4);
  }
  EXPECT_TRUE(restoreStore(personalKind, folder_.path(), folder_ / "Backup/Backup 2", "now"));
}

TEST(ClearlyFewer, LeavesWhatSomebodyDeletesByHand) {
  const struct {
    std::int64_t now;
    std::int64_t before;
    bool fewer;
  } cases[] = {{0, 0, false},  {0, 1, true},     {1, 2, false},   {1, 12, true},
               {6, 12, false}, {60, 100, false}, {40, 100, true}, {200, 100, false}};
  for (const auto& c : cases) EXPECT_EQ(clearlyFewer(c.now, c.before), c.fewer) << c.now;
}

// A backup may lie where others write: what a link there leads to is no place for a copy.
TEST_F(BackupTest, NothingBehindALinkIsReplaced) {
  writeBytes(folder_ / "thesis.doc", "years of work");
  fs::create_symlink(folder_ / "thesis.doc", folder_ / "Backup/Personal.mdb");
  EXPECT_EQ(backUp(folder_.path(), backup_, storeKinds).fault(), dao::Fault::NotAFile);
  EXPECT_FALSE(restoreStore(personalKind, folder_.path(), backup_, "now"));
  fs::remove(folder_ / "Backup/Personal.mdb");
  ASSERT_TRUE(backUp(folder_.path(), backup_, storeKinds));
  CloseStores(stores_);
  fs::remove(folder_ / personalPath);
  fs::create_symlink(folder_ / "thesis.doc", folder_ / personalPath);
  EXPECT_FALSE(restoreStore(personalKind, folder_.path(), backup_, "now"));
  EXPECT_EQ(bytesOf(folder_ / "thesis.doc"), "years of work");
  EXPECT_EQ(std::distance(fs::directory_iterator(folder_.path()), {}), 3) << "nothing beside it";
}

// The stores of a backup belong together: a fault in a later one keeps the older copies of all.
TEST_F(BackupTest, AFailureKeepsTheWholeOldBackup) {
  ASSERT_TRUE(backUp(folder_.path(), backup_, storeKinds));
  const std::string personal = bytesOf(folder_ / "Backup/Personal.mdb");
  ASSERT_TRUE(addCard("Burak Öz"));
  CloseStores(stores_);
  damage(folder_ / clinicalPath);
  EXPECT_EQ(backUp(folder_.path(), backup_, storeKinds).fault(), dao::Fault::Damaged);
  EXPECT_EQ(bytesOf(folder_ / "Backup/Personal.mdb"), personal);
  EXPECT_EQ(filesIn(backup_).size(), 4u);
}

TEST_F(BackupTest, IsNeverWrittenOverTheStores) {
  const std::string link = folder_ / "link";
  fs::create_directory_symlink(folder_ / "Data", link);
  for (const std::string& data :
       {folder_ / "Data", folder_ / "Data/", folder_ / "Backup/../Data", link, link + "/."}) {
    EXPECT_TRUE(isDataFolder(folder_.path(), data)) << data;
    EXPECT_EQ(backUp(folder_.path(), data, storeKinds).fault(), dao::Fault::Unsupported) << data;
  }
  for (const std::string& other : {folder_.path(), folder_ / "Backup", folder_ / "Data2"})
    EXPECT_FALSE(isDataFolder(folder_.path(), other)) << other;
}

TEST_F(BackupTest, ARestoredStoreKeepsTheOldFileUntilItIsForgotten) {
  ASSERT_TRUE(backUp(folder_.path(), backup_, storeKinds));
  ASSERT_TRUE(addCard("Burak Öz"));
  CloseStores(stores_);
  const std::string present = bytesOf(folder_ / personalPath);
  const auto replaced = restoreStore(personalKind, folder_.path(), backup_, "2026-11-22");
  ASSERT_TRUE(replaced) << replaced.error().text();
  EXPECT_EQ(bytesOf(folder_ / personalPath), bytesOf(folder_ / "Backup/Personal.mdb"));
  EXPECT_EQ(bytesOf(folder_ / "Data/Personal.mdb.2026-11-22.old"), present);
  ASSERT_TRUE(putBack(*replaced));
  EXPECT_EQ(bytesOf(folder_ / personalPath), present);
  EXPECT_FALSE(fs::exists(replaced->kept));
  forget(restoreStore(personalKind, folder_.path(), backup_, "2026-11-22").value());
  EXPECT_EQ(cardsIn(folder_ / personalPath), 1);
  EXPECT_FALSE(fs::exists(replaced->kept));
}

TEST_F(BackupTest, AMissingStoreComesBackSharedAsItsNeighboursAre) {
  ASSERT_TRUE(backUp(folder_.path(), backup_, storeKinds));
  CloseStores(stores_);
  constexpr auto shared = fs::perms(0660);
  fs::permissions(folder_ / personalPath, shared);
  fs::remove(folder_ / "Data/Smoke.mdb");
  ASSERT_TRUE(restoreStore(smokingKind, folder_.path(), backup_, "now"));
  EXPECT_EQ(fs::status(folder_ / "Data/Smoke.mdb").permissions(), shared);
}

TEST_F(BackupTest, KeysOfOlderCollationRulesAreMadeAnewByTheRestore) {
  ASSERT_TRUE(backUp(folder_.path(), backup_, storeKinds));
  CloseStores(stores_);
  ASSERT_TRUE(dao::OpenDatabase(folder_ / "Backup/Personal.mdb")
                  ->Execute("UPDATE \"~store\" SET value = '1.0' WHERE name = 'collation'"));
  const auto files = filesIn(folder_ / "Data").size();
  ASSERT_TRUE(restoreStore(personalKind, folder_.path(), backup_, "now"));
  EXPECT_EQ(dao::OpenDatabase(folder_ / personalPath)->orderIsCurrent(), true);
  EXPECT_EQ(filesIn(folder_ / "Data").size(), files + 1) << "but for the old file";
}

TEST_F(BackupTest, ABackupThatIsNoStoreOfItsKindReplacesNothing) {
  ASSERT_TRUE(backUp(folder_.path(), backup_, storeKinds));
  CloseStores(stores_);
  const std::string copy = folder_ / "Backup/Personal.mdb";
  const std::string sound = bytesOf(copy);
  const std::string present = bytesOf(folder_ / personalPath);
  const auto files = filesIn(folder_ / "Data");
  const std::vector<std::pair<std::string, dao::Fault>> cases{
      {sound.substr(0, sound.size() / 2), dao::Fault::Damaged},
      {"short", dao::Fault::Damaged},
      {std::string(9000, 'x'), dao::Fault::Damaged},
      {"", dao::Fault::Unsupported},
      {bytesOf(folder_ / "Backup/Sanavel.mdb"), dao::Fault::Unsupported},
      {bytesOf(folder_ / "Backup/Smoke.mdb"), dao::Fault::Unsupported},
  };
  for (const auto& [bytes, fault] : cases) {
    writeBytes(copy, bytes);
    const auto replaced = restoreStore(personalKind, folder_.path(), backup_, "now");
    ASSERT_FALSE(replaced) << bytes.size();
    EXPECT_EQ(replaced.error().fault(), fault) << replaced.error().text();
    EXPECT_EQ(bytesOf(folder_ / personalPath), present);
    EXPECT_EQ(filesIn(folder_ / "Data"), files) << "something was left beside";
    EXPECT_FALSE(restoreDrill(backup_, folder_.path()));
  }
  fs::remove(copy);
  EXPECT_EQ(restoreStore(personalKind, folder_.path(), backup_, "now").error().fault(),
            dao::Fault::Missing);
}

TEST_F(BackupTest, AStoreThatIsBeingWrittenIsNotUnused) {
  EXPECT_TRUE(unusedNow(folder_.path()));
  const auto saving = stores_.personal.database.beginTransaction();
  EXPECT_EQ(unusedNow(folder_.path()).fault(), dao::Fault::Busy);
}

TEST_F(BackupTest, TheDrillTellsWhatARestoreWouldBringBack) {
  for (const int day : {3, 21}) {
    dao::Recordset& exams = stores_.clinical.PhysicalExam;
    ASSERT_TRUE(exams.AddNew());
    ASSERT_TRUE(exams.Fields("Count").Set(std::int64_t{day}));
    ASSERT_TRUE(exams.Fields("Name").Set("Ayşe Yıldız"));
    ASSERT_TRUE(exams.Fields("Date").Set(text::DateTime::of(2026, 11, static_cast<unsigned>(day))));
    ASSERT_TRUE(exams.Update());
  }
  ASSERT_TRUE(backUp(folder_.path(), backup_, std::span(storeKinds).first(2)));
  fs::create_directory(folder_ / "scratch");
  const auto report = restoreDrill(backup_, folder_ / "scratch");
  ASSERT_TRUE(report) << report.error().text();
  EXPECT_EQ(report->patients, 1);
  EXPECT_EQ(report->records, 2);
  EXPECT_EQ(report->lastExamination, text::DateTime::of(2026, 11, 21));
  damage(folder_ / "Backup/Sanavel.mdb");
  EXPECT_EQ(restoreDrill(backup_, folder_ / "scratch").error().fault(), dao::Fault::Damaged);
  EXPECT_TRUE(fs::is_empty(folder_ / "scratch"));
}

}  // namespace
}  // namespace stores

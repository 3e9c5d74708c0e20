// Files that are no stores, and places that cannot be written: a status with a text, and nothing is
// made worse.
#include <sys/stat.h>

#include <array>

#include "tests/stores/stores_fixture.h"
#include "tests/support/ordinary_user.h"

namespace stores {
namespace {

class DamageTest : public StoresTest {
 protected:
  // A store with so many patients that it has many pages.
  void makeStore() {
    open();
    auto transaction = stores_.personal.database.beginTransaction();
    ASSERT_TRUE(transaction);
    for (int patient = 0; patient < 500; ++patient)
      ASSERT_TRUE(addCard("Hasta " + std::to_string(patient)));
    ASSERT_TRUE(transaction->commit());
    CloseStores(stores_);
  }
  void expectFault(const dao::Status& status) {
    EXPECT_FALSE(status);
    EXPECT_FALSE(status.text().empty());
  }
  // Opening fails with a text, everything else opens, and the file stays as it is.
  void expectRefused(const char* file, dao::Fault fault) {
    const std::string before = bytesOf(folder_ / file);
    const dao::Status opened = OpenStores(stores_);
    expectFault(opened);
    EXPECT_EQ(opened.fault(), fault) << opened.text();
    EXPECT_NE(opened.text().find(std::filesystem::path(file).filename().string()),
              std::string::npos)
        << opened.text();
    CloseStores(stores_);
    EXPECT_TRUE(bytesOf(folder_ / file) == before) << "the file was changed";
  }
};

TEST_F(DamageTest, AFileOfNoBytesBecomesAStore) {
  for (const char* file : {personalPath, clinicalPath}) writeBytes(folder_ / file, "");
  open();
  EXPECT_EQ(stores_.personal.database.tables()->size(), 12u);
  EXPECT_TRUE(addCard("İlk Hasta"));
  EXPECT_TRUE(add(stores_.clinical.Visit, "spname", "GenMed\\İlk Hasta"));
}

TEST_F(DamageTest, AStoreWhoseBeginningIsCutOffIsLeftAsItIs) {
  makeStore();
  const std::string whole = bytesOf(folder_ / personalPath);
  for (const std::size_t length : {1, 15, 16, 99, 100, 511, 1000, 4095}) {
    SCOPED_TRACE(length);
    writeBytes(folder_ / personalPath, whole.substr(0, length));
    expectRefused(personalPath, dao::Fault::Damaged);
  }
}

// Behind the first pages a cut may go unnoticed until somebody reads there: then it is a fault.
TEST_F(DamageTest, AStoreWhoseEndIsCutOffIsNeverTakenForSound) {
  makeStore();
  const std::string whole = bytesOf(folder_ / personalPath);
  for (const std::size_t length :
       {std::size_t{4096}, std::size_t{8192}, whole.size() / 2, whole.size() - 1}) {
    SCOPED_TRACE(length);
    const std::string cut = whole.substr(0, length);
    writeBytes(folder_ / personalPath, cut);
    const dao::Status opened = OpenStores(stores_);
    if (opened) {
      expectFault(stores_.personal.database.integrityCheck());
    } else {
      EXPECT_EQ(opened.fault(), dao::Fault::Damaged) << opened.text();
    }
    CloseStores(stores_);
    EXPECT_TRUE(bytesOf(folder_ / personalPath) == cut) << "the file was changed";
  }
}

TEST_F(DamageTest, OtherContentIsLeftAsItIs) {
  std::string noise;
  for (unsigned byte = 1; noise.size() < 20000; byte = byte * 1103515245 + 12345)
    noise += static_cast<char>(byte >> 16);
  const std::array contents{noise, std::string(5000, '\0'), std::string("SQLite format 3"),
                            std::string("a letter to the practice\n"), std::string(1, '\n')};
  for (const char* file : {personalPath, clinicalPath}) {
    for (const std::string& content : contents) {
      SCOPED_TRACE(std::string(file) + ", " + std::to_string(content.size()) + " bytes");
      writeBytes(folder_ / file, content);
      expectRefused(file, dao::Fault::Damaged);
      std::filesystem::remove(folder_ / file);
    }
  }
}

// One bad store does not take the other one, or the settings, with it.
TEST_F(DamageTest, WhatIsSoundOpensBesideWhatIsNot) {
  writeBytes(folder_ / personalPath, "this is no store, and long enough to be looked at closely");
  expectFault(OpenStores(stores_));
  EXPECT_FALSE(stores_.personal.database.isOpen());
  EXPECT_FALSE(stores_.personal.IDCard.isOpen());
  EXPECT_TRUE(stores_.settings.has_value());
  EXPECT_TRUE(add(stores_.clinical.Visit, "spname", "GenMed\\Ali Can"));
  expectFault(ReopenPersonalStore(stores_));
}

TEST_F(DamageTest, AFolderInTheFilesPlaceIsAFault) {
  for (const char* file : {personalPath, clinicalPath, settingsPath}) {
    SCOPED_TRACE(file);
    const ProgramFolder folder;
    std::filesystem::create_directory(folder / file);
    Stores stores = storesOf(folder);
    expectFault(OpenStores(stores));
    EXPECT_TRUE(std::filesystem::is_directory(folder / file));
  }
}

TEST_F(DamageTest, AFileInTheFoldersPlaceIsAFault) {
  std::filesystem::remove(folder_ / "Data");
  writeBytes(folder_ / "Data", "a file");
  expectFault(OpenStores(stores_));
  EXPECT_EQ(bytesOf(folder_ / "Data"), "a file");
}

TEST_F(DamageTest, AFolderThatIsMissingIsAFault) {
  std::filesystem::remove(folder_ / "Data");
  expectFault(OpenStores(stores_));
  EXPECT_FALSE(std::filesystem::exists(folder_ / "Data"));
}

TEST_F(DamageTest, AFolderThatCannotBeWrittenIsAFault) {
  ::chmod(folder_.path().c_str(), 0755);
  ::chmod((folder_ / "Data").c_str(), 0555);
  {
    const support::OrdinaryUser user;
    const dao::Status opened = OpenStores(stores_);
    expectFault(opened);
    EXPECT_EQ(opened.fault(), dao::Fault::ReadOnly) << opened.text();
  }
  ::chmod((folder_ / "Data").c_str(), 0755);
}

// Not a file that is missing: it must be told, or somebody restores an older one over it.
TEST_F(DamageTest, AStoreThatMayNotBeOpenedIsNotTakenForMissing) {
  makeStore();
  ::chmod(folder_.path().c_str(), 0755);
  ::chmod((folder_ / personalPath).c_str(), 0);
  const support::OrdinaryUser user;
  const dao::Status opened = OpenStores(stores_);
  expectFault(opened);
  EXPECT_EQ(opened.fault(), dao::Fault::ReadOnly) << opened.text();
}

// The store can be looked at, but no save succeeds in silence.
TEST_F(DamageTest, AStoreThatIsMarkedReadOnlyOpensForReading) {
  makeStore();
  ::chmod((folder_ / personalPath).c_str(), 0444);
  open();
  EXPECT_TRUE(holds(cards(), "Hasta 7"));
  EXPECT_EQ(addCard("Yeni Hasta").fault(), dao::Fault::ReadOnly);
}

}  // namespace
}  // namespace stores

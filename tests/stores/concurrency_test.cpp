// Several stations on one folder.
#include "stores/personal_schema.h"
#include "stores/value_list.h"
#include "tests/platform/files/child_process.h"
#include "tests/stores/stores_fixture.h"

namespace stores {
namespace {

class TwoStationsTest : public StoresTest {
 protected:
  void SetUp() override {
    open();
    ASSERT_TRUE(OpenStores(other_));
  }
  Stores other_ = storesOf(folder_);
};

TEST_F(TwoStationsTest, SeeEachOthersRowsAtOnce) {
  ASSERT_TRUE(addCard("Ayşe Kaya"));
  EXPECT_TRUE(holds(other_.personal.IDCard, "Ayşe Kaya"));
  ASSERT_TRUE(add(other_.personal.IDCard, "Name", "Veli Işık"));
  EXPECT_TRUE(holds(cards(), "Veli Işık"));
  EXPECT_EQ(addCard("VELI Işık").fault(), dao::Fault::Exists);
  ASSERT_TRUE(addValue(stores_.personal, "Job", "Şef"));
  EXPECT_EQ(values(other_.personal, "Job"), std::vector<std::string>{"Şef"});
  ASSERT_TRUE(add(other_.clinical.Visit, "spname", "GenMed\\Ayşe Kaya"));
  EXPECT_TRUE(holds(stores_.clinical.Visit, "GenMed\\Ayşe Kaya"));
}

TEST_F(TwoStationsTest, AnOpenWalkGoesOnOverARowThatTheOtherStationDeletes) {
  for (const char* name : {"A", "B", "C"}) ASSERT_TRUE(addCard(name));
  ASSERT_TRUE(cards().MoveFirst());
  ASSERT_TRUE(holds(other_.personal.IDCard, "B"));
  ASSERT_TRUE(other_.personal.IDCard.Delete());
  ASSERT_TRUE(cards().MoveNext());
  EXPECT_EQ(cards().Fields("Name").text(), "C");
}

TEST_F(TwoStationsTest, TheNumbersOfBothStationsDiffer) {
  for (int row = 0; row < 20; ++row) {
    ASSERT_TRUE(add(stores_.personal.Financier, "financier", "bizim"));
    ASSERT_TRUE(add(other_.personal.Financier, "financier", "onların"));
  }
  EXPECT_EQ(stores_.personal.Financier.RecordCount(), 40);
  EXPECT_EQ(other_.personal.Financier.LastModified().integer(), 40);
}

// Whoever holds up the store makes the others wait, not fail, and a reader never waits.
TEST_F(TwoStationsTest, ATransactionInOneIsInvisibleInTheOtherUntilItEnds) {
  auto transaction = stores_.personal.database.beginTransaction();
  ASSERT_TRUE(transaction);
  ASSERT_TRUE(addCard("Yarım"));
  EXPECT_FALSE(holds(other_.personal.IDCard, "Yarım"));
  ASSERT_TRUE(transaction->commit());
  EXPECT_TRUE(holds(other_.personal.IDCard, "Yarım"));
}

bool openAtOnce(const std::string& folder, Signal& start) {
  Stores stores;
  stores.folder = folder + "/";
  if (!start.await() || !OpenStores(stores)) return false;
  const std::string self = std::to_string(::getpid());
  return add(stores.personal.IDCard, "Name", "Hasta " + self).ok() &&
         add(stores.clinical.Visit, "spname", "GenMed\\Hasta " + self).ok();
}

TEST(TwoProcessesTest, MakeTheStoresOfOneEmptyFolderTogether) {
  for (int round = 0; round < 20; ++round) {
    SCOPED_TRACE(round);
    const ProgramFolder folder;
    Signal start;
    ChildProcess one([&] { return openAtOnce(folder.path(), start); });
    ChildProcess other([&] { return openAtOnce(folder.path(), start); });
    ASSERT_TRUE(start.give() && start.give());
    EXPECT_TRUE(one.succeeded());
    EXPECT_TRUE(other.succeeded());
    Stores stores = storesOf(folder);
    ASSERT_TRUE(OpenStores(stores));
    EXPECT_EQ(stores.personal.database.tables()->size(), personalSchema().size());
    EXPECT_EQ(stores.personal.IDCard.RecordCount(), 2);
    EXPECT_EQ(stores.clinical.Visit.RecordCount(), 2);
    EXPECT_TRUE(stores.personal.database.integrityCheck());
  }
}

}  // namespace
}  // namespace stores

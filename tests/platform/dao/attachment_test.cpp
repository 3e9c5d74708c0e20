// Two store files in one transaction.
#include "platform/dao/attachment.h"

#include <fstream>

#include "tests/platform/dao/store_fixture.h"

namespace dao {
namespace {

// The store of the fixture, and a second one whose texts compare in the Turkish order.
class AttachmentTest : public StoreTest {
 protected:
  AttachmentTest() : otherPath_(folder_ / "Other.mdb") {
    other_ = CreateDatabase(otherPath_, Order::Turkish).value();
    EXPECT_TRUE(other_.appendTable(kFinanciers));
    store_ = OpenDatabase(path_, {.busyTimeout = std::chrono::milliseconds(0)}).value();
    Recordset payers = other_.OpenRecordset("Financier").value();
    EXPECT_TRUE(addTo(payers, "financier", "IŞIK"));
  }

  Result<std::int64_t> rename(std::string_view from, std::string_view to) {
    return store_.Execute("UPDATE [other].[Financier] SET [financier] = ? WHERE [financier] = ?",
                          {to, from});
  }
  std::string stored() {
    Recordset payers = other_.OpenRecordset("Financier").value();
    return payers.Fields("financier").text();
  }
  Fault attachingFault() {
    const auto attached = AttachDatabase(store_, other_, "other");
    return attached ? Fault::None : attached.error().fault();
  }

  std::filesystem::path otherPath_;
  Database other_;
};

TEST_F(AttachmentTest, OneTransactionWritesBothFilesOrNeither) {
  const auto attached = AttachDatabase(store_, other_, "other");
  ASSERT_TRUE(attached) << attached.error().text();
  for (const bool commits : {false, true}) {
    auto transaction = store_.beginTransaction().value();
    addCards({"a"});
    ASSERT_EQ(rename("IŞIK", "Ece").value(), 1);
    EXPECT_EQ(stored(), "IŞIK") << "nobody sees it before the commit";
    if (!commits) continue;
    ASSERT_TRUE(transaction.commit());
  }
  EXPECT_EQ(stored(), "Ece");
  EXPECT_EQ(all("IDCard", "Name"), Texts{"a"});
}

TEST_F(AttachmentTest, TextsCompareInTheOrderOfTheirOwnStore) {
  const auto attached = AttachDatabase(store_, other_, "other").value();
  EXPECT_EQ(rename("işik", "x").value(), 0);
  EXPECT_EQ(rename("ışık", "İNCİ").value(), 1);
  EXPECT_EQ(all("SELECT * FROM [other].[Financier] WHERE [financier] = 'inci'", "financier"),
            Texts{"İNCİ"});
  addCards({"ISI"});
  EXPECT_EQ(all("SELECT * FROM IDCard WHERE Name = 'isi'", "Name"), Texts{"ISI"});
  EXPECT_TRUE(other_.integrityCheck());
}

TEST_F(AttachmentTest, LetsGoAtItsEndAndCanBeTakenAgain) {
  for (int round = 0; round < 3; ++round) {
    const auto attached = AttachDatabase(store_, other_, "other").value();
    EXPECT_EQ(AttachDatabase(store_, other_, "other").error().fault(), Fault::Failed);
    EXPECT_TRUE(rename("x", "y"));
  }
  EXPECT_EQ(rename("x", "y").error().fault(), Fault::Missing);
}

TEST_F(AttachmentTest, RefusesWhatCouldNotBeWrittenTogether) {
  {
    const auto transaction = store_.beginTransaction().value();
    EXPECT_EQ(attachingFault(), Fault::Unsupported) << "inside a transaction";
  }
  EXPECT_TRUE(other_.appendTable(kCards));
  EXPECT_EQ(attachingFault(), Fault::Unsupported) << "search keys of another order";
  std::filesystem::remove(otherPath_);
  EXPECT_EQ(attachingFault(), Fault::Missing);
  std::ofstream(otherPath_, std::ios::binary) << std::string(5000, 'x');
  EXPECT_EQ(attachingFault(), Fault::Damaged);
  std::filesystem::remove(otherPath_);
  std::ofstream(otherPath_, std::ios::binary).flush();
  EXPECT_EQ(attachingFault(), Fault::Unsupported) << "another file under the same name";
  other_.Close();
  EXPECT_EQ(attachingFault(), Fault::NoCurrent);
  EXPECT_TRUE(store_.beginTransaction()) << "a refusal leaves nothing behind";
}

TEST_F(AttachmentTest, AStationThatHoldsEitherFileMakesTheOthersBusy) {
  const auto attached = AttachDatabase(store_, other_, "other").value();
  {
    const auto elsewhere = other_.beginTransaction().value();
    EXPECT_EQ(store_.beginTransaction().error().fault(), Fault::Busy);
  }
  const auto transaction = store_.beginTransaction();
  EXPECT_TRUE(transaction) << "the refused one gave its locks back";
}

}  // namespace
}  // namespace dao

#include "platform/dao/recordset.h"

#include "tests/platform/dao/store_fixture.h"

namespace dao {
namespace {

using RecordsetTest = StoreTest;

TEST_F(RecordsetTest, WalksInKeyOrderBothWays) {
  addCards({"Mehmet", "ayla", "Zeki", "Ayşe", "burak"});
  EXPECT_EQ(all("IDCard", "Name"), (Texts{"ayla", "Ayşe", "burak", "Mehmet", "Zeki"}));
  Recordset cards = table("IDCard");
  ASSERT_TRUE(cards.MoveLast());
  Texts back;
  for (; !cards.Bof(); cards.MovePrevious().ignore()) back.push_back(cards.Fields("Name").text());
  EXPECT_EQ(back, (Texts{"Zeki", "Mehmet", "burak", "Ayşe", "ayla"}));
}

TEST_F(RecordsetTest, AnEmptyTableHasBothEndsAndRefusesEveryMove) {
  Recordset cards = table("IDCard");
  EXPECT_TRUE(cards.Eof());
  EXPECT_TRUE(cards.Bof());
  EXPECT_TRUE(cards.empty());
  EXPECT_EQ(cards.RecordCount(), 0);
  for (auto move : {&Recordset::MoveFirst, &Recordset::MoveNext, &Recordset::MovePrevious,
                    &Recordset::MoveLast}) {
    EXPECT_EQ((cards.*move)().fault(), Fault::NoCurrent);
  }
  EXPECT_EQ(cards.Fields("Name").status().fault(), Fault::NoCurrent);
}

TEST_F(RecordsetTest, MovesPastAnEndOnceAndComeBack) {
  addCards({"a", "b"});
  Recordset cards = table("IDCard");
  ASSERT_TRUE(cards.MoveLast());
  EXPECT_TRUE(cards.MoveNext());
  EXPECT_TRUE(cards.Eof());
  EXPECT_EQ(cards.MoveNext().fault(), Fault::NoCurrent);
  EXPECT_TRUE(cards.MovePrevious());
  EXPECT_EQ(cards.Fields("Name").text(), "b");
  ASSERT_TRUE(cards.MoveFirst());
  EXPECT_TRUE(cards.MovePrevious());
  EXPECT_TRUE(cards.Bof());
  EXPECT_EQ(cards.MovePrevious().fault(), Fault::NoCurrent);
  EXPECT_TRUE(cards.MoveNext());
  EXPECT_EQ(cards.Fields("Name").text(), "a");
}

struct SeekCase {
  std::string_view comparison;
  std::string_view key;
  std::string_view found;  // "" for no match
};

TEST_F(RecordsetTest, SeekFindsTheFirstOrTheLastFittingKey) {
  addCards({"Ayşe", "Burak", "Deniz"});
  const std::array cases{
      SeekCase{"=", "BURAK  ", "Burak"}, SeekCase{"=", "Burakk", ""},
      SeekCase{"=", "AYŞE", "Ayşe"},     SeekCase{"=", "Ayse", ""},
      SeekCase{">=", "Burak", "Burak"},  SeekCase{">", "Burak", "Deniz"},
      SeekCase{"<=", "Burak", "Burak"},  SeekCase{"<", "Burak", "Ayşe"},
      SeekCase{">=", "C", "Deniz"},      SeekCase{"<=", "C", "Burak"},
      SeekCase{">", "Deniz", ""},        SeekCase{"<", "Ayşe", ""},
      SeekCase{"=", " Burak", ""},
  };
  Recordset cards = table("IDCard");
  ASSERT_TRUE(cards.Index("PrimaryKey"));
  for (const SeekCase& each : cases) {
    ASSERT_TRUE(cards.Seek(each.comparison, each.key));
    EXPECT_EQ(cards.NoMatch(), each.found.empty()) << each.comparison << each.key;
    EXPECT_EQ(cards.Fields("Name").text(), each.found) << each.comparison << each.key;
  }
  EXPECT_EQ(cards.Seek("~", "a").fault(), Fault::Unsupported);
}

TEST_F(RecordsetTest, AFailedSeekLeavesNoCurrentRecord) {
  addCards({"a", "b"});
  Recordset cards = table("IDCard");
  ASSERT_TRUE(cards.Seek("=", "nobody"));
  EXPECT_TRUE(cards.NoMatch());
  EXPECT_EQ(cards.Edit().fault(), Fault::NoCurrent);
  EXPECT_EQ(cards.Delete().fault(), Fault::NoCurrent);
  EXPECT_EQ(cards.MoveNext().fault(), Fault::NoCurrent);
  EXPECT_TRUE(cards.MoveFirst());
  EXPECT_TRUE(cards.NoMatch()) << "moves leave it alone";
}

TEST_F(RecordsetTest, NamesAreFoundWithoutRegardToCaseAndUnknownOnesAreMissing) {
  addCards({"a"});
  Recordset cards = table("idcard");
  EXPECT_EQ(cards.Fields("NAME").text(), "a");
  EXPECT_TRUE(cards.Index("primarykey"));
  EXPECT_EQ(cards.Index("PrimaryKey7").fault(), Fault::Missing);
  EXPECT_EQ(cards.Fields("Nickname").status().fault(), Fault::Missing);
  EXPECT_EQ(cards.Fields("Nickname").Set("x").fault(), Fault::Missing);
  EXPECT_EQ(store_.OpenRecordset("Patients").error().fault(), Fault::Missing);
  EXPECT_EQ(table("Appointment").Seek("=", "a").fault(), Fault::Missing);
}

TEST_F(RecordsetTest, AddNewStartsWithNullsAndLeavesThePositionAlone) {
  addCards({"b"});
  Recordset cards = table("IDCard");
  ASSERT_EQ(cards.Fields("Name").text(), "b");
  ASSERT_TRUE(cards.AddNew());
  EXPECT_TRUE(cards.Fields("Notes").isNull());
  EXPECT_TRUE(cards.Fields("Name").isNull());
  ASSERT_TRUE(cards.Fields("Name").Set("a"));
  EXPECT_EQ(cards.Fields("Name").text(), "a");
  ASSERT_TRUE(cards.Update());
  EXPECT_EQ(cards.Fields("Name").text(), "b");
  ASSERT_TRUE(cards.SetBookmark(cards.LastModified()));
  EXPECT_EQ(cards.Fields("Name").text(), "a");
  EXPECT_TRUE(cards.MoveNext());
  EXPECT_EQ(cards.Fields("Name").text(), "b");
}

TEST_F(RecordsetTest, EditWritesOnlyWhatWasAssigned) {
  addCards({"a"});
  Recordset cards = table("IDCard");
  Recordset other = table("IDCard");
  ASSERT_TRUE(cards.Edit());
  ASSERT_TRUE(cards.Fields("Notes").Set("kept"));
  ASSERT_TRUE(other.Edit());
  ASSERT_TRUE(other.Fields("Key").Set("¬"));
  ASSERT_TRUE(other.Update());
  ASSERT_TRUE(cards.Update());
  EXPECT_EQ(cards.Fields("Key").text(), "¬");
  EXPECT_EQ(cards.Fields("Notes").text(), "kept");
}

TEST_F(RecordsetTest, ARenamedRowStaysCurrentAtItsNewPlace) {
  addCards({"a", "b", "c"});
  Recordset cards = table("IDCard");
  ASSERT_TRUE(cards.Edit());
  ASSERT_TRUE(cards.Fields("Name").Set("bb"));
  ASSERT_TRUE(cards.Update());
  EXPECT_EQ(cards.Fields("Name").text(), "bb");
  ASSERT_TRUE(cards.MoveNext());
  EXPECT_EQ(cards.Fields("Name").text(), "c");
  EXPECT_EQ(all("IDCard", "Name"), (Texts{"b", "bb", "c"}));
}

TEST_F(RecordsetTest, WritingNeedsABufferAndMovesDiscardIt) {
  addCards({"a", "b"});
  Recordset cards = table("IDCard");
  EXPECT_EQ(cards.Fields("Notes").Set("x").fault(), Fault::NoCurrent);
  EXPECT_EQ(cards.Update().fault(), Fault::NoCurrent);
  ASSERT_TRUE(cards.Edit());
  ASSERT_TRUE(cards.Fields("Notes").Set("lost"));
  ASSERT_TRUE(cards.MoveNext());
  EXPECT_EQ(cards.Update().fault(), Fault::NoCurrent);
  ASSERT_TRUE(cards.AddNew());
  ASSERT_TRUE(cards.Fields("Name").Set("c"));
  ASSERT_TRUE(cards.AddNew());
  EXPECT_TRUE(cards.Fields("Name").isNull());
  cards.CancelUpdate();
  EXPECT_EQ(all("IDCard", "Notes"), (Texts{"", ""}));
}

TEST_F(RecordsetTest, ADeletedRowIsUnreadableAndItsSuccessorFollows) {
  addCards({"a", "b", "c"});
  Recordset cards = table("IDCard");
  ASSERT_TRUE(cards.Seek("=", "b"));
  ASSERT_TRUE(cards.Delete());
  EXPECT_EQ(cards.Fields("Name").status().fault(), Fault::NoCurrent);
  EXPECT_TRUE(cards.Fields("Name").isNull());
  EXPECT_EQ(cards.Delete().fault(), Fault::NoCurrent);
  EXPECT_FALSE(cards.Eof());
  ASSERT_TRUE(cards.MoveNext());
  EXPECT_EQ(cards.Fields("Name").text(), "c");
  ASSERT_TRUE(cards.Delete());
  EXPECT_FALSE(cards.Eof());
  ASSERT_TRUE(cards.MoveNext());
  EXPECT_TRUE(cards.Eof());
  EXPECT_EQ(cards.RecordCount(), 1);
}

TEST_F(RecordsetTest, AFailedUpdateKeepsTheBufferForCorrection) {
  addCards({"Ayşe"});
  Recordset cards = table("IDCard");
  ASSERT_TRUE(cards.AddNew());
  EXPECT_EQ(cards.Update().fault(), Fault::NullKey);
  ASSERT_TRUE(cards.Fields("Name").Set(""));
  EXPECT_EQ(cards.Update().fault(), Fault::ZeroLength);
  ASSERT_TRUE(cards.Fields("Name").Set("AYŞE "));
  const Status duplicate = cards.Update();
  EXPECT_EQ(duplicate.fault(), Fault::Exists);
  EXPECT_NE(duplicate.text().find("IDCard"), std::string::npos);
  EXPECT_NE(duplicate.text().find("PrimaryKey"), std::string::npos);
  ASSERT_TRUE(cards.Fields("Name").Set("Fatma"));
  EXPECT_TRUE(cards.Update());
  EXPECT_EQ(cards.RecordCount(), 2);
}

TEST_F(RecordsetTest, AutoIncrementNumbersAreNeverReused) {
  Recordset rows = table("Financier");
  for (const char* name : {"a", "b", "c"}) ASSERT_TRUE(addTo(rows, "financier", name));
  EXPECT_EQ(rows.LastModified().integer(), 3);
  ASSERT_TRUE(rows.MoveLast());
  ASSERT_TRUE(rows.Delete());
  ASSERT_TRUE(addTo(rows, "financier", "d"));
  EXPECT_EQ(all("Financier", "finance_num"), (Texts{"1", "2", "4"}));
}

TEST_F(RecordsetTest, ATableKeyedByTextMayCountBesideIt) {
  Recordset drugs = table("Drug");
  for (const char* name : {"Zyban", "Aspirin"}) ASSERT_TRUE(addTo(drugs, "drug", name));
  EXPECT_EQ(addTo(drugs, "drug", "ASPIRIN").fault(), Fault::Exists);
  drugs.CancelUpdate();
  ASSERT_TRUE(drugs.Index("PrimaryKey"));
  EXPECT_EQ(rest(drugs, "drug"), (Texts{"Aspirin", "Zyban"}));
  ASSERT_TRUE(drugs.Index("PrimaryKey1"));
  EXPECT_EQ(rest(drugs, "drug"), (Texts{"Zyban", "Aspirin"}));
  ASSERT_TRUE(drugs.Seek("=", 2));
  EXPECT_EQ(drugs.Fields("drug").text(), "Aspirin");
}

TEST_F(RecordsetTest, APlainIndexWalksByFieldThenKeyWithNullsFirst) {
  Recordset rows = table("Financier");
  for (const char* name : {"b", "A", "a", "B"}) ASSERT_TRUE(addTo(rows, "financier", name));
  ASSERT_TRUE(rows.AddNew());
  ASSERT_TRUE(rows.Update());
  ASSERT_TRUE(rows.AddNew());
  ASSERT_TRUE(rows.Update());
  ASSERT_TRUE(rows.Index("PrimaryKey1"));
  EXPECT_EQ(rest(rows, "finance_num"), (Texts{"5", "6", "2", "3", "1", "4"}));
  ASSERT_TRUE(rows.Seek("=", "A"));
  EXPECT_EQ(rows.Fields("finance_num").text(), "2");
  ASSERT_TRUE(rows.MovePrevious());
  EXPECT_EQ(rows.Fields("finance_num").text(), "6");
  ASSERT_TRUE(rows.Seek("=", Value()));
  EXPECT_EQ(rows.Fields("finance_num").text(), "5");
  ASSERT_TRUE(rows.MovePrevious());
  EXPECT_TRUE(rows.Bof());
}

TEST_F(RecordsetTest, ATableWithoutIndexesKeepsItsRowsAsTheyCame) {
  Recordset rows = table("Appointment");
  for (const char* name : {"z", "a", "a"}) ASSERT_TRUE(addTo(rows, "Name", name));
  EXPECT_EQ(all("Appointment", "Name"), (Texts{"z", "a", "a"}));
  EXPECT_EQ(rows.fieldCount(), 2);
  ASSERT_TRUE(rows.MoveFirst());
  ASSERT_TRUE(rows.MoveNext());
  ASSERT_TRUE(rows.Delete());
  EXPECT_EQ(all("Appointment", "Name"), (Texts{"z", "a"}));
}

TEST_F(RecordsetTest, AClosedRecordsetOrStoreAnswersInsteadOfCrashing) {
  addCards({"a"});
  Recordset cards = table("IDCard");
  Recordset closed = table("IDCard");
  closed.Close();
  EXPECT_EQ(closed.MoveFirst().fault(), Fault::NoCurrent);
  EXPECT_EQ(closed.Fields("Name").text(), "");
  EXPECT_EQ(closed.Fields("Name").Set("x").fault(), Fault::NoCurrent);
  ASSERT_TRUE(cards.MoveFirst());
  store_.Close();
  EXPECT_EQ(cards.MoveFirst().fault(), Fault::NoCurrent);
  EXPECT_EQ(cards.Seek("=", "a").fault(), Fault::NoCurrent);
  EXPECT_EQ(cards.AddNew().fault(), Fault::NoCurrent);
  EXPECT_EQ(cards.RecordCount(), 0);
  EXPECT_TRUE(cards.Eof());
  EXPECT_EQ(store_.OpenRecordset("IDCard").error().fault(), Fault::NoCurrent);
}

}  // namespace
}  // namespace dao

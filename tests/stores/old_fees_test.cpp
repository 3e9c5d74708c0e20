#include "stores/old_fees.h"

#include "tests/stores/visit_fixture.h"

namespace stores {
namespace {

using OldFees = VisitTest;

TEST(OldAmount, IsANumberAboveTheLimit) {
  const std::tuple<const char*, bool, const char*> cases[] = {
      {"250000", true, "0.25"},  {"10000", false, ""},
      {"10000,5", true, "0.01"}, {"15000.50", true, "0.02"},
      {"1e9", true, "1000.00"},  {" 2500000 ", true, "2.50"},
      {"1,5e6", true, "1.50"},   {"12,5", false, ""},
      {"-250000", false, ""},    {"250000 TL", false, ""},
      {"1.250.000", false, ""},  {"-", false, ""},
      {"", false, ""},
  };
  for (const auto& [text, old, now] : cases) {
    EXPECT_EQ(isOldAmount(text), old) << text;
    if (old) {
      EXPECT_EQ(newAmount(text), now) << text;
    }
  }
}

struct Amount {
  dao::Recordset ClinicalStore::*table;
  const char* column;
  bool converted = true;
};

TEST_F(OldFees, AreConvertedInTheirTablesAndInNoOther) {
  const Amount amounts[] = {
      {&ClinicalStore::PhysicalExam, "Fee"},   {&ClinicalStore::Operation, "Fee"},
      {&ClinicalStore::GravidControl, "Fee"},  {&ClinicalStore::Lens, "Fee"},
      {&ClinicalStore::Echo, "Fee"},           {&ClinicalStore::Angio, "Fee"},
      {&ClinicalStore::Efor, "Fee"},           {&ClinicalStore::Pathology, "Fee"},
      {&ClinicalStore::LensStock, "Price"},    {&ClinicalStore::LensStock, "Cost price"},
      {&ClinicalStore::Lens, "Price"},         {&ClinicalStore::Lens, "Cost price"},
      {&ClinicalStore::Analyze, "Fee", false}, {&ClinicalStore::PhysicalExam, "Pulse", false}};
  ClinicalStore& clinical = stores_.clinical;
  int number = 0;
  for (const Amount& at : amounts) {
    dao::Recordset& table = clinical.*at.table;
    ASSERT_TRUE(table.AddNew() && table.Fields("Count").Set(++number) &&
                table.Fields(at.column).Set("1250000") && table.Update());
  }
  const auto found = findOldAmounts(clinical);
  ASSERT_TRUE(found.has_value());
  EXPECT_EQ(found->amounts, 12);
  ASSERT_EQ(found->tables.size(), 9U) << "a table with several columns of amounts is one";
  EXPECT_EQ(found->tables[3].name, "Lens");
  EXPECT_EQ(found->tables[3].amounts, 3);
  const auto changed = ConvertOldFees(clinical);
  ASSERT_TRUE(changed.has_value());
  EXPECT_EQ(*changed, 12);
  number = 0;
  for (const Amount& at : amounts) {
    dao::Recordset& table = clinical.*at.table;
    ASSERT_TRUE(table.Seek("=", ++number) && !table.NoMatch());
    EXPECT_EQ(table.Fields(at.column).text(), at.converted ? "1.25" : "1250000") << at.column;
  }
  EXPECT_EQ(ConvertOldFees(clinical).value_or(-1), 0);  // a second run finds nothing
}

TEST_F(OldFees, AreConvertedBeyondOnePageOfRowsOrNotAtAll) {
  ASSERT_TRUE(database().Execute(
      "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 9000) "
      "INSERT INTO [Physical Exam] ([Count], [Fee]) "
      "SELECT i, CASE i % 3 WHEN 0 THEN '15000.50' WHEN 1 THEN '100.00' END FROM n"));
  EXPECT_EQ(findOldAmounts(stores_.clinical)->pointed, 3000);
  EXPECT_EQ(ConvertOldFees(stores_.clinical).value_or(-1), 3000);
  EXPECT_EQ(findOldAmounts(stores_.clinical)->amounts, 0);
  ASSERT_TRUE(stores_.clinical.PhysicalExam.Seek("=", 9000));
  EXPECT_EQ(stores_.clinical.PhysicalExam.Fields("Fee").text(), "0.02");
  // A table that cannot be read leaves the ones before it as they were.
  ASSERT_TRUE(database().Execute("UPDATE [Physical Exam] SET [Fee] = '250000' WHERE [Count] = 1"));
  ASSERT_TRUE(database().dropTable("Pathology"));
  EXPECT_FALSE(ConvertOldFees(stores_.clinical).has_value());
  ASSERT_TRUE(stores_.clinical.PhysicalExam.Seek("=", 1));
  EXPECT_EQ(stores_.clinical.PhysicalExam.Fields("Fee").text(), "250000");
}

}  // namespace
}  // namespace stores

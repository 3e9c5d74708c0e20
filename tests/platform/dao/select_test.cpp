#include "tests/platform/dao/store_fixture.h"

namespace dao {
namespace {

class SelectTest : public StoreTest {
 protected:
  SelectTest() {
    Recordset drugs = table("Drug");
    for (const char* name : {"Aspirin", "aspartam", "Zyban", "[x]", "a5", "it's", "İlaç", "drug"}) {
      EXPECT_TRUE(addTo(drugs, "drug", name));
    }
    Recordset exams = table("Physical Exam");
    EXPECT_TRUE(exams.AddNew());
    EXPECT_TRUE(exams.Fields("Count").Set(1));
    EXPECT_TRUE(exams.Fields("Name").Set("Ayşe"));
    EXPECT_TRUE(exams.Fields("Date").Set(text::DateTime::of(2026, 11, 22, 60)));
    EXPECT_TRUE(exams.Update());
  }
  Texts drugs(const std::string& condition) {
    return all("SELECT *FROM Drug WHERE " + condition, "drug");
  }
};

struct SelectCase {
  const char* condition;
  Texts found;
};

TEST_F(SelectTest, UnderstandsTheStatementsOfTheScreens) {
  const std::array cases{
      SelectCase{R"(drug like "asp*" order by drug asc)", {"aspartam", "Aspirin"}},
      SelectCase{R"(drug like "ASP*" order by drug desc)", {"Aspirin", "aspartam"}},
      SelectCase{R"(drug like "*an")", {"Zyban"}},
      SelectCase{R"(drug like "[[]x]")", {"[x]"}},
      SelectCase{R"(drug like "a#")", {"a5"}},
      SelectCase{R"(drug like "a?")", {"a5"}},
      SelectCase{R"(drug like "[y-z]*")", {"Zyban"}},
      SelectCase{R"(drug like "[!a-z]*" order by drug_num)", {"[x]", "İlaç"}},
      SelectCase{R"(drug like "i*")", {"it's"}},
      SelectCase{R"(drug like "%")", {}},
      SelectCase{R"(drug like "*p*r*n*")", {"Aspirin"}},
      SelectCase{R"(drug = "it's")", {"it's"}},
      SelectCase{R"(drug = "ZYBAN" and drug_num > 0)", {"Zyban"}},
      SelectCase{R"([drug] = "drug")", {"drug"}},
      SelectCase{R"("drug" in ("Zyban", "drug") order by "drug")", {"drug", "Zyban"}},
      SelectCase{R"(drug between "z" and "zz")", {"Zyban"}},
      SelectCase{R"(left(drug,len(drug)-(1)) = "a")", {"a5"}},
      SelectCase{R"(drug_num = 3)", {"Zyban"}},
  };
  for (const SelectCase& each : cases)
    EXPECT_EQ(drugs(each.condition), each.found) << each.condition;
}

TEST_F(SelectTest, ReadsRowsOneByOneWhenAskedTo) {
  Recordset rows =
      store_.OpenForward("SELECT drug, drug_num FROM Drug WHERE drug > ? ORDER BY drug", {"it"})
          .value();
  EXPECT_EQ(rows.MoveFirst().fault(), Fault::Unsupported);
  Texts found;
  while (!rows.Eof()) {
    found.emplace_back(rows.Fields("drug").view());
    EXPECT_EQ(rows.Fields("drug").text(), found.back());
    EXPECT_GT(rows.Fields(1).Value().integer(), 0);
    EXPECT_EQ(rows.Fields(1).view(), "");
    EXPECT_FALSE(rows.Fields(1).isNull());
    EXPECT_TRUE(rows.MoveNext());
  }
  EXPECT_EQ(found, (Texts{"it's", "Zyban"}));
  EXPECT_EQ(rows.MoveNext().fault(), Fault::NoCurrent);
  EXPECT_EQ(rows.Fields(0).Value(), Value());
  EXPECT_FALSE(store_.OpenForward("SELECT nothing").has_value());
  Recordset open = store_.OpenForward("SELECT drug FROM Drug").value();
  store_.Close();
  EXPECT_TRUE(open.Eof());
  EXPECT_EQ(open.Fields(0).view(), "");
}

TEST_F(SelectTest, BindsParametersAndKnowsTypes) {
  Recordset rows =
      store_
          .OpenRecordset("SELECT* FROM [Physical Exam] WHERE Name = ? and DateValue(Date) = ?",
                         {"AYŞE", text::DateTime::of(2026, 11, 22)})
          .value();
  ASSERT_EQ(rows.RecordCount(), 1);
  EXPECT_EQ(rows.Fields("date").Value(), Value(text::DateTime::of(2026, 11, 22, 60)));
  EXPECT_EQ(rows.Fields("Count").Value(), Value(1));
  EXPECT_TRUE(rows.MoveNext());
  EXPECT_TRUE(rows.Eof());
  EXPECT_EQ(rows.MoveNext().fault(), Fault::NoCurrent);
  EXPECT_TRUE(rows.Fields("Count").isNull());
}

TEST_F(SelectTest, QuotedNamesAndASemicolonAreFine) {
  EXPECT_EQ(all("select*from \"Physical Exam\";", "Name"), Texts{"Ayşe"});
  EXPECT_EQ(all("  SELECT Name FROM [Physical Exam] WHERE OK is null", "Name"), Texts{"Ayşe"});
}

TEST_F(SelectTest, ABadStatementIsAFaultAndSelectedRowsAreReadOnly) {
  EXPECT_FALSE(store_.OpenRecordset("SELECT * FROM Physical Exam WHERE;"));
  EXPECT_FALSE(store_.OpenRecordset("SELECT * FROM Drug WHERE drug = \"open"));
  EXPECT_FALSE(store_.OpenRecordset("SELECT * FROM Drug WHERE left(drug, -1) = 'a'"));
  EXPECT_EQ(store_.Execute("DELETE FROM Drug; DELETE FROM IDCard").error().fault(),
            Fault::Unsupported);
  Recordset rows = store_.OpenRecordset("SELECT * FROM Drug").value();
  EXPECT_EQ(rows.Edit().fault(), Fault::Unsupported);
  EXPECT_EQ(rows.Seek("=", 1).fault(), Fault::Unsupported);
  EXPECT_EQ(rows.RecordCount(), 8);
}

TEST_F(SelectTest, AnEmptySelectionHasBothEnds) {
  Recordset rows = store_.OpenRecordset("SELECT * FROM Appointment").value();
  EXPECT_TRUE(rows.Eof() && rows.Bof() && rows.empty());
  EXPECT_EQ(rows.MoveFirst().fault(), Fault::NoCurrent);
}

TEST_F(SelectTest, ExecuteChangesRowsAndCountsThem) {
  EXPECT_EQ(
      store_.Execute("UPDATE Drug SET drug = ? WHERE drug = \"zyban\"", {"Zyban\" 150"}).value(),
      1);
  EXPECT_EQ(drugs("drug_num = 3"), Texts{"Zyban\" 150"});
  EXPECT_EQ(store_.Execute("UPDATE Drug SET drug = 'a5' WHERE drug_num = 3").error().fault(),
            Fault::Exists);
  EXPECT_EQ(store_.Execute("DELETE FROM Drug WHERE drug_num > 3").value(), 5);
}

}  // namespace
}  // namespace dao

// What a rename and a delete of a patient carry along, and what they leave.
#include "tests/stores/patient_cascade_fixture.h"

namespace stores {
namespace {

class PatientCascadeTest : public StoresTest {
 protected:
  PatientCascadeTest() : StoresTest(inMemory()) {
    open();
    EXPECT_TRUE(addPatient(stores_, "Ali Can", 1));
    EXPECT_TRUE(addPatient(stores_, "Veli Can", 2));
  }

  // Word and name, the numbers, their count, the last day.
  std::vector<std::string> ledger() {
    std::vector<std::string> rows;
    dao::Recordset visit =
        stores_.clinical.database.OpenRecordset("SELECT * FROM [Visit] ORDER BY [spname]").value();
    for (; !visit.Eof(); visit.MoveNext().ignore()) {
      rows.push_back(visit.Fields("spname").text() + " " + visit.Fields("Visit Numbers").text() +
                     " " + visit.Fields("Visit Count").Value().text() + " " +
                     visit.Fields("Last Visit Date").Value().text());
    }
    return rows;
  }
  std::string warning(const std::string& name) {
    EXPECT_TRUE(holds(stores_.clinical.tblWarn, name));
    return stores_.clinical.tblWarn.Fields("warn").text();
  }
  void warn(const std::string& name, const std::string& warning) {
    ASSERT_TRUE(execute(stores_.clinical.database, "INSERT OR REPLACE INTO [tblWarn] VALUES(?, ?)",
                        {name, warning}));
  }
};

TEST_F(PatientCascadeTest, ARenameCarriesTheClinicalRowsAndLeavesTheOthers) {
  const Census before = census(stores_, "Ali Can");
  const Census other = census(stores_, "Veli Can");
  ASSERT_TRUE(renamePatient(stores_, "Ali Can", "Ayşe Su"));
  const Census old = census(stores_, "Ali Can");
  const Census now = census(stores_, "Ayşe Su");
  for (const auto& [table, rows] : before) {
    const bool stays = table == "Appointment" || table == "Account";
    EXPECT_EQ(old.at(table), stays ? rows : 0) << table;
    EXPECT_EQ(now.at(table), stays ? 0 : rows) << table;
    EXPECT_GT(rows, 0) << table;
  }
  EXPECT_EQ(census(stores_, "Veli Can"), other);
  EXPECT_EQ(ledger()[0], "GenMed\\Ayşe Su 2;3; 2 2026-03-04");
}

TEST_F(PatientCascadeTest, NamesCompareLikeKeysAndRowsGetTheNewOneAsItIsTyped) {
  ASSERT_TRUE(execute(stores_.clinical.database,
                      "UPDATE [Lens] SET [Name] = 'ALi CAN ' WHERE [Count] = 2", {}));
  for (const char* now : {"Ali CAN", "ali can", "Ali Can*"}) {
    ASSERT_TRUE(renamePatient(stores_, "Ali Can", now));
    EXPECT_EQ(numberOf(stores_.clinical.database,
                       "SELECT count(*) FROM [Lens] WHERE hex([Name]) = hex(?)", {now}),
              2);
    EXPECT_EQ(ledger()[0].substr(0, 7 + std::string(now).size()), "GenMed\\" + std::string(now));
    EXPECT_EQ(warning(now), "");
    EXPECT_EQ(stores_.clinical.tblWarn.Fields("name").text(), now);
    ASSERT_TRUE(holds(cards(), now));
    EXPECT_EQ(cards().Fields("Name").text(), now);
    ASSERT_TRUE(renamePatient(stores_, now, "Ali Can"));
  }
  EXPECT_EQ(census(stores_)["Visit"], 4);
}

TEST_F(PatientCascadeTest, LedgerKeysOfAnyWordAreFound) {
  const auto day = text::DateTime::of(2026, 1, 1);
  for (const char* word : {"", "A", "Göğüs", "Zürafa", "世界", "GenMedZ", "genmed "})
    for (const char* name : {"Ali Can", "Ali Can*", "Ali Can\\x", "世"})
      ASSERT_TRUE(addVisit(stores_, std::string(word) + "\\" + name, "9;", 1, day)) << word;
  ASSERT_TRUE(addVisit(stores_, "Ali Can", "9;", 1, day));  // no key of anybody
  const std::int64_t all = census(stores_)["Visit"];
  ASSERT_TRUE(renamePatient(stores_, "Ali Can", "Ece Su"));
  EXPECT_EQ(census(stores_, "Ece Su")["Visit"], 9);
  ASSERT_TRUE(deletePatient(stores_, "Ece Su"));
  EXPECT_EQ(census(stores_)["Visit"], all - 9);
  EXPECT_EQ(census(stores_, "Ali Can*")["Visit"], 7);
  EXPECT_EQ(census(stores_, "Ali Can\\x")["Visit"], 7);
}

// A card was deleted by another program and its rows stayed.
class LeftoverTest : public PatientCascadeTest {
 protected:
  LeftoverTest() {
    EXPECT_TRUE(
        execute(stores_.personal.database, "DELETE FROM IDCard WHERE Name = 'Veli Can'", {}));
  }
};

TEST_F(LeftoverTest, RowsUnderTheNewNameBecomeThePatients) {
  const auto later = text::DateTime::of(2026, 7, 1);
  ASSERT_TRUE(execute(stores_.clinical.database,
                      "UPDATE [Visit] SET [Last Visit Date] = ? WHERE [spname] = ?",
                      {later, "GenMed\\Veli Can"}));
  ASSERT_TRUE(addVisit(stores_, "ENT\\Veli Can", "7;", 1, later));
  ASSERT_TRUE(execute(stores_.clinical.database, "UPDATE [Motor] SET [motortxt] = [Name]", {}));
  ASSERT_TRUE(renamePatient(stores_, "Ali Can", "Veli Can"));
  const Census merged = census(stores_, "Veli Can");
  for (const char* table : numberedTables) EXPECT_EQ(merged.at(table), 4) << table;
  EXPECT_EQ(ledger(), (std::vector<std::string>{"ENT\\Veli Can 7; 1 2026-07-01",
                                                "GenMed\\Veli Can 2;3;4;5; 4 2026-07-01",
                                                "SurgeryOp\\Veli Can 2;3;4;5; 4 2026-03-04"}));
  ASSERT_TRUE(holds(stores_.clinical.Motor, "Veli Can"));
  EXPECT_EQ(stores_.clinical.Motor.Fields("motortxt").text(), "Ali Can");
  EXPECT_EQ(census(stores_, "Ali Can")["Visit"], 0);
}

TEST_F(LeftoverTest, TwoWarningsBecomeOne) {
  const std::string longText(200, 'u');
  struct Case {
    std::string own, left, merged;
  };
  const Case cases[] = {{"alerji", "gebe", "alerji; gebe"},
                        {"", "gebe", "gebe"},
                        {"alerji", "", "alerji"},
                        {longText, "ğ" + longText, longText + "; ğ" + longText.substr(0, 47)}};
  for (const Case& each : cases) {
    warn("Ali Can", each.own);
    warn("Veli Can", each.left);
    ASSERT_TRUE(renamePatient(stores_, "Ali Can", "Veli Can"));
    EXPECT_EQ(warning("Veli Can"), each.merged);
    EXPECT_FALSE(holds(stores_.clinical.tblWarn, "Ali Can"));
    ASSERT_TRUE(renamePatient(stores_, "Veli Can", "Ali Can"));
  }
}

TEST_F(LeftoverTest, APatientWithoutAWarningKeepsTheOneThatIsThere) {
  ASSERT_TRUE(
      execute(stores_.clinical.database, "DELETE FROM [tblWarn] WHERE [name] = 'Ali Can'", {}));
  ASSERT_TRUE(
      execute(stores_.clinical.database, "DELETE FROM [Motor] WHERE [Name] = 'Ali Can'", {}));
  warn("Veli Can", "gebe");
  ASSERT_TRUE(renamePatient(stores_, "Ali Can", "Veli Can"));
  EXPECT_EQ(warning("Veli Can"), "gebe");
  EXPECT_TRUE(holds(stores_.clinical.Motor, "Veli Can"));
}

TEST_F(PatientCascadeTest, ARefusedCardLeavesTheClinicalRows) {
  const Census before = census(stores_);
  EXPECT_EQ(renamePatient(stores_, "Ali Can", "Veli Can").fault(), dao::Fault::Exists);
  EXPECT_EQ(renamePatient(stores_, "Kimse", "Ece Su").fault(), dao::Fault::NoCurrent);
  EXPECT_EQ(deletePatient(stores_, "Kimse").fault(), dao::Fault::NoCurrent);
  EXPECT_EQ(census(stores_), before);
  EXPECT_EQ(census(stores_, "Ali Can")["Echo"], 2);
}

TEST_F(PatientCascadeTest, ADeleteLeavesRemindersAndWhatWasAgreed) {
  const Census before = census(stores_, "Ali Can");
  const Census other = census(stores_, "Veli Can");
  ASSERT_TRUE(deletePatient(stores_, "Ali Can"));
  for (const auto& [table, rows] : census(stores_, "Ali Can")) {
    const bool stays = table == "Appointment" || table == "Account" || table.starts_with("tbl");
    EXPECT_EQ(rows, stays ? before.at(table) : 0) << table;
  }
  EXPECT_EQ(census(stores_, "Veli Can"), other);
}

TEST_F(PatientCascadeTest, TheOpenTrialGoesWithThePatientAndStaysOnARename) {
  ASSERT_TRUE(CreateSmokingStore(stores_.folder));
  ASSERT_TRUE(addTrial(stores_, "Ali Can", 1));
  ASSERT_TRUE(addTrial(stores_, "ALİ CAN (1)", 2));  // closed
  ASSERT_TRUE(renamePatient(stores_, "Veli Can", "Ali Su"));
  for (const auto& [table, rows] : smokingCensus(stores_)) EXPECT_EQ(rows, 2) << table;
  ASSERT_TRUE(deletePatient(stores_, "Ali Su"));
  for (const auto& [table, rows] : smokingCensus(stores_)) EXPECT_EQ(rows, 2) << table;
  ASSERT_TRUE(deletePatient(stores_, "Ali Can"));
  for (const auto& [table, rows] : smokingCensus(stores_)) EXPECT_EQ(rows, 1) << table;
}

TEST_F(PatientCascadeTest, ASmokingStoreThatCannotBeReadStopsTheDelete) {
  writeBytes(stores_.folder + "Data/Smoke.mdb", std::string(5000, 'x'));
  EXPECT_EQ(deletePatient(stores_, "Ali Can").fault(), dao::Fault::Damaged);
  EXPECT_EQ(census(stores_, "Ali Can")["IDCard"], 1);
  writeBytes(stores_.folder + "Data/Smoke.mdb", "");  // made by somebody who got no further
  EXPECT_TRUE(deletePatient(stores_, "Ali Can"));
  EXPECT_EQ(census(stores_, "Ali Can")["IDCard"], 0);
}

TEST_F(PatientCascadeTest, AStationThatShowsADeletedPatientCanStillSave) {
  Stores other = storesOf(folder_);
  ASSERT_TRUE(OpenStores(other));
  ASSERT_TRUE(holds(other.clinical.PhysicalExam, 2));
  ASSERT_TRUE(other.clinical.PhysicalExam.Edit());
  ASSERT_TRUE(deletePatient(stores_, "Ali Can"));
  EXPECT_EQ(other.clinical.PhysicalExam.Update().fault(), dao::Fault::Stale);
  ASSERT_TRUE(other.clinical.PhysicalExam.AddNew());
  ASSERT_TRUE(other.clinical.PhysicalExam.Fields("Name").Set("Ali Can"));
  ASSERT_TRUE(other.clinical.PhysicalExam.Fields("Count").Set(77));
  EXPECT_TRUE(other.clinical.PhysicalExam.Update());
  EXPECT_EQ(census(stores_, "Ali Can")["Physical Exam"], 1);
}

}  // namespace
}  // namespace stores

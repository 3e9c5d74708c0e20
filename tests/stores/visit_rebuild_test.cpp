// The ledger made anew from the tables.
#include <random>

#include "stores/clinical_tables.h"
#include "tests/stores/visit_fixture.h"

namespace stores {
namespace {

constexpr std::array allKinds{
    &kind::examination,  &kind::operation, &kind::angiography, &kind::echocardiography,
    &kind::exerciseTest, &kind::growth,    &kind::vaccination, &kind::pregnancyControl,
    &kind::pregnancy,    &kind::lens,      &kind::pathology,   &kind::laboratory};

class VisitRebuildTest : public VisitTest {
 protected:
  [[nodiscard]] Rows rebuilt() {
    const dao::Status done = vizitolustur(stores_.clinical);
    EXPECT_TRUE(done) << done.text();
    return ledger();
  }
  // As if the file came from before keys were that wide.
  void narrowKeys(int width) {
    const std::array fields{longText("Visit Numbers"), text("spname", width), number("Visit Count"),
                            date("Last Visit Date")};
    visit().Close();
    ASSERT_TRUE(database().dropTable("Visit"));
    ASSERT_TRUE(database().appendTable({"Visit", fields, clinical::visit.indexes}));
    visit() = std::move(*database().OpenRecordset("Visit"));
  }
};

TEST_F(VisitRebuildTest, NothingComesOfNothing) {
  ASSERT_TRUE(writeLedgerRow(visit(), "Surgery\\Ali Can", {{1}, day(1)}));
  EXPECT_EQ(rebuilt(), Rows());
}

TEST_F(VisitRebuildTest, OnePatientUnderOneSpecialityIsOneRow) {
  record(kind::examination, {"Ayşe Işık", day(20)});
  record(kind::examination, {"Ayşe Işık*", day(21)});
  record(kind::examination, {"Ayşe Işık", day(22), 20});
  record(kind::examination, {"AYŞE IşıK ", day(3)});
  record(kind::examination, {"Ayşe Isik", std::nullopt});
  record(kind::examination, {std::nullopt, day(4)});
  record(kind::pathology, {"Ayşe Işık", day(5)});
  EXPECT_EQ(rebuilt(), Rows({{"GenMed\\Ayşe Işık", 1, "3;", day(22)},
                             {"Surgery\\", 1, "6;", day(4)},
                             {"Surgery\\Ayşe Isik", 1, "5;", std::nullopt},
                             {"Surgery\\Ayşe Işık", 3, "1;4;1;", day(5)},
                             {"Surgery\\Ayşe Işık*", 1, "2;", day(21)}}));
}

TEST_F(VisitRebuildTest, ASpecialityWithoutAWordKeepsTheWordBeforeIt) {
  for (const int speciality : {14, 1, 13, 12, 99, 0, -1, 20, 14})
    record(kind::examination, {"Ali Can", day(1), speciality});
  record(kind::angiography, {"Ali Can", day(2), 13});
  EXPECT_EQ(rebuilt(), Rows({{"\\Ali Can", 1, "1;", day(1)},
                             {"GenMed\\Ali Can", 2, "8;9;", day(1)},
                             {"GenMedAngio\\Ali Can", 1, "1;", day(2)},
                             {"Internal Medicine\\Ali Can", 2, "2;3;", day(1)},
                             {"Urology\\Ali Can", 4, "4;5;6;7;", day(1)}}));
}

TEST_F(VisitRebuildTest, VaccinationsAndControlsKeepTheirOldWays) {
  record(kind::vaccination, {"Operated", day(9)});
  record(kind::operation, {"Operated", day(1)});
  record(kind::vaccination, {"Vaccinated", day(2)});
  record(kind::vaccination, {"Vaccinated", day(3)});
  record(kind::pregnancyControl, {"Expecting", day(4)});
  EXPECT_EQ(rebuilt(), Rows({{"Surgerycont\\Expecting", 1, "1;", day(4)},
                             {"SurgeryOp\\Operated", 1, "1;", day(1)},
                             {"SurgeryOp\\Vaccinated", 1, "2;", day(2)}}));
  EXPECT_TRUE(hasLedgerRow(visit(), ledgerKey("Surgery", kind::pregnancyControl, "Expecting")));
  EXPECT_FALSE(hasLedgerRow(visit(), ledgerKey("Surgery", kind::vaccination, "Vaccinated")));
}

TEST_F(VisitRebuildTest, AKeyWithoutRoomMakesNoRow) {
  std::string name;
  while (text::length(name) < 40) name += "ğ";
  const Visited visited{name, day(1), 1};  // a key of 17 + 5 + 1 + 40 characters
  record(kind::angiography, visited);
  EXPECT_EQ(rebuilt().size(), 1u);
  narrowKeys(63);
  EXPECT_EQ(rebuilt().size(), 1u);
  narrowKeys(62);
  EXPECT_EQ(rebuilt(), Rows());
}

// The rebuild as it is told, record by record, in the table itself.
void rebuildByHand(ClinicalStore& clinical) {
  const std::array<std::string, 21> words{
      "",       "Internal Medicine", "Surgery",    "Pediatrics", "Gynecology", "Ophthalmology",
      "ENT",    "Orthopedics",       "Polyclinic", "Pathology",  "Cardiology", "Neurology",
      "Urology"};
  dao::Recordset& visit = clinical.Visit;
  std::string word;
  clinical.database.Execute("DELETE FROM Visit").value();
  for (const RecordKind* kind : allKinds) {
    dao::Recordset& records = clinical.*kind->recordset;
    for (records.MoveFirst().ignore(); !records.Eof(); records.MoveNext().ignore()) {
      const auto code = static_cast<std::size_t>(records.Fields("Speciality").Value().integer());
      if (const std::string known = code == 20 ? "GenMed" : words.at(code); !known.empty())
        word = known;
      const std::string name = "\\" + records.Fields("Name").text();
      const std::string mark = kind->mark == "Cont" ? "cont" : std::string(kind->mark);
      const std::string written = word + (mark == "Vac" ? "Op" : mark) + name;
      ASSERT_TRUE(visit.Seek("=", word + mark + name));
      const bool isNew = visit.NoMatch();
      const std::int64_t count = isNew ? 0 : visit.Fields("Visit Count").Value().integer();
      const std::string numbers = isNew ? "" : visit.Fields("Visit Numbers").text();
      ASSERT_TRUE(isNew ? visit.AddNew() : visit.Edit());
      visit.Fields("spname").Set(written).ignore();
      visit.Fields("Visit Count").Set(count + 1).ignore();
      visit.Fields("Last Visit Date").Set(records.Fields("Date").Value()).ignore();
      visit.Fields("Visit Numbers").Set(numbers + records.Fields("Count").text() + ";").ignore();
      visit.Update().ignore();
    }
  }
}

TEST_F(VisitRebuildTest, GivesWhatTheRulesGiveRecordByRecord) {
  constexpr std::array names{"Ayşe Işık", "AYŞE IşıK", "Ayşe Işık*", "ayşe Işık ", " Ayşe Işık",
                             "Isik",      "Işık",      "isik",       "İsik",       "Çağ",
                             "cağ",       "Çağ**",     "",           "O'Neil",     "a\\b",
                             "Ali-Can",   "Ali Can",   "Op\\Ali",    "Alí",        "ALÍ"};
  constexpr std::array codes{1, 2, 2, 2, 4, 9, 12, 13, 14, 20};
  std::mt19937 random(4);
  const auto pick = [&](const auto& from) { return from[random() % from.size()]; };
  auto transaction = database().beginTransaction();
  for (int count = 0; count < 1500; ++count) {
    Visited visited{pick(names), day(static_cast<int>(random() % 28) + 1), pick(codes)};
    if (random() % 20 == 0) visited.date.reset();
    ASSERT_NE(addRecord(stores_.clinical, *pick(allKinds), visited), 0);
  }
  rebuildByHand(stores_.clinical);
  ASSERT_TRUE(transaction->commit());
  const Rows expected = ledger();
  ASSERT_GT(expected.size(), 100u);
  EXPECT_EQ(rebuilt(), expected);
  EXPECT_EQ(rebuilt(), expected);
}

class VisitProgressTest : public VisitRebuildTest {
 protected:
  static constexpr std::int64_t records = 9000;
  void SetUp() override {
    VisitTest::SetUp();
    auto transaction = database().beginTransaction();
    for (std::int64_t count = 0; count < records; ++count) {
      const std::string name = "Hasta " + std::to_string(count % 5000);
      ASSERT_NE(addRecord(stores_.clinical, kind::laboratory, {name, day(1)}), 0);
    }
    ASSERT_TRUE(writeLedgerRow(visit(), "Surgery\\Ali Can", {{1}, day(1)}));
    ASSERT_TRUE(transaction->commit());
  }
};

TEST_F(VisitProgressTest, IsToldEveryFewThousandRows) {
  std::vector<std::int64_t> told{0};
  ASSERT_TRUE(vizitolustur(stores_.clinical, [&](std::int64_t done, std::int64_t total) {
    EXPECT_EQ(total, records);
    EXPECT_TRUE(done >= told.back() && done - told.back() <= 5000) << done;
    told.push_back(done);
    return true;
  }));
  EXPECT_EQ(told.back(), records);
  EXPECT_EQ(ledger().size(), 5000u);
}

TEST_F(VisitProgressTest, StoppedAnywhereItLeavesTheLedgerAsItWas) {
  const Rows before = ledger();
  int calls = 0;
  for (int stopAt = 1;; ++stopAt) {
    calls = 0;
    const dao::Status done = vizitolustur(
        stores_.clinical, [&](std::int64_t, std::int64_t) { return ++calls < stopAt; });
    if (done) break;
    EXPECT_EQ(done.fault(), dao::Fault::Other);
    EXPECT_EQ(calls, stopAt);
    EXPECT_EQ(ledger(), before) << stopAt;
  }
  EXPECT_GT(calls, 4);
  EXPECT_EQ(ledger().size(), 5000u);
}

}  // namespace
}  // namespace stores

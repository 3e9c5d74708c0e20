// The rows of the visit ledger, and the lists of dates that are made of them.
#include "stores/visit_ledger.h"

#include "tests/stores/stores_fixture.h"
#include "tests/stores/visit_fixture.h"

namespace stores {
namespace {

using Numbers = std::vector<std::int64_t>;

class VisitLedgerTest : public VisitTest {
 protected:
  [[nodiscard]] Numbers listed(const Numbers& numbers) {
    return numbersOf(listedRecords(database(), kind::examination, numbers));
  }
};

TEST_F(VisitLedgerTest, ARowLivesAsLongAsItHasNumbers) {
  const std::string key = ledgerKey("Surgery", kind::operation, "Ayşe Işık*");
  EXPECT_EQ(key, "SurgeryOp\\Ayşe Işık*");
  EXPECT_FALSE(hasLedgerRow(visit(), key));
  EXPECT_TRUE(readLedgerRow(visit(), key)->numbers.empty());
  EXPECT_TRUE(writeLedgerRow(visit(), key, {}));
  const LedgerRow row{{12, 57, 203}, day(3)};
  ASSERT_TRUE(writeLedgerRow(visit(), key, row));
  EXPECT_EQ(ledger(), Rows({{key, 3, "12;57;203;", day(3)}}));
  EXPECT_TRUE(hasLedgerRow(visit(), "SURGERYop\\AYŞE IşıK* "));
  EXPECT_EQ(readLedgerRow(visit(), key)->lastVisit, day(3));
  ASSERT_TRUE(writeLedgerRow(visit(), "surgeryOP\\ayşe işık*", {{7}, std::nullopt}));
  EXPECT_EQ(ledger(), Rows({{"surgeryOP\\ayşe işık*", 1, "7;", std::nullopt}}));
  ASSERT_TRUE(writeLedgerRow(visit(), key, {}));
  EXPECT_TRUE(ledger().empty());
}

TEST_F(VisitLedgerTest, NumbersAreReadUpToTheLastMark) {
  struct Case {
    const char* text;
    Numbers numbers;
  };
  const std::array cases{Case{"12;57;203;", {12, 57, 203}},
                         Case{"12;57;203", {12, 57}},
                         Case{"12", {}},
                         Case{"", {}},
                         Case{";;", {}},
                         Case{"5;;7;", {5, 7}},
                         Case{" 5 ;x;6y;1 2;7;", {5, 7}},
                         Case{"99999999999999999999;8;", {8}},
                         Case{"3;3;", {3, 3}},
                         Case{"9;4;", {9, 4}}};
  const auto transaction = database().beginTransaction();
  for (const Case& each : cases) {
    ASSERT_TRUE(add(visit(), "spname", each.text));
    ASSERT_TRUE(holds(visit(), each.text) && visit().Edit());
    ASSERT_TRUE(visit().Fields("Visit Numbers").Set(each.text) && visit().Update());
    EXPECT_EQ(readLedgerRow(visit(), each.text)->numbers, each.numbers) << each.text;
  }
}

TEST_F(VisitLedgerTest, AKeyHasRoomForEightyCharacters) {
  std::string widest = "Surgery\\";
  while (text::length(widest) < 80) widest += "ğ";
  EXPECT_TRUE(writeLedgerRow(visit(), widest, {{1}, day(1)}));
  EXPECT_TRUE(hasLedgerRow(visit(), widest));
  EXPECT_EQ(writeLedgerRow(visit(), widest + "ş", {{1}, day(1)}).fault(), dao::Fault::TooLong);
  EXPECT_EQ(ledger().size(), 1u);
}

TEST_F(VisitLedgerTest, RecordsAreListedByDay) {
  const auto& exam = kind::examination;
  const auto transaction = database().beginTransaction();
  for (const int date : {30, 10, 20, 10}) record(exam, {.name = "Ali Can", .date = day(date)});
  record(exam, {.name = "Ali Can", .date = at(day(10), 60)});
  record(exam, {.name = "Ali Can", .date = std::nullopt});
  struct Case {
    Numbers numbers;
    Numbers listed;
  };
  // Five records are there; 1 is of day 30, 2, 4 and 5 of day 10, 3 of day 20, 6 of none.
  const std::array cases{Case{{}, {}},
                         Case{{1, 2, 3, 4}, {2, 4, 3, 1}},
                         Case{{4, 3, 2, 1}, {4, 2, 3, 1}},
                         Case{{5, 4, 2}, {5, 4, 2}},
                         Case{{1, 6}, {6, 1}},
                         Case{{2, 99, 3, 98, 97}, {2, 2, 3, 3, 3}},
                         Case{{99, 98, 2}, {2}},
                         Case{{99}, {}},
                         Case{{-1, 0, 3}, {3}}};
  for (const Case& each : cases)
    EXPECT_EQ(listed(each.numbers), each.listed) << each.numbers.size();
  const auto dates = listedRecords(database(), exam, Numbers{3, 99, 6, 5});
  EXPECT_EQ(*dates, (std::vector<DatedRecord>{
                        {6, text::fromDayNumber(0)}, {5, day(10)}, {3, day(20)}, {3, day(20)}}));
}

TEST_F(VisitLedgerTest, ALongListIsReadAtOnce) {
  Numbers numbers;
  auto transaction = database().beginTransaction();
  for (int number = 1; number <= 40'000; ++number) {
    record(kind::laboratory, {.name = "Ali Can", .date = day(number % 28 + 1)});
    numbers.push_back(number);
  }
  ASSERT_TRUE(transaction->commit());
  const auto records = listedRecords(database(), kind::laboratory, numbers);
  ASSERT_TRUE(records);
  EXPECT_EQ(*records, *patientRecords(database(), kind::laboratory, "Ali Can", 2));
  EXPECT_EQ(records->size(), numbers.size());
}

TEST_F(VisitLedgerTest, ThePatientsOwnRecordsAreFoundByName) {
  const auto& exam = kind::examination;
  const auto transaction = database().beginTransaction();
  for (const char* name : {"Ayşe Işık", "AYŞE IşıK", "Ayşe Işık ", "  Ayşe Işık", "Ayşe Işık*",
                           "Ayse Isik", " Ayşe Isik", "Ayşe Işık"})
    record(exam, {.name = name, .date = day(9)});
  record(exam, {.name = "Ayşe Işık", .date = day(1), .speciality = 14});
  record(exam, {.name = "Ayşe Işık", .date = std::nullopt});
  record(kind::lens, {.name = "Ayşe Işık", .date = day(1)});
  record(exam, {.name = std::nullopt, .date = day(1)});
  record(exam, {.name = "", .date = day(2)});
  struct Case {
    const char* name;
    int speciality;
    Numbers numbers;
  };
  const std::array cases{Case{"Ayşe Işık", 2, {10, 1, 2, 3, 4, 8}},
                         Case{" ayşe işık ", 2, {10, 1, 2, 3, 4, 8}},
                         Case{"Ayşe Işık*", 2, {5}},
                         Case{"Ayse Isik", 2, {6}},
                         Case{"Ayşe Isik", 2, {7}},
                         Case{"Ayşe Işık", 14, {9}},
                         Case{"Ayşe Işık", 3, {}},
                         Case{"Ayşe", 2, {}},
                         Case{"", 2, {12}}};
  for (const Case& each : cases) {
    EXPECT_EQ(numbersOf(patientRecords(database(), exam, each.name, each.speciality)), each.numbers)
        << each.name << each.speciality;
  }
}

TEST_F(VisitLedgerTest, AClosedStoreFailsWithoutACrash) {
  CloseStores(stores_);
  EXPECT_FALSE(hasLedgerRow(visit(), "Surgery\\Ali"));
  EXPECT_FALSE(readLedgerRow(visit(), "Surgery\\Ali"));
  EXPECT_FALSE(writeLedgerRow(visit(), "Surgery\\Ali", {{1}, day(1)}));
  EXPECT_FALSE(listedRecords(database(), kind::lens, Numbers{1}));
  EXPECT_FALSE(patientRecords(database(), kind::lens, "Ali", 2));
  EXPECT_FALSE(vizitolustur(stores_.clinical));
}

}  // namespace
}  // namespace stores

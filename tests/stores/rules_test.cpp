// What the tables accept and refuse.
#include <array>

#include "tests/stores/stores_fixture.h"

namespace stores {
namespace {

class RulesTest : public StoresTest {
 protected:
  void SetUp() override { open(); }
};

TEST_F(RulesTest, ACardNeedsAName) {
  EXPECT_EQ(addCard("").fault(), dao::Fault::ZeroLength);
  ASSERT_TRUE(cards().AddNew());
  EXPECT_EQ(cards().Update().fault(), dao::Fault::NullKey);
  EXPECT_TRUE(cards().empty());
  EXPECT_EQ(add(stores_.personal.Financier, "financier", "").fault(), dao::Fault::ZeroLength);
}

// Names are equal without case; the dotted and the dotless letters are different ones.
TEST_F(RulesTest, NoTwoCardsHaveOneName) {
  struct Case {
    const char* name;
    dao::Fault fault;
  };
  const std::array cases{
      Case{"Ayşe Kaya", dao::Fault::None},    Case{"Ayşe Kaya", dao::Fault::Exists},
      Case{"AYŞE KAYA", dao::Fault::Exists},  Case{"ayşe kaya", dao::Fault::Exists},
      Case{"Ayşe Kaya ", dao::Fault::Exists}, Case{"Ayse Kaya", dao::Fault::None},
      Case{"Ayşe Kaya*", dao::Fault::None},   Case{"Ayşe Kaya**", dao::Fault::None},
      Case{"Isik", dao::Fault::None},         Case{"ISIK", dao::Fault::Exists},
      Case{"Işık", dao::Fault::None},         Case{"İsik", dao::Fault::None},
      Case{"Isık", dao::Fault::None}};
  std::int64_t accepted = 0;
  for (const Case& added : cases) {
    EXPECT_EQ(addCard(added.name).fault(), added.fault) << added.name;
    if (added.fault == dao::Fault::None) ++accepted;
  }
  EXPECT_EQ(cards().RecordCount(), accepted);
}

TEST_F(RulesTest, WidthsCountCharactersNotBytes) {
  const std::string forty = [] {
    std::string name;
    for (int letter = 0; letter < 40; ++letter) name += "ğ";
    return name;
  }();
  EXPECT_TRUE(addCard(forty));
  EXPECT_EQ(addCard(forty + "ş").fault(), dao::Fault::TooLong);
}

TEST_F(RulesTest, TheAppointmentBookTakesEqualRows) {
  for (int row = 0; row < 2; ++row) {
    ASSERT_TRUE(add(stores_.personal.Appointment, "Name", "Ali Can"));
  }
  EXPECT_EQ(stores_.personal.Appointment.RecordCount(), 2);
}

TEST_F(RulesTest, PayersMayShareANameAndGetNumbersOfTheirOwn) {
  dao::Recordset& payers = stores_.personal.Financier;
  ASSERT_TRUE(add(payers, "financier", "Kurum"));
  const dao::Value first = payers.LastModified();
  ASSERT_TRUE(add(payers, "financier", "Kurum"));
  EXPECT_NE(payers.LastModified(), first);
  EXPECT_EQ(payers.RecordCount(), 2);
}

TEST_F(RulesTest, ALedgerRowIsFoundByItsKeyWithoutCase) {
  ASSERT_TRUE(add(stores_.clinical.Visit, "spname", "GenMed\\Ayşe Kaya"));
  EXPECT_TRUE(holds(stores_.clinical.Visit, "genmed\\AYŞE KAYA"));
  EXPECT_EQ(add(stores_.clinical.Visit, "spname", "GENMED\\Ayşe Kaya").fault(), dao::Fault::Exists);
}

}  // namespace
}  // namespace stores

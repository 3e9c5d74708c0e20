#include "stores/value_list.h"

#include "tests/stores/stores_fixture.h"

namespace stores {
namespace {

using Texts = std::vector<std::string>;

class ValueListTest : public StoresTest {
 protected:
  void SetUp() override { open(); }
  PersonalStore& personal() { return stores_.personal; }
};

constexpr std::string_view lists[]{"Place Of Birth", "Profession", "Company",  "Job",
                                   "Relationship",   "Adressing",  "Referance"};

TEST_F(ValueListTest, EachListKeepsItsOwnValues) {
  for (const std::string_view list : lists) {
    EXPECT_TRUE(values(personal(), list).empty());
    ASSERT_TRUE(addValue(personal(), list, list.substr(0, 5)));
  }
  for (const std::string_view list : lists) {
    EXPECT_EQ(values(personal(), list), Texts{std::string(list.substr(0, 5))});
  }
}

TEST_F(ValueListTest, ValuesComeInTheOrderOfTheStore) {
  for (const char* town : {"Zonguldak", "Çanakkale", "izmir", "Ağrı", "Cizre", "Ankara"}) {
    ASSERT_TRUE(addValue(personal(), "Place Of Birth", town));
  }
  EXPECT_EQ(values(personal(), "Place Of Birth"),
            (Texts{"Ağrı", "Ankara", "Çanakkale", "Cizre", "izmir", "Zonguldak"}));
}

TEST_F(ValueListTest, AValueThatIsThereIsNotAddedAgain) {
  ASSERT_TRUE(addValue(personal(), "Job", "Müdür"));
  EXPECT_TRUE(addValue(personal(), "Job", "MÜDÜR"));
  EXPECT_TRUE(addValue(personal(), "job", "Müdür"));
  EXPECT_EQ(values(personal(), "Job"), Texts{"Müdür"});
}

// An empty field of the card is a value like any other.
TEST_F(ValueListTest, TheBlankIsAValue) {
  ASSERT_TRUE(addValue(personal(), "Relationship", ""));
  ASSERT_TRUE(addValue(personal(), "Relationship", ""));
  ASSERT_TRUE(addValue(personal(), "Relationship", "Eşi"));
  EXPECT_EQ(values(personal(), "Relationship"), (Texts{"", "Eşi"}));
  ASSERT_TRUE(deleteValue(personal(), "Relationship", ""));
  EXPECT_EQ(values(personal(), "Relationship"), Texts{"Eşi"});
}

TEST_F(ValueListTest, AValueWiderThanTheColumnIsRefused) {
  const std::string thirty(30, 'k');
  EXPECT_TRUE(addValue(personal(), "Company", thirty));
  EXPECT_EQ(addValue(personal(), "Company", thirty + "k").fault(), dao::Fault::TooLong);
  EXPECT_EQ(changeValue(personal(), "Company", thirty, thirty + "k").fault(), dao::Fault::TooLong);
  EXPECT_EQ(values(personal(), "Company"), Texts{thirty});
}

TEST_F(ValueListTest, AChangeRenamesOneValue) {
  for (const char* job : {"İşçi", "Memur"}) ASSERT_TRUE(addValue(personal(), "Job", job));
  ASSERT_TRUE(changeValue(personal(), "Job", "Memur", "Baş memur"));
  EXPECT_EQ(values(personal(), "Job"), (Texts{"Baş memur", "İşçi"}));
  ASSERT_TRUE(changeValue(personal(), "Job", "Baş memur", "BAŞ MEMUR"));
  EXPECT_EQ(changeValue(personal(), "Job", "Memur", "Şef").fault(), dao::Fault::Missing);
  EXPECT_EQ(changeValue(personal(), "Job", "İşçi", "baş memur").fault(), dao::Fault::Exists);
  EXPECT_EQ(values(personal(), "Job"), (Texts{"BAŞ MEMUR", "İşçi"}));
}

// A change that was refused leaves no open buffer behind.
TEST_F(ValueListTest, ARefusedChangeDoesNotDisturbTheNext) {
  ASSERT_TRUE(addValue(personal(), "Job", "Şef"));
  ASSERT_TRUE(addValue(personal(), "Job", "Usta"));
  ASSERT_FALSE(changeValue(personal(), "Job", "Usta", "Şef"));
  ASSERT_TRUE(addValue(personal(), "Job", "Bekçi"));
  EXPECT_EQ(values(personal(), "Job"), (Texts{"Bekçi", "Şef", "Usta"}));
}

TEST_F(ValueListTest, WhatIsNotThereIsSaid) {
  EXPECT_EQ(deleteValue(personal(), "Job", "Şef").fault(), dao::Fault::Missing);
  EXPECT_EQ(addValue(personal(), "IDCard", "Şef").fault(), dao::Fault::Missing);
  EXPECT_EQ(changeValue(personal(), "Blood Group", "A", "B").fault(), dao::Fault::Missing);
  EXPECT_EQ(deleteValue(personal(), "", "Şef").fault(), dao::Fault::Missing);
  EXPECT_TRUE(values(personal(), "IDCard").empty());
  EXPECT_EQ(valueList(personal(), "IDCard"), nullptr);
}

TEST_F(ValueListTest, AClosedStoreFailsWithoutACrash) {
  CloseStores(stores_);
  EXPECT_FALSE(addValue(personal(), "Job", "Şef"));
  EXPECT_FALSE(deleteValue(personal(), "Job", "Şef"));
  EXPECT_TRUE(values(personal(), "Job").empty());
}

}  // namespace
}  // namespace stores

#include "shell/age.h"

#include <gtest/gtest.h>

#include "tests/support/practice.h"

namespace {

using text::DateTime;

struct AgeCase {
  const char* birth;
  DateTime reference;
  const char* turkish;
};

TEST(Age, IsWrittenByTheRuleOfItsMonths) {
  const support::TemporaryFolder folder;
  support::Desk desk(folder.path());
  const AgeCase cases[] = {
      {"1990", DateTime::of(2026, 11, 22), "36"},  // a year: the difference of years
      {"2026", DateTime::of(2026, 1, 1), "0"},
      {"22.11.2014", DateTime::of(2026, 11, 22), "12"},  // 144 months exactly: years alone
      {"22.12.2014", DateTime::of(2026, 11, 22), "11 Yaş 11 ay"},  // 143 months
      {"22.10.2024", DateTime::of(2026, 11, 22), "2 Yaş 1 ay"},    // 25 months
      {"22.11.2024", DateTime::of(2026, 11, 22), "24 ay 0 Gün"},   // 24 months
      {"31.01.2026", DateTime::of(2026, 3, 1), "1 ay 1 Gün"},  // boundaries say 2, days say less
      {"30.10.2026", DateTime::of(2026, 11, 22), "0 ay 23 Gün"},
      {"29.02.2024", DateTime::of(2025, 2, 28), "12 ay 0 Gün"},  // month ends are clamped
      {"22.11.2026", DateTime::of(2026, 11, 22), "0 ay 0 Gün"},
      {"21.12.2014", DateTime::of(2026, 12, 1), "12"},  // months count boundaries, not days
  };
  for (const AgeCase& c : cases) {
    EXPECT_EQ(shell::yasmetni(desk.station, c.birth, c.reference), c.turkish) << c.birth;
  }
  desk.station.ayarYaz("Language", "eng");
  EXPECT_EQ(shell::yasmetni(desk.station, "22.10.2024", DateTime::of(2026, 11, 22)), "2 Year 1 ay");
}

TEST(Age, OfWhatIsNoBirthOrALaterOneIsNone) {
  const support::TemporaryFolder folder;
  support::Desk desk(folder.path());
  for (const char* birth : {"", "abc", "1.1.90", "99.99.9999", "yesterday", "0000-00-00",
                            "23.11.2026", "01.01.2030", "9999", "2027"}) {
    EXPECT_EQ(shell::yasmetni(desk.station, birth, DateTime::of(2026, 11, 22)), std::nullopt)
        << birth;
  }
}

TEST(BirthField, IsADateOrAYearOfThisWorld) {
  const DateTime today = DateTime::of(2026, 11, 22);
  for (const char* valid : {"1801", "2026", "12.03.1991", "1.1.2000", "29.02.2024"}) {
    EXPECT_TRUE(shell::gecerliDogum(valid, today)) << valid;
  }
  for (const char* invalid : {"", "1800", "2027", "199", "abcd", "12.5x", "31.31.1990", "1e3"}) {
    EXPECT_FALSE(shell::gecerliDogum(invalid, today)) << invalid;
  }
}

}  // namespace

#include "platform/text/date.h"

#include <gtest/gtest.h>

#include <limits>

namespace {

using text::DateTime;

const DateTime today = DateTime::of(2024, 5, 20);

std::string parsed(std::string_view typed) {
  const auto date = text::parseDate(typed, today);
  return date ? text::isoText(*date) : "none";
}

TEST(Date, ReadsWhatPeopleType) {
  const struct {
    std::string_view typed;
    std::string_view iso;
  } cases[] = {
      {"22.11.2026", "2026-11-22"},
      {" 2/1/2026 ", "2026-01-02"},
      {"2-1-2026", "2026-01-02"},
      {"2 1 2026", "2026-01-02"},
      {"2. 1 .2026", "2026-01-02"},
      {"2026-11-22", "2026-11-22"},
      {"2026.1.2", "2026-01-02"},
      {"02.13.1970", "1970-02-13"},
      {"31.2.20", "none"},
      {"31.04.10", "none"},
      {"75.12.31", "none"},
      {"31121975", "1975-12-31"},
      {" 01022003 9:05", "2003-02-01 09:05:00"},
      {"31042010", "none"},
      {"12311975", "none"},
      {"3112197", "none"},
      {"30.2.29", "none"},
      {"31.4.2021", "none"},
      {"29.2.2024", "2024-02-29"},
      {"29.2.1900", "none"},
      {"29.2.2000", "2000-02-29"},
      {"1.1.00", "2000-01-01"},
      {"1.1.29", "2029-01-01"},
      {"1.1.30", "1930-01-01"},
      {"1.1.99", "1999-01-01"},
      {"1.1.0099", "0099-01-01"},
      {"5.6", "2024-06-05"},
      {"5.13", "2024-05-13"},
      {"29.2", "2024-02-29"},
      {"13.13", "none"},
      {"5.2026", "none"},
      {"31.12.9999", "9999-12-31"},
      {"1.1.0000", "none"},
      {"0.1.2020", "none"},
      {"1.1.2020 14:05", "2020-01-01 14:05:00"},
      {"1 1 2020  9:05:07", "2020-01-01 09:05:07"},
      {"5.6 23:59", "2024-06-05 23:59:00"},
      {"1.1.2020 0:00", "2020-01-01"},
      {"1.1.2020 24:00", "none"},
      {"1.1.2020 12:60", "none"},
      {"1.1.2020 12", "none"},
      {"1.1.2020 12:", "none"},
      {"1.1.2020 1:2:3:4", "none"},
      {"1.1.2020:05", "none"},
      {"14:05", "none"},
  };
  for (const auto& c : cases) EXPECT_EQ(parsed(c.typed), c.iso) << c.typed;
}

TEST(Date, RefusesWhatIsNoDate) {
  using namespace std::string_view_literals;
  const std::string_view cases[] = {"",           " ",
                                    "5",          "45000",
                                    "1..2020",    "1.1.",
                                    "1.1.1.1",    ".1.1.2020",
                                    "1.Ocak.20",  "1.1.20200",
                                    "-1.1.2020",  "1,1,2020",
                                    ":",          " :",
                                    ": :",        "99999999999.1.1",
                                    "001.1.2020", "1.1.2020\0"sv,
                                    "\0"sv,       "1\0.1.2020"sv,
                                    "\xff\xfe",   "１.1.2020",
                                    "1.1.2020\n"};
  for (const auto& c : cases) EXPECT_EQ(parsed(c), "none") << c;
  EXPECT_EQ(parsed(std::string(1 << 20, '1')), "none");
  EXPECT_EQ(parsed(std::string(1 << 20, '.')), "none");
}

TEST(Date, ShortDateReadsBackForEveryYear) {
  for (int year = 1; year <= 9999; year += 7) {
    const DateTime date = DateTime::of(year, 2, 28);
    EXPECT_EQ(text::parseDate(text::shortDate(date), today), date) << year;
  }
}

TEST(Date, IsoTextReadsBack) {
  const DateTime dates[] = {DateTime::of(1, 1, 1), DateTime::of(1899, 12, 30, 1),
                            DateTime::of(2024, 2, 29, 86399), DateTime::of(9999, 12, 31)};
  for (const DateTime& date : dates) EXPECT_EQ(text::parseIso(text::isoText(date)), date);
  EXPECT_EQ(text::isoText(dates[2]), "2024-02-29 23:59:59");
}

TEST(Date, IsoIsStrict) {
  using namespace std::string_view_literals;
  const std::string_view cases[] = {"",           "2024-2-29",           "2024-02-30",
                                    "2024/02/29", "2024-02-29 1:00:00",  "2024-02-29T10:00:00",
                                    "2024-02-2x", "2024-02-29 25:00:00", "0000-01-01",
                                    "22.11.2026", "2024-02-29 10:00",    "2024-02-2\0"sv};
  for (const auto& c : cases) EXPECT_FALSE(text::parseIso(c)) << c;
}

TEST(Date, NumbersDaysFromTheEndOf1899) {
  const struct {
    DateTime date;
    long number;
  } cases[] = {{DateTime::of(1899, 12, 30), 0},
               {DateTime::of(1899, 12, 29), -1},
               {DateTime::of(2000, 1, 1, 7200), 36526},
               {DateTime::of(2002, 12, 20), 37610}};
  for (const auto& c : cases) {
    EXPECT_EQ(text::dayNumber(c.date), c.number);
    EXPECT_EQ(text::fromDayNumber(c.number).day, c.date.day);
  }
}

TEST(Date, MonthArithmeticClampsToTheEndOfTheMonth) {
  const struct {
    std::string_view from;
    int months;
    std::string_view to;
  } cases[] = {{"2023-01-31", 1, "2023-02-28"},  {"2024-01-31", 1, "2024-02-29"},
               {"2024-03-31", -1, "2024-02-29"}, {"2024-02-29", 12, "2025-02-28"},
               {"2024-12-15", 1, "2025-01-15"},  {"2024-01-15", -1, "2023-12-15"},
               {"2024-01-31", 0, "2024-01-31"},  {"9999-12-01", 1, "9999-12-31"},
               {"0001-01-15", -1, "0001-01-01"}};
  for (const auto& c : cases) {
    EXPECT_EQ(text::isoText(text::addMonths(*text::parseIso(c.from), c.months)), c.to) << c.from;
  }
  EXPECT_EQ(text::addMonths(DateTime::of(2024, 1, 31, 60), 1), DateTime::of(2024, 2, 29, 60));
}

TEST(Date, ArithmeticEndsAtTheEdgesOfTheCalendar) {
  constexpr long most = std::numeric_limits<long>::max();
  constexpr long least = std::numeric_limits<long>::min();
  constexpr int manyMonths = std::numeric_limits<int>::max();
  const DateTime first = DateTime::of(1, 1, 1);
  const DateTime last = DateTime::of(9999, 12, 31);
  EXPECT_EQ(text::addDays(today, most), last);
  EXPECT_EQ(text::addDays(today, least), first);
  EXPECT_EQ(text::addMonths(today, manyMonths), last);
  EXPECT_EQ(text::addMonths(today, -manyMonths), first);
  EXPECT_EQ(text::fromDayNumber(most), last);
  EXPECT_EQ(text::fromDayNumber(least), first);
}

TEST(Date, DifferencesCountBoundaries) {
  const DateTime january = DateTime::of(2023, 1, 31, 80000);
  const DateTime february = DateTime::of(2023, 2, 1);
  EXPECT_EQ(text::monthsBetween(january, february), 1);
  EXPECT_EQ(text::monthsBetween(february, january), -1);
  EXPECT_EQ(text::monthsBetween(DateTime::of(2022, 12, 31), DateTime::of(2024, 1, 1)), 13);
  EXPECT_EQ(text::yearsBetween(DateTime::of(2022, 12, 31), DateTime::of(2023, 1, 1)), 1);
  EXPECT_EQ(text::daysBetween(january, february), 1);
  EXPECT_EQ(text::daysBetween(DateTime::of(2024, 3, 1), DateTime::of(2024, 2, 28)), -2);
}

TEST(Date, WritesTheShortForms) {
  EXPECT_EQ(text::shortDate(DateTime::of(2026, 1, 2)), "02.01.2026");
  EXPECT_EQ(text::shortDate(DateTime::of(987, 11, 22)), "22.11.0987");
  EXPECT_EQ(text::shortTime(DateTime::of(2026, 1, 2, 5 * 60 + 59)), "00:05");
  EXPECT_EQ(text::shortTime(DateTime::of(2026, 1, 2, 86399)), "23:59");
}

TEST(Date, OrdersByDayAndTime) {
  EXPECT_LT(DateTime::of(2024, 1, 1, 86399), DateTime::of(2024, 1, 2));
  EXPECT_LT(DateTime::of(2024, 1, 2), DateTime::of(2024, 1, 2, 1));
}

}  // namespace

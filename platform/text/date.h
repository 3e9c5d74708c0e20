// Calendar dates with an optional time of day, independent of the process locale and time zone.
#pragma once

#include <chrono>
#include <compare>
#include <optional>
#include <string>
#include <string_view>

namespace text {

// A day of the proleptic Gregorian calendar and the seconds passed of it (0 for a plain date).
// What this header makes lies in the years 1 to 9999: arithmetic beyond ends at the first or the
// last day.
struct DateTime {
  std::chrono::sys_days day{};
  int seconds = 0;

  auto operator<=>(const DateTime&) const = default;

  // Precondition: a day of the calendar.
  static DateTime of(int year, unsigned month, unsigned dayOfMonth, int seconds = 0);
  [[nodiscard]] std::chrono::year_month_day ymd() const { return {day}; }
  [[nodiscard]] int year() const { return static_cast<int>(ymd().year()); }
  [[nodiscard]] unsigned month() const { return static_cast<unsigned>(ymd().month()); }
  [[nodiscard]] unsigned dayOfMonth() const { return static_cast<unsigned>(ymd().day()); }
};

// Whole days since 30 December 1899: the number that the sorted date lists hold.
[[nodiscard]] long dayNumber(const DateTime& date);
[[nodiscard]] DateTime fromDayNumber(long days);

// "2026-11-22", or "2026-11-22 14:05:00" when the time is not midnight.
[[nodiscard]] std::string isoText(const DateTime& date);
[[nodiscard]] std::optional<DateTime> parseIso(std::string_view iso);

// What people type, day before month; the separators are '.', '/', '-' and blanks. The month may be
// a number only. If day and month do not fit in that order but do in the other, they are swapped;
// if neither fits, the year may stand in front with all its digits. Two-digit years 0-29 are 20xx,
// 30-99 are 19xx; without a year it is the year of `today`. Eight digits alone are day, month and
// year; any other single number is no date. A time "h:mm" or "h:mm:ss" may follow.
[[nodiscard]] std::optional<DateTime> parseDate(std::string_view typed, const DateTime& today);

// "22.11.2026" and "14:05".
[[nodiscard]] std::string shortDate(const DateTime& date);
[[nodiscard]] std::string shortTime(const DateTime& date);
// "22.11.2026 14:05".
[[nodiscard]] std::string shortDateTime(const DateTime& date);

// The same day `months` later (or earlier), clamped to the end of the month.
[[nodiscard]] DateTime addMonths(const DateTime& date, int months);
[[nodiscard]] DateTime addDays(const DateTime& date, long days);

// Month and year boundaries crossed from `from` to `to`: 31 January to 1 February is one month.
[[nodiscard]] int monthsBetween(const DateTime& from, const DateTime& to);
[[nodiscard]] int yearsBetween(const DateTime& from, const DateTime& to);
[[nodiscard]] long daysBetween(const DateTime& from, const DateTime& to);

}  // namespace text

#include "platform/text/date.h"

#include <algorithm>
#include <array>

#include "platform/text/utf8.h"

namespace text {
namespace {

using std::chrono::sys_days;
using std::chrono::year_month_day;

constexpr sys_days epoch = std::chrono::year{1899} / 12 / 30;
constexpr sys_days firstDay = std::chrono::year{1} / 1 / 1;
constexpr sys_days lastDay = std::chrono::year{9999} / 12 / 31;

// A number as typed: how many digits it has tells a year from a day.
struct Typed {
  int value = 0;
  std::size_t digits = 0;
};

struct TypedDate {
  std::array<Typed, 3> parts;
  std::size_t count = 0;
};

// Takes the digits at the front; no digits, or more than a year has, are no number.
std::optional<Typed> takeNumber(std::string_view& text) {
  Typed typed;
  while (typed.digits < text.size() && text[typed.digits] >= '0' && text[typed.digits] <= '9') {
    if (typed.digits == 4) return std::nullopt;
    typed.value = typed.value * 10 + (text[typed.digits] - '0');
    ++typed.digits;
  }
  text.remove_prefix(typed.digits);
  if (typed.digits == 0) return std::nullopt;
  return typed;
}

void takeBlanks(std::string_view& text) {
  text.remove_prefix(std::min(text.find_first_not_of(' '), text.size()));
}

// Takes one separator with blanks around it, or blanks alone.
bool takeSeparator(std::string_view& text) {
  const std::size_t before = text.size();
  takeBlanks(text);
  if (!text.empty() && std::string_view{"./-"}.contains(text.front())) text.remove_prefix(1);
  takeBlanks(text);
  return text.size() < before;
}

// Two or three numbers and nothing else.
std::optional<TypedDate> readParts(std::string_view text) {
  TypedDate typed;
  while (typed.count < typed.parts.size()) {
    const auto part = takeNumber(text);
    if (!part) return std::nullopt;
    typed.parts[typed.count++] = *part;
    if (text.empty()) break;
    if (!takeSeparator(text)) return std::nullopt;
  }
  if (!text.empty() || typed.count < 2) return std::nullopt;
  return typed;
}

int fullYear(const Typed& year) {
  if (year.digits > 2) return year.value;
  return year.value + (year.value < 30 ? 2000 : 1900);
}

std::optional<sys_days> makeDay(int year, unsigned month, unsigned dayOfMonth) {
  const year_month_day day{std::chrono::year{year}, std::chrono::month{month},
                           std::chrono::day{dayOfMonth}};
  if (!day.ok() || year < 1 || year > 9999) return std::nullopt;
  return sys_days{day};
}

std::optional<sys_days> makeDay(const Typed& year, const Typed& month, const Typed& dayOfMonth) {
  if (month.digits > 2 || dayOfMonth.digits > 2) return std::nullopt;
  return makeDay(fullYear(year), static_cast<unsigned>(month.value),
                 static_cast<unsigned>(dayOfMonth.value));
}

// "31121975": day, month and year without separators, in this order only.
std::optional<TypedDate> readDigits(std::string_view text) {
  if (text.size() != 8 || text.find_first_not_of("0123456789") != text.npos) return std::nullopt;
  const auto part = [&](std::size_t place, std::size_t digits) {
    std::string_view piece = text.substr(place, digits);
    return *takeNumber(piece);
  };
  return TypedDate{{part(0, 2), part(2, 2), part(4, 4)}, 3};
}

std::optional<sys_days> readDay(std::string_view text, int currentYear) {
  if (const auto digits = readDigits(text))
    return makeDay(digits->parts[2], digits->parts[1], digits->parts[0]);
  const auto typed = readParts(text);
  if (!typed) return std::nullopt;
  const auto& [a, b, c] = typed->parts;
  const Typed year = typed->count == 3 ? c : Typed{currentYear, 4};
  if (const auto day = makeDay(year, b, a)) return day;
  if (const auto day = makeDay(year, a, b)) return day;
  // More than two digits say that the year stands in front: "31.04.10" is a slip, not a day of
  // 1931.
  return typed->count == 3 && a.digits > 2 ? makeDay(a, b, c) : std::nullopt;
}

// "h:mm" or "h:mm:ss".
std::optional<int> readTime(std::string_view text) {
  constexpr std::array<int, 3> limits{24, 60, 60};
  constexpr std::array<int, 3> seconds{3600, 60, 1};
  int total = 0;
  for (std::size_t i = 0; i < limits.size(); ++i) {
    const auto part = takeNumber(text);
    if (!part || part->digits > 2 || part->value >= limits[i]) return std::nullopt;
    total += part->value * seconds[i];
    if (text.empty()) return i == 0 ? std::nullopt : std::optional{total};
    if (text.front() != ':') return std::nullopt;
    text.remove_prefix(1);
  }
  return std::nullopt;
}

std::string padded(unsigned value, std::size_t width) {
  const std::string digits = std::to_string(value);
  return std::string(width - std::min(width, digits.size()), '0') + digits;
}

std::string clockText(const DateTime& date) {
  const auto seconds = static_cast<unsigned>(date.seconds);
  return padded(seconds / 3600, 2) + ':' + padded(seconds / 60 % 60, 2);
}

long monthNumber(const DateTime& date) {
  return date.year() * 12L + static_cast<long>(date.month()) - 1;
}

}  // namespace

DateTime DateTime::of(int year, unsigned month, unsigned dayOfMonth, int seconds) {
  return {
      sys_days{std::chrono::year{year} / std::chrono::month{month} / std::chrono::day{dayOfMonth}},
      seconds};
}

long dayNumber(const DateTime& date) {
  return (date.day - epoch).count();
}

DateTime fromDayNumber(long days) {
  const long first = (firstDay - epoch).count();
  const long last = (lastDay - epoch).count();
  return {epoch + std::chrono::days{std::clamp(days, first, last)}};
}

std::string isoText(const DateTime& date) {
  std::string text = padded(static_cast<unsigned>(date.year()), 4) + '-' + padded(date.month(), 2) +
                     '-' + padded(date.dayOfMonth(), 2);
  if (date.seconds == 0) return text;
  return text + ' ' + clockText(date) + ':' + padded(static_cast<unsigned>(date.seconds) % 60, 2);
}

std::optional<DateTime> parseIso(std::string_view iso) {
  // Fixed positions, so that what one station wrote reads the same at every other.
  const std::string_view picture = "0000-00-00 00:00:00";
  if (iso.size() != 10 && iso.size() != picture.size()) return std::nullopt;
  const auto matches = [](char c, char p) { return p == '0' ? c >= '0' && c <= '9' : c == p; };
  if (!std::equal(iso.begin(), iso.end(), picture.begin(), matches)) return std::nullopt;
  const auto at = [&](std::size_t position, std::size_t digits) {
    std::string_view part = iso.substr(position, digits);
    return takeNumber(part)->value;
  };
  const auto day =
      makeDay(at(0, 4), static_cast<unsigned>(at(5, 2)), static_cast<unsigned>(at(8, 2)));
  if (!day) return std::nullopt;
  if (iso.size() == 10) return DateTime{*day};
  const auto seconds = readTime(iso.substr(11));
  if (!seconds) return std::nullopt;
  return DateTime{*day, *seconds};
}

std::optional<DateTime> parseDate(std::string_view typed, const DateTime& today) {
  typed = trimmed(typed);
  // A time follows behind the last blank before its first colon.
  const std::size_t colon = typed.find(':');
  std::optional<int> seconds = 0;
  if (colon != std::string_view::npos) {
    const std::size_t blank = typed.rfind(' ', colon);
    if (blank == std::string_view::npos) return std::nullopt;
    seconds = readTime(typed.substr(blank + 1));
    typed = trimmed(typed.substr(0, blank));
  }
  const auto day = readDay(typed, today.year());
  if (!day || !seconds) return std::nullopt;
  return DateTime{*day, *seconds};
}

std::string shortDate(const DateTime& date) {
  return padded(date.dayOfMonth(), 2) + '.' + padded(date.month(), 2) + '.' +
         padded(static_cast<unsigned>(date.year()), 4);
}

std::string shortDateTime(const DateTime& date) {
  return shortDate(date) + ' ' + shortTime(date);
}

std::string shortTime(const DateTime& date) {
  return clockText(date);
}

DateTime addMonths(const DateTime& date, int months) {
  const long target = monthNumber(date) + months;
  if (target < 12) return {firstDay, date.seconds};
  if (target >= 10000 * 12L) return {lastDay, date.seconds};
  const auto month = std::chrono::year{static_cast<int>(target / 12)} /
                     std::chrono::month{static_cast<unsigned>(target % 12) + 1};
  const auto last = (month / std::chrono::last).day();
  return {sys_days{month / std::min(last, date.ymd().day())}, date.seconds};
}

DateTime addDays(const DateTime& date, long days) {
  const long first = (firstDay - date.day).count();
  const long last = (lastDay - date.day).count();
  return {date.day + std::chrono::days{std::clamp(days, first, last)}, date.seconds};
}

int monthsBetween(const DateTime& from, const DateTime& to) {
  return static_cast<int>(monthNumber(to) - monthNumber(from));
}

int yearsBetween(const DateTime& from, const DateTime& to) {
  return to.year() - from.year();
}

long daysBetween(const DateTime& from, const DateTime& to) {
  return (to.day - from.day).count();
}

}  // namespace text

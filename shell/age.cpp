#include "shell/age.h"

#include "platform/text/number.h"
#include "platform/text/utf8.h"
#include "shell/text_lookup.h"

namespace shell {

namespace {

constexpr std::size_t shortestDate = 7;
constexpr int monthsOfYearsOnly = 144;
constexpr int monthsOfDaysShown = 24;

std::string monthsAndDays(Station& istasyon, int months, const text::DateTime& birth,
                          const text::DateTime& reference) {
  long days = text::daysBetween(text::addMonths(birth, months), reference);
  while (days < 0) days = text::daysBetween(text::addMonths(birth, --months), reference);
  return std::to_string(months) + " " + metinbul(istasyon, "ay") + " " + std::to_string(days) +
         " " + metinbul(istasyon, "gun");
}

std::string yearsAndMonths(Station& istasyon, int months) {
  return std::to_string(months / 12) + " " + metinbul(istasyon, "yas") + " " +
         std::to_string(months % 12) + " " + metinbul(istasyon, "ay");
}

}  // namespace

std::optional<std::string> yasmetni(Station& istasyon, std::string_view birth,
                                    const text::DateTime& reference) {
  if (text::length(birth) < shortestDate) {
    const auto year = text::wholeNumber(birth);
    if (!year) return std::nullopt;
    if (*year > reference.year()) return std::nullopt;
    return std::to_string(reference.year() - *year);
  }
  const auto date = text::parseDate(birth, reference);
  if (!date || date->day > reference.day) return std::nullopt;
  const int months = text::monthsBetween(*date, reference);
  if (months >= monthsOfYearsOnly) return std::to_string(months / 12);
  if (months <= monthsOfDaysShown) return monthsAndDays(istasyon, months, *date, reference);
  return yearsAndMonths(istasyon, months);
}

bool kisaDogum(std::string_view birth) {
  constexpr std::size_t shortestFullDate = 5;
  return text::length(birth) < shortestFullDate;
}

bool yilMi(std::string_view birth) {
  return text::length(birth) == 4 && text::wholeNumber(birth);
}

bool gecerliDogum(std::string_view birth, const text::DateTime& today) {
  if (yilMi(birth)) {
    const auto year = *text::wholeNumber(birth);
    return year > 1800 && year <= today.year();
  }
  return text::parseDate(birth, today).has_value();
}

}  // namespace shell

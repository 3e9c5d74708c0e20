#include "platform/text/number.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <limits>
#include <string>

#include "platform/text/utf8.h"

namespace text {
namespace {

constexpr double largest = std::numeric_limits<double>::max();

// A number as it stands in a text: [sign] digits [separator digits] [E|D [sign] digits].
struct Literal {
  bool negative = false;
  std::string mantissa;  // with '.' as separator
  int exponent = 0;
  std::size_t end = 0;  // where reading stopped
};

bool isDigit(std::string_view text, std::size_t position) {
  return position < text.size() && text[position] >= '0' && text[position] <= '9';
}

bool isOneOf(std::string_view text, std::size_t position, std::string_view characters) {
  return position < text.size() && characters.contains(text[position]);
}

std::size_t endOfDigits(std::string_view text, std::size_t position) {
  while (isDigit(text, position)) ++position;
  return position;
}

void readExponent(std::string_view text, std::string_view marks, Literal& literal) {
  if (!isOneOf(text, literal.end, marks)) return;
  std::size_t position = literal.end + 1;
  const bool negative = isOneOf(text, position, "-");
  if (isOneOf(text, position, "+-")) ++position;
  if (!isDigit(text, position)) return;
  // Far beyond the range of a double, and far from overflowing an int.
  constexpr int limit = 1'000'000;
  for (; isDigit(text, position); ++position) {
    literal.exponent = std::min(limit, literal.exponent * 10 + (text[position] - '0'));
  }
  if (negative) literal.exponent = -literal.exponent;
  literal.end = position;
}

std::optional<Literal> readLiteral(std::string_view text, std::string_view separators,
                                   std::string_view exponentMarks) {
  Literal literal;
  literal.negative = isOneOf(text, 0, "-");
  const std::size_t start = isOneOf(text, 0, "+-") ? 1 : 0;
  const std::size_t separator = endOfDigits(text, start);
  literal.mantissa = text.substr(start, separator - start);
  literal.end = separator;
  if (isOneOf(text, separator, separators)) {
    literal.end = endOfDigits(text, separator + 1);
    literal.mantissa += '.';
    literal.mantissa += text.substr(separator + 1, literal.end - separator - 1);
  }
  if (literal.mantissa.empty() || literal.mantissa == ".") return std::nullopt;
  readExponent(text, exponentMarks, literal);
  return literal;
}

// Out of range is too large when the first significant digit stands left of the point.
bool isTooLarge(const Literal& literal) {
  const std::size_t point = std::min(literal.mantissa.find('.'), literal.mantissa.size());
  const std::size_t first = literal.mantissa.find_first_of("123456789");
  if (first == std::string::npos) return false;
  return static_cast<double>(point) - static_cast<double>(first) + literal.exponent > 0;
}

// Empty when too large for a double; what is too small is 0.
std::optional<double> valueOf(const Literal& literal) {
  const std::string digits = literal.mantissa + 'e' + std::to_string(literal.exponent);
  double value = 0;
  const auto result = std::from_chars(digits.data(), digits.data() + digits.size(), value);
  if (result.ec == std::errc::result_out_of_range || std::isinf(value)) {
    if (isTooLarge(literal)) return std::nullopt;
    value = 0;
  }
  return literal.negative ? -value : value;
}

double hexadecimal(std::string_view digits) {
  std::uint32_t value = 0;
  const auto result = std::from_chars(digits.data(), digits.data() + digits.size(), value, 16);
  if (result.ec != std::errc{}) return 0;
  if (value <= 0xFFFF) return static_cast<std::int16_t>(value);
  return static_cast<std::int32_t>(value);
}

}  // namespace

double Val(std::string_view text) {
  text.remove_prefix(std::min(text.find_first_not_of(" \t\r\n"), text.size()));
  if (text.starts_with("&H") || text.starts_with("&h")) return hexadecimal(text.substr(2));
  const auto literal = readLiteral(text, ".", "EeDd");
  if (!literal) return 0;
  return valueOf(*literal).value_or(literal->negative ? -largest : largest);
}

std::optional<double> number(std::string_view text) {
  text = trimmed(text);
  const auto literal = readLiteral(text, ".,", "Ee");
  if (!literal || literal->end != text.size()) return std::nullopt;
  return valueOf(*literal);
}

bool isNumeric(std::string_view text) {
  return number(text).has_value();
}

std::optional<long> wholeNumber(std::string_view text) {
  text = trimmed(text);
  if (text.starts_with('+') && isDigit(text, 1)) text.remove_prefix(1);
  long value = 0;
  const char* end = text.data() + text.size();
  const auto result = std::from_chars(text.data(), end, value);
  if (result.ec != std::errc{} || result.ptr != end) return std::nullopt;
  return value;
}

double roundHalfEven(double value) {
  if (!std::isfinite(value)) return value;
  return value - std::remainder(value, 1.0);
}

}  // namespace text

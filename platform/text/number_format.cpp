#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <iterator>

#include "platform/text/number.h"

namespace text {
namespace {

constexpr int reliableDigits = 15;

// The value 0.DIGITS times ten to the power of `point`; no digits is 0.
struct Decimal {
  bool negative = false;
  std::string digits;
  int point = 0;

  [[nodiscard]] int count() const { return static_cast<int>(digits.size()); }
  [[nodiscard]] char digit(int index) const {
    return index < 0 || index >= count() ? '0' : digits[static_cast<std::size_t>(index)];
  }
};

void dropTrailingZeros(Decimal& decimal) {
  decimal.digits.erase(decimal.digits.find_last_not_of('0') + 1);
}

// Keeps so many leading digits, rounding half away from zero.
void roundAt(Decimal& decimal, int keep) {
  if (keep >= decimal.count()) return;
  const bool up = keep >= 0 && decimal.digit(keep) >= '5';
  decimal.digits.resize(static_cast<std::size_t>(std::max(keep, 0)));
  if (up) {
    const std::size_t last = decimal.digits.find_last_not_of('9');
    decimal.digits.resize(last + 1);  // npos + 1 is 0: all were nines
    if (decimal.digits.empty()) {
      decimal.digits.assign(1, '1');
      ++decimal.point;
    } else {
      ++decimal.digits.back();
    }
  }
  dropTrailingZeros(decimal);
}

// Reads the shortest text of the value, "-1.25e+02".
Decimal decimalOf(double value) {
  Decimal decimal;
  if (!std::isfinite(value) || value == 0) return decimal;
  std::array<char, 32> buffer{};
  const char* end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), std::abs(value),
                                  std::chars_format::scientific)
                        .ptr;
  const char* exponent = std::find(static_cast<const char*>(buffer.data()), end, 'e');
  std::copy_if(static_cast<const char*>(buffer.data()), exponent,
               std::back_inserter(decimal.digits), [](char c) { return c != '.'; });
  const char* power = exponent + (exponent[1] == '+' ? 2 : 1);
  std::from_chars(power, end, decimal.point);
  ++decimal.point;
  decimal.negative = value < 0;
  dropTrailingZeros(decimal);
  return decimal;
}

std::string written(const Decimal& decimal, int wholeDigits, int decimals) {
  std::string text;
  if (decimal.negative && !decimal.digits.empty()) text += '-';
  const int whole = std::max(decimal.digits.empty() ? 0 : decimal.point, wholeDigits);
  const int first = decimal.digits.empty() ? -whole : decimal.point - whole;
  for (int i = 0; i < whole; ++i) text += decimal.digit(first + i);
  if (decimals > 0) text += '.';
  for (int i = 0; i < decimals; ++i) text += decimal.digit(first + whole + i);
  return text;
}

}  // namespace

std::string amount(double value) {
  return format(value, "0.00");
}

std::string format(double value, std::string_view picture) {
  const std::string_view before = picture.substr(0, picture.find('.'));
  const int decimals =
      std::max(0, static_cast<int>(picture.size()) - static_cast<int>(before.size()) - 1);
  Decimal decimal = decimalOf(value);
  if (decimal.point + decimals < reliableDigits) roundAt(decimal, reliableDigits);
  roundAt(decimal, decimal.point + decimals);
  return written(decimal, static_cast<int>(std::ranges::count(before, '0')), decimals);
}

std::string plainText(double value) {
  Decimal decimal = decimalOf(value);
  roundAt(decimal, reliableDigits);
  return written(decimal, 1, std::max(0, decimal.count() - decimal.point));
}

}  // namespace text

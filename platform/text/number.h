// Numbers in people's texts. Reading and writing are the same in every region and process locale.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace text {

// The number at the start of a text, behind leading blanks, up to the first character that cannot
// continue it; 0 without one. Only '.' is a decimal point; exponents are E or D; &H starts a
// hexadecimal number of at most 32 bits, with the sign bit of its 16- or 32-bit word. Beyond the
// range of a double: the largest one.
[[nodiscard]] double Val(std::string_view text);

// A text that is a number as a whole: blanks around, a sign, digits with a comma or a point, an
// exponent. "1.234,5", "", "1e9abc" and what a double cannot hold are none.
[[nodiscard]] std::optional<double> number(std::string_view text);
[[nodiscard]] bool isNumeric(std::string_view text);
// Digits only, with blanks around and a sign.
[[nodiscard]] std::optional<long> wholeNumber(std::string_view text);

// To the nearest whole number, ties to the even one.
[[nodiscard]] double roundHalfEven(double value);

// Writing, always with a decimal point. A double is good for 15 decimal digits; where there is room
// for them, the noise that arithmetic leaves behind those is rounded away first: 14.499999999999998
// is written, and rounded, as 14.5. What is not finite is written as 0.

// The picture "0.00": "1250.50".
[[nodiscard]] std::string amount(double value);

// A picture of '#' and '0', one point at most: every '0' before the point is a digit at least, and
// every sign behind it is a decimal. Digits before the point are never cut: 12.6 in "####" is
// "13", 0 is "", and 0.5 in "#.00" is ".50". Half is rounded away from zero, on the decimal digits.
[[nodiscard]] std::string format(double value, std::string_view picture);

// As many decimals as the number has, without an exponent: "0.1", "-3", "70.25".
[[nodiscard]] std::string plainText(double value);

}  // namespace text

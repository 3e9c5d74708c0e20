#include "platform/text/number.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <locale>
#include <string>

namespace {

using namespace std::string_view_literals;

constexpr double huge = std::numeric_limits<double>::max();
constexpr double infinity = std::numeric_limits<double>::infinity();

TEST(Val, ReadsTheLeadingNumber) {
  const struct {
    std::string_view typed;
    double value;
  } cases[] = {
      {"", 0},
      {"  70 kg", 70},
      {"\t5", 5},
      {"1,5", 1},
      {"1.5", 1.5},
      {".5", 0.5},
      {"-.5x", -0.5},
      {"+3", 3},
      {"--3", 0},
      {"5.", 5},
      {".", 0},
      {"-", 0},
      {"1.2.3", 1.2},
      {"120/80", 120},
      {"120 80", 120},
      {"1e3", 1000},
      {"1D3", 1000},
      {"2d-1", 0.2},
      {"3 d", 3},
      {"3dk", 3},
      {"1e", 1},
      {"1e+", 1},
      {"1e+x", 1},
      {"e5", 0},
      {"inf", 0},
      {"nan", 0},
      {"0x10", 0},
      {"&HFF", 255},
      {"&hffff", -1},
      {"&H10000", 65536},
      {"&H8000000F", -2147483633},
      {"&H", 0},
      {"&HFFFFFFFFF", 0},
      {"1\0002"sv, 1},
      {"\xff", 0},
      {"1e999", huge},
      {"-1e999", -huge},
      {"1e-999", 0},
      {"0e999", 0},
      {"1e99999999999999999999", huge},
      {"1e-99999999999999999999", 0},
      {"0.1", 0.1},
      {"1.7976931348623157e308", huge},
  };
  for (const auto& c : cases) EXPECT_EQ(text::Val(c.typed), c.value) << c.typed;
}

TEST(Val, SurvivesEndlessDigits) {
  const std::string digits(100'000, '9');
  EXPECT_EQ(text::Val(digits), huge);
  EXPECT_EQ(text::Val("-" + digits), -huge);
  EXPECT_EQ(text::Val("0." + digits), 1);
  EXPECT_EQ(text::Val("0." + std::string(100'000, '0') + "1"), 0);
  EXPECT_EQ(text::Val("0." + std::string(400, '0') + "1e401"), 1);
}

TEST(Number, TakesCommaOrPointAndNothingElse) {
  const struct {
    std::string_view typed;
    std::optional<double> value;
  } cases[] = {
      {"12", 12},     {"12,5", 12.5},  {" 12.5 ", 12.5}, {"-3", -3},   {"+3", 3},
      {",5", 0.5},    {"5,", 5},       {"1e3", 1000},    {"", {}},     {" ", {}},
      {"1e9abc", {}}, {"1.234,5", {}}, {"1,2,3", {}},    {"12 5", {}}, {"abc", {}},
      {"-", {}},      {",", {}},       {"e5", {}},       {"1e", {}},   {"inf", {}},
      {"nan", {}},    {"0x10", {}},    {"&HFF", {}},     {"1d3", {}},  {"12\t", {}},
      {"1e999", {}},  {"1e-999", 0},   {"12\0"sv, {}},   {"١٢", {}},   {"12 kg", {}},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(text::number(c.typed), c.value) << c.typed;
    EXPECT_EQ(text::isNumeric(c.typed), c.value.has_value()) << c.typed;
  }
}

TEST(WholeNumber, TakesDigitsOnly) {
  const struct {
    std::string_view typed;
    std::optional<long> value;
  } cases[] = {
      {"12", 12},
      {" -7 ", -7},
      {"+7", 7},
      {"007", 7},
      {"", {}},
      {"+", {}},
      {"+-7", {}},
      {"1.0", {}},
      {"1e3", {}},
      {"12a", {}},
      {"- 7", {}},
      {"9223372036854775807", std::numeric_limits<long>::max()},
      {"9223372036854775808", {}},
  };
  for (const auto& c : cases) EXPECT_EQ(text::wholeNumber(c.typed), c.value) << c.typed;
}

TEST(Format, FollowsThePictures) {
  const struct {
    double value;
    std::string_view picture;
    std::string_view text;
  } cases[] = {
      {0, "0.00", "0.00"},
      {0.5, "0.00", "0.50"},
      {1234567.891, "0.00", "1234567.89"},
      {-1.5, "0.00", "-1.50"},
      {-0.001, "0.00", "0.00"},
      {-0.0, "0.00", "0.00"},
      {0.5, "#.00", ".50"},
      {0, "#.00", ".00"},
      {-0.5, "###.00", "-.50"},
      {1234.5, "###.00", "1234.50"},
      {0, "####", ""},
      {12.6, "####", "13"},
      {36526, "####", "36526"},
      {0.4, "####", ""},
      {0.5, "####", "1"},
      {0, "0", "0"},
      {2.5, "0", "3"},
      {-2.5, "0", "-3"},
      {0.04, "0.0", "0.0"},
      {0.05, "0.0", "0.1"},
      {9.96, "0.0", "10.0"},
      {7, "00", "07"},
      {0.007, "0.00", "0.01"},
      {99.995, "0.00", "100.00"},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(text::format(c.value, c.picture), c.text) << c.value << " in " << c.picture;
  }
}

TEST(Format, RoundsTheDecimalDigitsNotTheBinaryOnes) {
  // None of these is exact in binary; all lie below the half there.
  EXPECT_EQ(text::amount(1.005), "1.01");
  EXPECT_EQ(text::amount(2.675), "2.68");
  EXPECT_EQ(text::amount(-1.005), "-1.01");
  EXPECT_EQ(text::format(100 * 0.145, "0"), "15");  // 14.499999999999998
  EXPECT_EQ(text::amount(1.0049), "1.00");
  EXPECT_EQ(text::amount(0.994999), "0.99");
}

TEST(Format, KeepsTheCentsOfLargeAmounts) {
  EXPECT_EQ(text::amount(12345678901234.56), "12345678901234.56");
  EXPECT_EQ(text::amount(-999999999999.995), "-1000000000000.00");
}

TEST(Format, SurvivesEveryDouble) {
  EXPECT_EQ(text::amount(infinity), "0.00");
  EXPECT_EQ(text::amount(std::nan("")), "0.00");
  EXPECT_EQ(text::amount(1e300).size(), 304U);
  EXPECT_EQ(text::amount(-huge).size(), 313U);
  EXPECT_EQ(text::amount(std::numeric_limits<double>::denorm_min()), "0.00");
  EXPECT_EQ(text::format(3.7, ""), "4");
  EXPECT_EQ(text::format(3.7, "."), "4");
}

TEST(PlainText, IsWhatAPersonWouldWrite) {
  const struct {
    double value;
    std::string_view text;
  } cases[] = {{0, "0"},
               {-0.0, "0"},
               {3, "3"},
               {-3, "-3"},
               {0.1, "0.1"},
               {70.25, "70.25"},
               {0.1 + 0.2, "0.3"},
               {1e20, "100000000000000000000"},
               {1e-7, "0.0000001"},
               {120, "120"},
               {infinity, "0"},
               {-0.5, "-0.5"}};
  for (const auto& c : cases) EXPECT_EQ(text::plainText(c.value), c.text);
}

TEST(RoundHalfEven, PrefersTheEvenNeighbour) {
  const struct {
    double value;
    double rounded;
  } cases[] = {{0.5, 0}, {1.5, 2}, {2.5, 2}, {-0.5, 0},      {-1.5, -2},
               {7.5, 8}, {2.4, 2}, {2.6, 3}, {1e300, 1e300}, {infinity, infinity}};
  for (const auto& c : cases) EXPECT_EQ(text::roundHalfEven(c.value), c.rounded) << c.value;
}

// A decimal comma and digit groups, as a host application or a library might install them.
struct CommaPunct : std::numpunct<char> {
  char do_decimal_point() const override { return ','; }
  char do_thousands_sep() const override { return '.'; }
  std::string do_grouping() const override { return "\3"; }
};

class CommaLocale {
 public:
  CommaLocale() : before_(std::locale::global(std::locale(std::locale(), new CommaPunct))) {
    std::setlocale(LC_ALL, "tr_TR.UTF-8");  // where the machine has it
  }
  ~CommaLocale() {
    std::setlocale(LC_ALL, "C");
    std::locale::global(before_);
  }
  CommaLocale(const CommaLocale&) = delete;
  CommaLocale& operator=(const CommaLocale&) = delete;

 private:
  std::locale before_;
};

TEST(Number, DoesNotDependOnTheProcessLocale) {
  const CommaLocale comma;
  EXPECT_EQ(text::Val("1.5"), 1.5);
  EXPECT_EQ(text::number("12,5"), 12.5);
  EXPECT_EQ(text::number("12.5"), 12.5);
  EXPECT_EQ(text::amount(1234567.5), "1234567.50");
  EXPECT_EQ(text::plainText(1234.25), "1234.25");
}

}  // namespace

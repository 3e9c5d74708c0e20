#include "platform/text/utf8.h"

#include <gtest/gtest.h>

#include <limits>

namespace {

using namespace std::string_view_literals;

constexpr std::ptrdiff_t most = std::numeric_limits<std::ptrdiff_t>::max();

TEST(Utf8, CountsCharacters) {
  const struct {
    std::string_view text;
    std::size_t count;
  } cases[] = {{"", 0},         {"abc", 3},          {"Işık", 4},     {"€😀", 2},
               {"\xff\xfe", 2}, {"a\xc3", 2},        {"\xc3(", 2},    {"\xe2\x82", 1},
               {"\0\0"sv, 2},   {"\xed\xa0\x80", 3}, {"\xc0\x80", 2}, {"\xf4\x90\x80\x80", 4}};
  for (const auto& c : cases) EXPECT_EQ(text::length(c.text), c.count) << c.text;
}

TEST(Utf8, TakesPartsByCharacter) {
  EXPECT_EQ(text::left("Şükrü", 2), "Şü");
  EXPECT_EQ(text::left("Şükrü", 9), "Şükrü");
  EXPECT_EQ(text::left("Şükrü", 0), "");
  EXPECT_EQ(text::left("Şükrü", -1), "");
  EXPECT_EQ(text::right("Şükrü", 2), "rü");
  EXPECT_EQ(text::right("Şükrü", most), "Şükrü");
  EXPECT_EQ(text::right("Şükrü", -3), "");
  EXPECT_EQ(text::mid("Şükrü", 2, 3), "ükr");
  EXPECT_EQ(text::mid("Şükrü", 5), "ü");
  EXPECT_EQ(text::mid("Şükrü", 6), "");
  EXPECT_EQ(text::mid("Şükrü", 0, 2), "");
  EXPECT_EQ(text::mid("Şükrü", -4), "");
  EXPECT_EQ(text::mid("Şükrü", 1, -1), "");
  EXPECT_EQ(text::mid("Şükrü", most, most), "");
}

TEST(Utf8, CutsToTheWidthOfAField) {
  EXPECT_EQ(text::cut("Gülşen", 3), "Gül");
  EXPECT_EQ(text::cut("Gülşen", 6), "Gülşen");
  EXPECT_EQ(text::cut("Gülşen", 7), "Gülşen");
  EXPECT_EQ(text::cut("Gülşen", 0), "");
}

TEST(Utf8, TrimsBlanksOnly) {
  EXPECT_EQ(text::trim("  a b "), "a b");
  EXPECT_EQ(text::trim(" \ta\n "), "\ta\n");
  EXPECT_EQ(text::trim("   "), "");
  EXPECT_EQ(text::trim(""), "");
  EXPECT_EQ(text::trimmed(" \0 "sv), "\0"sv);
}

TEST(Utf8, SanitizesBrokenText) {
  EXPECT_EQ(text::sanitize("Işık"), "Işık");
  EXPECT_EQ(text::sanitize("a\xff"
                           "b"),
            "a\uFFFDb");
  EXPECT_EQ(text::sanitize("a\xc3"), "a\uFFFD");
  EXPECT_EQ(text::sanitize("\xe2\x82z"), "\uFFFDz");
  EXPECT_EQ(text::sanitize("\xc0\x80"), "\uFFFD\uFFFD");
}

TEST(Utf8, AppendsScalarValuesOnly) {
  std::string text;
  for (const char32_t c : {U'a', U'ş', U'€', U'😀', char32_t{0xD800}, char32_t{0x110000}}) {
    text::appendCharacter(text, c);
  }
  EXPECT_EQ(text, "aş€😀\uFFFD\uFFFD");
}

TEST(Utf8, EveryCharacterReadsBack) {
  for (char32_t c = 0; c <= 0x10FFFF; ++c) {
    if (c >= 0xD800 && c <= 0xDFFF) continue;
    std::string text;
    text::appendCharacter(text, c);
    std::size_t position = 0;
    ASSERT_EQ(text::nextCharacter(text, position), c);
    ASSERT_EQ(position, text.size());
  }
}

}  // namespace

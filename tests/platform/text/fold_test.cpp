#include "platform/text/fold.h"

#include <gtest/gtest.h>

#include "platform/text/utf8.h"

namespace {

TEST(Upper, MapsAsUnicodesRootDoes) {
  const struct {
    std::string_view text;
    std::string_view upper;
    std::string_view turkish;
  } cases[] = {{"", "", ""},
               {"abc xyz09{", "ABC XYZ09{", "ABC XYZ09{"},
               {"ilik", "ILIK", "İLİK"},
               {"ılık", "ILIK", "ILIK"},
               {"IİİI", "IİİI", "IİİI"},
               {"çğöşüâî", "ÇĞÖŞÜÂÎ", "ÇĞÖŞÜÂÎ"},
               {"şişli", "ŞIŞLI", "ŞİŞLİ"},
               {"straße", "STRASSE", "STRASSE"},
               {"ıi", "II", "Iİ"},
               {"ŉÿµſ", "ʼNŸΜS", "ʼNŸΜS"},
               {"i\u0307 aλ", "I\u0307 AΛ", "İ\u0307 AΛ"},
               {"λόγος", "ΛΌΓΟΣ", "ΛΌΓΟΣ"}};
  for (const auto& c : cases) {
    EXPECT_EQ(text::upper(c.text), c.upper) << c.text;
    EXPECT_EQ(text::upperTurkish(c.text), c.turkish) << c.text;
  }
}

// Every letter of the quick way is the one that the case mapper would have made.
TEST(Upper, IsTheSameWithAndWithoutTheCaseMapper) {
  for (char32_t letter = 1; letter < 0x200; ++letter) {
    std::string alone;
    text::appendCharacter(alone, letter);
    // A letter from far beyond makes the whole text go through the case mapper.
    EXPECT_EQ(text::upper(alone) + "Ω", text::upper(alone + "ω")) << alone;
    EXPECT_EQ(text::upperTurkish(alone) + "Ω", text::upperTurkish(alone + "ω")) << alone;
  }
  std::string reused(1000, 'x');
  text::upperTurkishInto(reused, "ilk");
  EXPECT_EQ(reused, "İLK");
}

TEST(Lower, MapsAsUnicodesRootDoes) {
  EXPECT_EQ(text::lower("ABCXYZ@["), "abcxyz@[");
  EXPECT_EQ(text::lower("ÇĞÖŞÜ I"), "çğöşü i");
  EXPECT_EQ(text::lower("İ"), "i\u0307");
}

TEST(Fold, LeavesBrokenBytesAlone) {
  using namespace std::string_view_literals;
  EXPECT_EQ(text::upper("a\xff\xc3"), "A\xff\xc3");
  EXPECT_EQ(text::upperTurkish("i\xff"), "İ\xff");
  EXPECT_EQ(text::lower("\xc3"), "\xc3");
  EXPECT_EQ(text::upper("a\0b"sv), "A\0B"sv);
}

TEST(EqualsNoCase, ComparesNames) {
  const struct {
    std::string_view a;
    std::string_view b;
    bool equal;
  } cases[] = {{"", "", true},
               {"Physical Exam", "PHYSICAL exam", true},
               {"Main", "Main2", false},
               {"Main2", "Main", false},
               {"[", "{", false},
               {"@", "`", false},
               {"Speciality", "SPECIALITY", true},
               {"I", "ı", false},
               {"i", "İ", false},
               {"Şüphe", "şÜPHE", true},
               {"k", "\u212A", true},   // the Kelvin sign: one letter, different lengths in bytes
               {"\xff", "\xfe", true},  // both read as U+FFFD
               {"\xc3", "\xc3\xa9", false}};
  for (const auto& c : cases) {
    EXPECT_EQ(text::equalsNoCase(c.a, c.b), c.equal) << c.a << " " << c.b;
    EXPECT_EQ(text::hashNoCase(c.a) == text::hashNoCase(c.b), c.equal) << c.a << " " << c.b;
  }
}

TEST(HashNoCase, SeparatesTheNamesOfAKey) {
  const auto pair = [](std::string_view a, std::string_view b) {
    return text::hashNoCase(b, text::hashNoCase(a));
  };
  EXPECT_EQ(pair("Main", "CurX"), pair("MAIN", "curx"));
  EXPECT_NE(pair("ab", "c"), pair("a", "bc"));
  EXPECT_NE(pair("", "abc"), pair("abc", ""));
}

}  // namespace

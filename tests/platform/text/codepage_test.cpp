#include "platform/text/codepage.h"

#include <gtest/gtest.h>

#include "platform/text/nearest.h"

namespace {

TEST(TurkishCodePage, HoldsTheTurkishLetters) {
  const struct {
    std::string_view text;
    std::string_view bytes;
  } cases[] = {{"", ""},
               {"ıİşŞğĞ", "\xfd\xdd\xfe\xde\xf0\xd0"},
               {"çÇöÖüÜ", "\xe7\xc7\xf6\xd6\xfc\xdc"},
               {"€“”–…™", "\x80\x93\x94\x96\x85\x99"},
               {"Ayşe Yılmaz",
                "Ay\xfe"
                "e Y\xfdlmaz"}};
  for (const auto& c : cases) {
    EXPECT_EQ(text::toTurkishCodePage(c.text), c.bytes) << c.text;
    EXPECT_EQ(text::fromTurkishCodePage(c.bytes), c.text) << c.text;
  }
}

TEST(TurkishCodePage, LosesNoByte) {
  std::string bytes;
  for (int byte = 0; byte < 256; ++byte) bytes += static_cast<char>(byte);
  EXPECT_EQ(text::toTurkishCodePage(text::fromTurkishCodePage(bytes)), bytes);
}

TEST(TurkishCodePage, AsksWhatItCannotHold) {
  EXPECT_EQ(text::toTurkishCodePage("Жа 漢 😀"), "?? ? ?");
  EXPECT_EQ(text::toTurkishCodePage("ðÐ"), "??");  // Icelandic letters that Turkish ones replace
  EXPECT_EQ(text::toTurkishCodePage("\xff"), "?");
}

TEST(TurkishCodePage, OffersTheNearestOfWhatItLacks) {
  const struct {
    std::string_view text;
    std::string_view nearest;
  } cases[] = {{"Ayşe Yılmaz €", "Ayşe Yılmaz €"},
               {"Łukasz Dvořák", "Lukasz Dvorák"},
               {"s\u0327 i\u0307", "ş i"},  // a letter and its mark; one that has no such mark
               {"≥ ≤ → ← − ≠", ">= <= -> <- - <>"},
               {"ðÐÞ ə", "dDTh e"},
               {"x⁴ H₂O ℃ ﬁ", "x4 H2O °C fi"},
               {"Иван Αθηνά", "Ivan Athena"},
               {"a\u200Bb\uFEFF", "ab"},
               {"😀\uFE0F \xff", "? ?"}};
  for (const auto& c : cases) {
    EXPECT_EQ(text::nearestTurkish(c.text), c.nearest) << c.text;
    EXPECT_EQ(text::nearestTurkish(c.nearest), c.nearest) << "once is enough";
  }
  EXPECT_EQ(text::substitutesIn("Ł→Ł\u200B şs\u0327"),
            (std::vector<text::Substitute>{{"Ł", "L"}, {"→", "->"}}));
}

}  // namespace

#include "platform/text/codepage.h"

#include <gtest/gtest.h>

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

}  // namespace

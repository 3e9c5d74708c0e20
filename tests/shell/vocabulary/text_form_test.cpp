// The form of every text: what a caption may not contain.
#include <gtest/gtest.h>

#include <cstddef>
#include <set>

#include "shell/vocabulary/vocabulary.h"

namespace shell {
namespace {

constexpr std::string_view kLineBreak = "\n\r";

bool isMessage(std::string_view key) {
  return key.starts_with("msg") || key.starts_with("inp") || key == "msherisilemez";
}

unsigned byteAt(std::string_view text, std::size_t at) {
  return at < text.size() ? static_cast<unsigned char>(text[at]) : 0U;
}

// Turkish needs no more than the two-byte letters below U+0180, all of them precomposed.
bool isComposedUtf8(std::string_view text) {
  for (std::size_t at = 0; at < text.size(); ++at) {
    if (byteAt(text, at) < 0x80U) continue;
    if (byteAt(text, at) < 0xC3U || byteAt(text, at) > 0xC5U) return false;
    ++at;
    if ((byteAt(text, at) & 0xC0U) != 0x80U) return false;
  }
  return true;
}

// Calls check(key, text) for each text of both tables.
template <class Check>
void forEachText(Check check) {
  for (const Row& row : rows()) {
    if (const auto turkish = turkcemetin(row.key)) check(row.key, *turkish);
    if (const auto english = ingilizcemetin(row.key)) check(row.key, *english);
  }
}

TEST(VocabularyTexts, NoTextIsBlank) {
  forEachText([](auto key, auto text) {
    EXPECT_NE(text.find_first_not_of(' '), std::string_view::npos) << key;
  });
}

TEST(VocabularyTexts, OnlyMessagesBehindANameBeginWithABlank) {
  std::set<std::string_view> begin;
  forEachText([&](auto key, auto text) {
    if (text.starts_with(' ')) begin.insert(key);
  });
  EXPECT_EQ(begin,
            (std::set<std::string_view>{"msgisimtekrari", "msgisimdegisti", "msgilaconcedenyazildi",
                                        "msgtestoncedenyazildi", "msgagdaislem", "msgdosyadegis",
                                        "msgdosyayok", "msherisilemez", "msggecersiztarih"}));
}

TEST(VocabularyTexts, OnlyGynecologyKeepsATrailingBlank) {
  forEachText(
      [](auto key, auto text) { EXPECT_EQ(text.ends_with(' '), text == "Gynecology ") << key; });
  EXPECT_EQ(ingilizcemetin("kadindogum"), "Gynecology ");
}

TEST(VocabularyTexts, CaptionsLeaveTheColonToTheScreen) {
  forEachText([](auto key, auto text) { EXPECT_FALSE(text.ends_with(':')) << key; });
}

TEST(VocabularyTexts, FiveMessagesHaveTwoLines) {
  std::set<std::string_view> broken;
  forEachText([&](auto key, auto text) {
    if (text.find_first_of("\n\r") == std::string_view::npos) return;
    broken.insert(text);
    EXPECT_TRUE(isMessage(key)) << key;
    EXPECT_EQ(text.find_first_of("\n\r"), text.find(kLineBreak)) << key;
    EXPECT_EQ(text.find_last_of("\n\r"), text.find(kLineBreak) + 1) << key;
  });
  EXPECT_EQ(broken.size(), 5U);
}

TEST(VocabularyTexts, KeysAndTextsAreComposedUtf8) {
  EXPECT_FALSE(isComposedUtf8("I\u0307"));
  EXPECT_FALSE(isComposedUtf8("\xC4"));
  EXPECT_TRUE(isComposedUtf8("ĞÜŞİÖÇğüşıöç"));
  forEachText([](auto key, auto text) {
    EXPECT_TRUE(isComposedUtf8(key)) << key;
    EXPECT_TRUE(isComposedUtf8(text)) << key;
  });
}

}  // namespace
}  // namespace shell

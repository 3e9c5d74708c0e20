// Which keys the tables hold, and how many.
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <set>
#include <utility>

#include "shell/vocabulary/vocabulary.h"
#include "tests/shell/vocabulary/asked_keys.h"

namespace shell {
namespace {

std::ptrdiff_t countOf(RowKind kind) {
  return std::ranges::count(rows(), kind, &Row::kind);
}

TEST(VocabularyKeys, NoKeyOccursTwice) {
  std::set<std::string_view> seen;
  for (const Row& row : rows()) EXPECT_TRUE(seen.insert(row.key).second) << row.key;
}

TEST(VocabularyKeys, TurkishTableHas592AndEnglishTable532) {
  const auto turkish = [](const Row& row) { return turkcemetin(row.key).has_value(); };
  const auto english = [](const Row& row) { return ingilizcemetin(row.key).has_value(); };
  EXPECT_EQ(std::ranges::count_if(rows(), turkish), 592);
  EXPECT_EQ(std::ranges::count_if(rows(), english), 532);
}

TEST(VocabularyKeys, EnglishTableHolds164RowsWithTheTurkishText) {
  const auto same = [](const Row& row) { return row.english == row.turkish; };
  EXPECT_EQ(std::ranges::count_if(rows(), same), 164);
  EXPECT_EQ(countOf(RowKind::Untranslated), 164);
}

TEST(VocabularyKeys, EveryAskedKeyHasItsRow) {
  const auto keys = asked::split(asked::kBothLanguages);
  ASSERT_EQ(keys.size(), 494U);
  for (const auto key : keys) {
    EXPECT_TRUE(turkcemetin(key).has_value()) << key;
    EXPECT_TRUE(ingilizcemetin(key).has_value()) << key;
  }
}

TEST(VocabularyKeys, ClinicAndAccountWordsFallThroughToTurkish) {
  const auto keys = asked::split(asked::kTurkishOnly);
  ASSERT_EQ(keys.size(), 66U);
  EXPECT_EQ(countOf(RowKind::TurkishOnly), 66);
  for (const auto key : keys) {
    EXPECT_FALSE(ingilizcemetin(key).has_value()) << key;
    ASSERT_TRUE(turkcemetin(key).has_value()) << key;
    EXPECT_EQ(lookUp(key, Language::English), *turkcemetin(key)) << key;
  }
}

TEST(VocabularyKeys, KeysThatAreTheTurkishWordStandInTheEnglishTableOnly) {
  constexpr std::array<std::pair<std::string_view, std::string_view>, 5> kWords = {
      {{"Boy", "Height"},
       {"Yenidoğan", "Newborn"},
       {"Aç", "Open"},
       {"Miktar", "Quantity"},
       {"kontrol", "control"}}};
  for (const auto& [key, english] : kWords) {
    EXPECT_FALSE(turkcemetin(key).has_value()) << key;
    EXPECT_EQ(lookUp(key, Language::Turkish), key);
    EXPECT_EQ(lookUp(key, Language::English), english);
  }
  EXPECT_FALSE(turkcemetin("Takipden Çıktı").has_value());
  EXPECT_TRUE(ingilizcemetin("Takipden Çıktı").has_value());
  EXPECT_EQ(countOf(RowKind::EnglishOnly), 6);
}

TEST(VocabularyKeys, SomeScreensAskForWordsThatNoTableHolds) {
  for (const std::string_view key : {"Tetanoz", "ay", "Çocuk", "Kadın Doğum", "Deneme No"}) {
    EXPECT_FALSE(turkcemetin(key).has_value()) << key;
    EXPECT_FALSE(ingilizcemetin(key).has_value()) << key;
  }
}

}  // namespace
}  // namespace shell

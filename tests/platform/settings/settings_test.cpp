#include "platform/settings/settings.h"

#include <gtest/gtest.h>

#include <limits>
#include <locale>

#include "tests/platform/settings/allocations.h"

namespace {

using platform::Fault;
using settings::MemoryBackend;
using settings::Settings;

Settings inMemory() {
  return Settings{std::make_unique<MemoryBackend>()};
}

TEST(Settings, FindsValuesWithoutRegardToCase) {
  Settings settings = inMemory();
  EXPECT_TRUE(settings.set("Sanavel", "Main", "OP Height", "300"));
  EXPECT_TRUE(settings.set("Sanavel", "Göz Hastalıkları", "Şablon", "2"));
  const struct {
    std::string_view application, section, key, value;
  } cases[] = {{"Sanavel", "Main", "Op Height", "300"},
               {"SANAVEL", "main", "op height", "300"},
               {"sanavel", "GÖZ hASTALıKLARı", "ŞABLON", "2"},
               {"Sanavel", "Main", "Op", "none"},
               {"Sanavel", "Mai", "nOP Height", "none"},
               {"Sanavel", "", "OP Height", "none"},
               {"", "", "", "none"}};
  for (const auto& c : cases) {
    EXPECT_EQ(settings.get(c.application, c.section, c.key, "none"), c.value) << c.key;
  }
  EXPECT_EQ(settings.get("Sanavel", "Main", "missing"), "");
}

TEST(Settings, AnEmptyValueIsNotAMissingOne) {
  Settings settings = inMemory();
  EXPECT_TRUE(settings.set("Sanavel", "Main", "intapp", ""));
  EXPECT_EQ(settings.get("Sanavel", "Main", "intapp", "30"), "");
}

TEST(Settings, OverwritesUnderAnySpelling) {
  Settings settings = inMemory();
  EXPECT_TRUE(settings.set("Sanavel", "Main", "CurX", "1"));
  EXPECT_TRUE(settings.set("sanavel", "MAIN", "curx", "2"));
  EXPECT_EQ(settings.get("Sanavel", "Main", "CurX"), "2");
  EXPECT_TRUE(settings.remove("SANAVEL", "Main", "CURX"));
  EXPECT_EQ(settings.get("Sanavel", "Main", "CurX", "gone"), "gone");
  EXPECT_EQ(settings.remove("Sanavel", "Main", "CurX").fault(), Fault::Missing);
}

TEST(Settings, TakesItsOwnAnswersAsArguments) {
  Settings settings = inMemory();
  const std::string longText(100, 'x');
  EXPECT_TRUE(settings.set("Sanavel", "Main", "a", longText));
  EXPECT_TRUE(settings.set("Sanavel", "Main", "a", settings.get("Sanavel", "Main", "a")));
  EXPECT_TRUE(settings.set("Sanavel", settings.get("Sanavel", "Main", "a"), "b", "1"));
  EXPECT_EQ(settings.get("Sanavel", longText, "b"), "1");
  const auto status = settings.remove("Sanavel", "Main", settings.get("Sanavel", "Main", "a"));
  EXPECT_EQ(status.text(), "no setting " + longText);
}

TEST(Settings, AddsToWholeNumbers) {
  constexpr long most = std::numeric_limits<long>::max();
  constexpr long least = std::numeric_limits<long>::min();
  const struct {
    std::string before;
    long delta;
    long sum;
  } cases[] = {{"0", 1, 1},
               {" 7 ", -8, -1},
               {"", 1, 1},
               {"abc", 2, 2},
               {std::to_string(most), 1, most},
               {std::to_string(least), -1, least},
               {std::to_string(most) + "0", 1, 1}};
  for (const auto& c : cases) {
    Settings settings = inMemory();
    EXPECT_TRUE(settings.set("Sanavel", "Main", "NS", c.before));
    EXPECT_EQ(settings.add("Sanavel", "Main", "NS", c.delta), c.sum) << c.before;
    EXPECT_EQ(settings.get("Sanavel", "Main", "NS"), std::to_string(c.sum));
  }
  Settings settings = inMemory();
  EXPECT_EQ(settings.add("Sanavel", "Main", "NS", 1), 1);
}

TEST(Settings, ReadingAsksForNoMemory) {
  Settings settings = inMemory();
  const std::string value(200, 'v');
  const std::string key = "a key that is longer than a short text can hold within itself: ŞİI";
  EXPECT_TRUE(settings.set("Sanavel", "Muayene Bölümü", key, value));
  std::size_t found = 0;
  const std::size_t before = allocationCount();
  for (int i = 0; i < 100; ++i) {
    found += settings.get("SANAVEL", "muayene bölümü", key, "x").size();
    found += settings.get("Sanavel", "Muayene Bölümü", "missing", "x").size();
  }
  EXPECT_EQ(allocationCount(), before);
  EXPECT_EQ(found, 100 * (value.size() + 1));
}

TEST(Settings, BeginsWithWhatTheBackendHolds) {
  settings::Values values;
  values.emplace(settings::Place{{"Sanavel", "Main", "Language"}}, "tr");
  Settings settings{std::make_unique<MemoryBackend>(values)};
  EXPECT_EQ(settings.get("Sanavel", "Main", "Language"), "");
  EXPECT_TRUE(settings.refresh());
  EXPECT_EQ(settings.get("Sanavel", "Main", "Language"), "tr");
}

struct GroupedDigits : std::numpunct<char> {
  char do_thousands_sep() const override { return '.'; }
  std::string do_grouping() const override { return "\3"; }
};

TEST(Settings, CountsTheSameInEveryLocale) {
  const std::locale before = std::locale::global(std::locale(std::locale(), new GroupedDigits));
  Settings settings = inMemory();
  EXPECT_EQ(settings.add("Sanavel", "Main", "TS", 1234567), 1234567);
  EXPECT_EQ(settings.get("Sanavel", "Main", "TS"), "1234567");
  std::locale::global(before);
}

}  // namespace

#include "platform/settings/settings_text.h"

#include <gtest/gtest.h>

namespace {

using settings::fromText;
using settings::Place;
using settings::toText;
using settings::Values;
using namespace std::string_view_literals;

Values wholeFrom(std::string_view text) {
  auto read = fromText(text);
  EXPECT_TRUE(read.whole) << text;
  return std::move(read.values);
}

TEST(SettingsText, ReadsBackEveryByte) {
  std::string every;
  for (int i = 0; i < 256; ++i) every += static_cast<char>(i);
  Values values;
  values.emplace(Place{{"Sanavel", "Main", "Picture"}}, "C:\\new\\table.bmp");
  values.emplace(Place{{"", "", ""}}, "");
  values.emplace(Place{{"a\tb", "c\nd", "e\\"}}, every);
  values.emplace(Place{{"Sanavel", "Göz", "Işık"}}, "İğne\r\n\0x"sv);
  EXPECT_EQ(wholeFrom(toText(values)), values);
  EXPECT_EQ(wholeFrom(toText({})), Values{});
}

TEST(SettingsText, WritesOneSortedLinePerSetting) {
  Values values;
  values.emplace(Place{{"Sanavel", "Main", "CurX"}}, "1200");
  values.emplace(Place{{"Sanavel", "Main", "BackUp"}}, "a\tb");
  EXPECT_EQ(toText(values),
            "settings 1\nSanavel\tMain\tBackUp\ta\\tb\nSanavel\tMain\tCurX\t1200\nend\n");
}

TEST(SettingsText, TheLastOfTwoSpellingsCounts) {
  const auto values = wholeFrom("settings 1\nS\tM\tk\t1\ns\tm\tK\t2\nend\n");
  ASSERT_EQ(values.size(), 1U);
  EXPECT_EQ(values.begin()->second, "2");
}

// What an editor, or another system, makes of a file is no damage.
TEST(SettingsText, TakesWhatAnEditorLeaves) {
  const std::string_view cases[] = {
      "settings 1\r\nS\tM\tk\tv\r\nend\r\n",
      "\xEF\xBB\xBFsettings 1\nS\tM\tk\tv\nend\n",
      "settings 1\nS\tM\tk\tv\nend",
      "\nsettings 1\n\n\r\nS\tM\tk\tv\nend\n\n",
      "settings 1\nend\nsettings 1\nS\tM\tk\tv\nend\n",
  };
  for (const auto& text : cases) {
    const Values values = wholeFrom(text);
    ASSERT_EQ(values.size(), 1U) << text;
    EXPECT_EQ(values.begin()->second, "v") << text;
  }
  for (const std::string_view text : {"", "\xEF\xBB\xBF"}) EXPECT_TRUE(wholeFrom(text).empty());
}

TEST(SettingsText, OfWhatIsNotWholeGivesWhatCanBeRead) {
  const struct {
    std::string_view text;
    std::size_t read;
  } cases[] = {
      {"\n", 0},
      {"settings 1", 0},
      {"settings 1\n", 0},
      {"settings 2\na\tb\tc\td\nend\n", 1},
      {"end\n", 0},
      {"settings 1\nend\nmore", 0},
      {"a\tb\tc\td\nend\n", 1},
      {"settings 1\na\tb\tc\td\n", 1},
      {"settings 1\na\tb\tc\t12\nd\te\tf\t12", 1},  // of 1234
      {"settings 1\na\tb\tc\nd\te\tf\tg\nend\n", 1},
      {"settings 1\na\tb\tc\td\te\nd\te\tf\tg\nend\n", 1},
      {"settings 1\na\tb\tc\t\\x\nd\te\tf\tg\nend\n", 1},
      {"settings 1\na\tb\tc\t\\\nend\n", 0},
      {"settings 1\na\tb\tc\td\0\nend\n"sv, 0},
      {"settings 1\n# what a person wrote\nd\te\tf\tg\nend\n", 1},
      {"\0\0\0\0\0\0\0\0"sv, 0},
      {"SQLite format 3\0"sv, 0},
  };
  for (const auto& c : cases) {
    const auto read = fromText(c.text);
    EXPECT_FALSE(read.whole) << c.text;
    EXPECT_EQ(read.values.size(), c.read) << c.text;
  }
}

TEST(SettingsText, EveryCutIsNoticedAndLeavesNoHalfValue) {
  Values values;
  for (int i = 0; i < 20; ++i) {
    values.emplace(Place{{"Sanavel", "Main", "key" + std::to_string(i)}},
                   "değer\t" + std::to_string(i));
  }
  const std::string text = toText(values);
  for (std::size_t size = 1; size + 1 < text.size(); ++size) {
    const auto read = fromText(std::string_view{text}.substr(0, size));
    EXPECT_FALSE(read.whole) << size;
    for (const auto& [place, value] : read.values) EXPECT_EQ(values.at(place), value) << size;
  }
}

}  // namespace

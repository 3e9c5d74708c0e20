#include "platform/settings/settings_text.h"

#include <gtest/gtest.h>

namespace {

using settings::fromText;
using settings::Place;
using settings::toText;
using settings::Values;
using namespace std::string_view_literals;

TEST(SettingsText, ReadsBackEveryByte) {
  std::string every;
  for (int i = 0; i < 256; ++i) every += static_cast<char>(i);
  Values values;
  values.emplace(Place{{"Sanavel", "Main", "Picture"}}, "C:\\new\\table.bmp");
  values.emplace(Place{{"", "", ""}}, "");
  values.emplace(Place{{"a\tb", "c\nd", "e\\"}}, every);
  values.emplace(Place{{"Sanavel", "Göz", "Işık"}}, "İğne\r\n\0x"sv);
  EXPECT_EQ(fromText(toText(values)), values);
  EXPECT_EQ(fromText(toText({})), Values{});
}

TEST(SettingsText, WritesOneSortedLinePerSetting) {
  Values values;
  values.emplace(Place{{"Sanavel", "Main", "CurX"}}, "1200");
  values.emplace(Place{{"Sanavel", "Main", "BackUp"}}, "a\tb");
  EXPECT_EQ(toText(values),
            "settings 1\nSanavel\tMain\tBackUp\ta\\tb\nSanavel\tMain\tCurX\t1200\nend\n");
}

TEST(SettingsText, TheLastOfTwoSpellingsCounts) {
  const auto values = fromText("settings 1\nS\tM\tk\t1\ns\tm\tK\t2\nend\n");
  ASSERT_TRUE(values);
  ASSERT_EQ(values->size(), 1U);
  EXPECT_EQ(values->begin()->second, "2");
}

TEST(SettingsText, RefusesWhatIsNotWhole) {
  const std::string_view cases[] = {
      "\n",
      "settings 1",
      "settings 1\n",
      "settings 2\nend\n",
      "end\n",
      "settings 1\nend",
      "settings 1\nend\nmore",
      "settings 1\na\tb\tc\nend\n",
      "settings 1\na\tb\tc\td\te\nend\n",
      "settings 1\na\tb\tc\t\\x\nend\n",
      "settings 1\na\tb\tc\t\\\nend\n",
      "settings 1\na\tb\tc\td\0\nend\n"sv,
      "settings 1\r\nend\r\n",
      "\0\0\0\0\0\0\0\0"sv,
      "SQLite format 3\0"sv,
  };
  for (const auto& c : cases) EXPECT_FALSE(fromText(c)) << c;
  EXPECT_EQ(fromText(""), Values{});
}

TEST(SettingsText, EveryCutIsNoticed) {
  Values values;
  for (int i = 0; i < 20; ++i) {
    values.emplace(Place{{"Sanavel", "Main", "key" + std::to_string(i)}},
                   "değer\t" + std::to_string(i));
  }
  const std::string text = toText(values);
  for (std::size_t size = 1; size < text.size(); ++size) {
    EXPECT_FALSE(fromText(std::string_view{text}.substr(0, size))) << size;
  }
}

}  // namespace

#include "platform/richtext/find.h"

#include <gtest/gtest.h>

#include <ostream>

#include "platform/richtext/editor.h"

namespace richtext {

void PrintTo(const Range& range, std::ostream* out) {
  *out << range.begin << ".." << range.end;
}

namespace {

constexpr FindOptions kAny;
constexpr FindOptions kCase{FindCase::Match, FindWord::Part};
constexpr FindOptions kWord{FindCase::Ignore, FindWord::Whole};

TEST(FindTest, FindsTheFirstMatchFromAPosition) {
  const struct {
    const char* text;
    const char* what;
    std::size_t from;
    FindOptions options;
    std::optional<Range> match;
  } cases[] = {
      {"baş ağrısı", "ağrı", 0, kAny, Range{4, 8}},
      {"İstanbul", "istanbul", 0, kAny, Range{0, 8}},
      {"ISI, ısı", "ısı", 0, kAny, Range{0, 3}},
      {"ISI, ısı", "ısı", 1, kAny, Range{5, 8}},
      {"Image", "IMAGE", 0, kAny, Range{0, 5}},
      {"ŞÇÖÜĞ", "şçöüğ", 0, kAny, Range{0, 5}},
      {"Rapor rapor", "rapor", 0, kCase, Range{6, 11}},
      {"İz iz", "iz", 0, kCase, Range{3, 5}},
      {"kanama kan", "kan", 0, kWord, Range{7, 10}},
      {"kanı kan", "kan", 0, kWord, Range{5, 8}},
      {"kan_1 (kan)", "kan", 0, kWord, Range{7, 10}},
      {"bir\niki", "r\ni", 0, kAny, Range{2, 5}},
      {"aaa", "aa", 1, kAny, Range{1, 3}},
      {"aaa", "aa", 2, kAny, std::nullopt},
      {"abc", "", 0, kAny, std::nullopt},
      {"abc", "abcd", 0, kAny, std::nullopt},
      {"abc", "a", 99, kAny, std::nullopt},
      {"kanama", "kan", 0, kWord, std::nullopt},
  };
  for (const auto& c : cases)
    EXPECT_EQ(findText(Document::fromText(c.text), c.what, c.from, c.options), c.match)
        << c.what << " in " << c.text;
}

TEST(FindTest, CrossesFormatsAndSelectsTheMatch) {
  Document document = Document::fromText("başağrısı");
  document.changeFormat({2, 5}, [](CharFormat& format) { format.bold = true; });
  Editor editor(document);
  EXPECT_EQ(editor.find("ŞAĞRI"), 2U);
  EXPECT_EQ(editor.selText(), "şağrı");
  EXPECT_EQ(editor.find("yok"), std::nullopt);
  EXPECT_EQ(editor.selText(), "şağrı") << "a search without success leaves the selection";
}

}  // namespace
}  // namespace richtext

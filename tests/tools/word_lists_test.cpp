#include "tools/word_lists.h"

#include <gtest/gtest.h>

#include <set>
#include <string>

#include "platform/text/utf8.h"
#include "stores/personal_schema.h"
#include "tools/card_maker.h"

namespace tools {
namespace {

struct List {
  std::string_view name;
  Words words;
  std::size_t widest;  // in characters
};

// With a second name, a surname and three marks of a namesake, a name still fits its 40 characters.
const List lists[]{{"female names", givenNames(Sex::Female), 11},
                   {"male names", givenNames(Sex::Male), 11},
                   {"surnames", surnames(), 12},
                   {"blood groups", bloodGroups(), 10},
                   {"professions", professions(), 30},
                   {"employers", employers(), 30},
                   {"jobs", jobs(), 30},
                   {"forms of address to women", formsOfAddress(Sex::Female), 20},
                   {"forms of address to men", formsOfAddress(Sex::Male), 20},
                   {"doctors", doctors(), 40},
                   {"districts", districts(), 75},
                   {"streets", streets(), 60},
                   {"remarks", remarks(), 255}};

TEST(WordListsTest, HoldDifferentWordsThatFitTheirFields) {
  for (const List& list : lists) {
    SCOPED_TRACE(list.name);
    std::set<std::string_view> seen;
    for (const std::string_view word : list.words) {
      EXPECT_TRUE(seen.insert(word).second) << word << " stands there twice";
      EXPECT_LE(text::length(word), list.widest) << word;
      EXPECT_EQ(text::trimmed(word), word);
      EXPECT_FALSE(word.empty());
      EXPECT_EQ(text::sanitize(word), word);
    }
  }
}

TEST(WordListsTest, AreRichEnoughForALargePractice) {
  EXPECT_GE(givenNames(Sex::Female).size(), 200u);
  EXPECT_GE(givenNames(Sex::Male).size(), 200u);
  EXPECT_GE(surnames().size(), 300u);
  EXPECT_EQ(towns().size(), 81u);
}

TEST(WordListsTest, NamesBeginWithEveryTurkishCapital) {
  for (const char* letter : {"Ç", "Ö", "Ş", "Ü", "İ", "I"}) {
    int found = 0;
    for (const Words words : {givenNames(Sex::Female), givenNames(Sex::Male)}) {
      for (const std::string_view name : words) found += name.starts_with(letter) ? 1 : 0;
    }
    EXPECT_GE(found, 2) << letter;
  }
}

TEST(WordListsTest, EachListedColumnHasItsTable) {
  const stores::Schema schema = stores::personalSchema();
  const dao::TableDef* cards = stores::tableOf(schema, "IDCard");
  ASSERT_NE(cards, nullptr);
  EXPECT_EQ(listedColumns().size(), 7u);
  for (const ListedColumn& listed : listedColumns()) {
    EXPECT_NE(stores::fieldOf(*cards, listed.column), nullptr) << listed.column;
    EXPECT_NE(stores::tableOf(schema, listed.list), nullptr) << listed.list;
  }
}

}  // namespace
}  // namespace tools

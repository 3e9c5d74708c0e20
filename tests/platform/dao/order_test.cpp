// The two collating orders, and the list under the search box.
#include <random>

#include "platform/dao/prefix_search.h"
#include "platform/text/utf8.h"
#include "tests/platform/dao/store_fixture.h"

namespace dao {
namespace {

class TurkishStoreTest : public StoreTest {
 protected:
  TurkishStoreTest() : StoreTest(Order::Turkish) {}
};
using GeneralStoreTest = StoreTest;

struct Pair {
  const char* stored;
  const char* sought;
  bool general;
  bool turkish;
};

constexpr std::array kPairs{
    Pair{"i", "I", true, false},      Pair{"i", "İ", false, true},
    Pair{"ı", "I", false, true},      Pair{"ı", "i", false, false},
    Pair{"ş", "s", false, false},     Pair{"ş", "Ş", true, true},
    Pair{"Ayşe", "AYŞE", true, true}, Pair{"a", "a   ", true, true},
    Pair{"a", " a", false, false},    Pair{"çilek", "ÇİLEK", false, true},
    Pair{"ö", "Ö", true, true},       Pair{"e", "é", false, false},
};

void expectMatches(Recordset cards, bool Pair::*expected) {
  for (const Pair& pair : kPairs) {
    ASSERT_TRUE(cards.AddNew());
    ASSERT_TRUE(cards.Fields("Name").Set(pair.stored));
    ASSERT_TRUE(cards.Update());
    ASSERT_TRUE(cards.Seek("=", pair.sought));
    EXPECT_EQ(!cards.NoMatch(), pair.*expected) << pair.stored << " and " << pair.sought;
    ASSERT_TRUE(cards.MoveFirst());
    ASSERT_TRUE(cards.Delete());
  }
}

TEST_F(GeneralStoreTest, MatchesTexts) {
  expectMatches(table("IDCard"), &Pair::general);
}
TEST_F(TurkishStoreTest, MatchesTexts) {
  expectMatches(table("IDCard"), &Pair::turkish);
}

TEST_F(TurkishStoreTest, SortsTheTurkishAlphabetAndRemembersIt) {
  addCards({"z", "ş", "s", "i", "ı", "h", "ğ", "g", "ç", "c", "ü", "u", "ö", "o"});
  store_.Close();
  store_ = OpenDatabase(path_).value();
  EXPECT_EQ(store_.order(), Order::Turkish);
  EXPECT_EQ(all("IDCard", "Name"),
            (Texts{"c", "ç", "g", "ğ", "h", "ı", "i", "o", "ö", "s", "ş", "u", "ü", "z"}));
}

TEST_F(GeneralStoreTest, RebuildingTheOrderKeepsEveryRow) {
  addCards({"b", "Ayşe", "ç"});
  Recordset drugs = table("Drug");
  ASSERT_TRUE(addTo(drugs, "drug", "x"));
  EXPECT_TRUE(store_.orderIsCurrent().value());
  ASSERT_TRUE(store_.Execute("UPDATE \"~store\" SET value = '1.0' WHERE name = 'collation'"));
  EXPECT_FALSE(store_.orderIsCurrent().value());
  ASSERT_TRUE(store_.rebuildOrder());
  EXPECT_TRUE(store_.orderIsCurrent().value());
  EXPECT_EQ(all("IDCard", "Name"), (Texts{"Ayşe", "b", "ç"}));
  EXPECT_TRUE(store_.integrityCheck());
  ASSERT_TRUE(addTo(drugs, "drug", "y"));
  EXPECT_EQ(drugs.LastModified().integer(), 2);
}

Texts prefixList(const Database& store, Fold fold, std::string_view typed) {
  auto reader = PrefixReader::open(store, "IDCard", "Name", fold, typed).value();
  while (!reader.step(std::chrono::microseconds(0)).value()) {
  }
  Texts names;
  for (const PrefixRow& row : reader.rows()) names.emplace_back(row.name);
  return names;
}

Texts plainWalk(Database& store, Fold fold, std::string_view typed) {
  Texts names;
  const auto length = static_cast<std::ptrdiff_t>(text::length(typed));
  Recordset cards = store.OpenRecordset("IDCard").value();
  for (; !cards.Eof(); cards.MoveNext().ignore()) {
    const std::string name = cards.Fields("Name").text();
    if (folded(text::left(name, length), fold) == folded(typed, fold)) names.push_back(name);
  }
  return names;
}

std::vector<std::string> randomNames(int count) {
  constexpr std::array kLetters{"a", "A", "i", "I", "ı", "İ", "s",
                                "ş", "Ş", "ß", "e", " ", "ﬁ", "y"};
  std::mt19937 random(11);
  std::vector<std::string> names;
  for (int each = 0; each < count; ++each) {
    std::string name;
    for (int letter = 0; letter < 6; ++letter) name += kLetters[random() % kLetters.size()];
    names.push_back(name + " " + std::to_string(each));
  }
  return names;
}

constexpr std::array kTyped{"a",  "i",  "ı",  "İ",  "I", "ş",  "S",    "ß",  "ss",
                            "SS", "is", "ış", "İŞ", "ﬁ", "fi", "ay i", "zz", ""};

template <class Store>
void expectSameAsWalk(Store& store) {
  for (const Fold fold : {Fold::General, Fold::Turkish}) {
    for (const char* typed : kTyped) {
      EXPECT_EQ(prefixList(store, fold, typed), plainWalk(store, fold, typed)) << typed;
    }
  }
}

TEST_F(GeneralStoreTest, TheSearchListEqualsAPlainWalk) {
  const auto transaction = store_.beginTransaction();
  addCards(randomNames(1500));
  ASSERT_GT(plainWalk(store_, Fold::Turkish, "i").size(), 100U);
  expectSameAsWalk(store_);
}

TEST_F(TurkishStoreTest, TheSearchListEqualsAPlainWalk) {
  const auto transaction = store_.beginTransaction();
  addCards(randomNames(1500));
  expectSameAsWalk(store_);
}

TEST_F(GeneralStoreTest, TheSearchListTakesAnEmptyName) {
  ASSERT_TRUE(store_.Execute("INSERT INTO IDCard (Name) VALUES ('')"));
  EXPECT_EQ(prefixList(store_, Fold::Turkish, ""), Texts{""});
  EXPECT_EQ(prefixList(store_, Fold::Turkish, "a"), Texts{});
}

TEST_F(GeneralStoreTest, TheSearchListCarriesTheKeyAndNeedsItsIndex) {
  addCards({"Ali", "Veli"});
  ASSERT_TRUE(store_.Execute("UPDATE IDCard SET Key = '¬' WHERE Name = 'ALI'"));
  auto reader = PrefixReader::open(store_, "IDCard", "Name", Fold::Turkish, "al").value();
  while (!reader.step().value()) {
  }
  ASSERT_EQ(reader.rows().size(), 1U);
  EXPECT_EQ(reader.rows()[0].extra, "¬");
  EXPECT_EQ(PrefixReader::open(store_, "Drug", "drug", Fold::Turkish, "a").error().fault(),
            Fault::Missing);
  EXPECT_EQ(PrefixReader::open(Database(), "IDCard", "Name", Fold::Turkish, "a").error().fault(),
            Fault::NoCurrent);
}

TEST_F(GeneralStoreTest, ASearchNoticesThatTheStoreWasClosed) {
  addCards({"Ali"});
  auto reader = PrefixReader::open(store_, "IDCard", "Name", Fold::General, "a").value();
  store_.Close();
  EXPECT_EQ(reader.step().error().fault(), Fault::NoCurrent);
}

}  // namespace
}  // namespace dao

#include "tools/practice.h"

#include <gtest/gtest.h>

#include <fstream>
#include <functional>
#include <iterator>
#include <set>
#include <string>
#include <vector>

#include "platform/dao/collation.h"
#include "platform/richtext/rtf_reader.h"
#include "platform/text/number.h"
#include "platform/text/utf8.h"
#include "shell/age.h"
#include "shell/letterhead.h"
#include "stores/value_list.h"
#include "stores/visit_ledger.h"
#include "tests/support/temporary_folder.h"
#include "tools/card_maker.h"

namespace tools {
namespace {

constexpr std::size_t patients = 6000;

struct Practice {
  explicit Practice(const PracticeOptions& options) {
    made = makePractice(folder.path(), options);
    stores.folder = folder.path() + "/";
    opened = stores::OpenStores(stores);
  }
  void eachCard(const std::function<void(dao::Recordset&)>& look) {
    dao::Recordset& cards = stores.personal.IDCard;
    for (cards.MoveFirst().ignore(); !cards.Eof(); cards.MoveNext().ignore()) look(cards);
  }

  support::TemporaryFolder folder;
  stores::Stores stores;
  platform::Status made;
  platform::Status opened;
};

std::vector<std::string> rowsOf(dao::Recordset& rows) {
  std::vector<std::string> texts;
  for (rows.MoveFirst().ignore(); !rows.Eof(); rows.MoveNext().ignore()) {
    std::string row;
    for (int field = 0; field < rows.fieldCount(); ++field)
      row += (rows.Fields(field).isNull() ? "-" : rows.Fields(field).text()) + "|";
    texts.push_back(std::move(row));
  }
  return texts;
}

// One practice for the tests that only read it.
class PracticeTest : public testing::Test {
 protected:
  static void SetUpTestSuite() { shared_ = new Practice({.patients = patients, .seed = 7}); }
  static void TearDownTestSuite() { delete shared_; }
  void SetUp() override {
    ASSERT_TRUE(shared_->made) << shared_->made.text();
    ASSERT_TRUE(shared_->opened) << shared_->opened.text();
  }

  static inline Practice* shared_ = nullptr;
  const text::DateTime reference_ = PracticeOptions().reference;
};

TEST_F(PracticeTest, TheSameSeedGivesTheSamePractice) {
  Practice again({.patients = patients, .seed = 7});
  EXPECT_EQ(rowsOf(again.stores.personal.IDCard), rowsOf(shared_->stores.personal.IDCard));
  EXPECT_EQ(rowsOf(again.stores.clinical.Visit), rowsOf(shared_->stores.clinical.Visit));
  EXPECT_EQ(rowsOf(again.stores.personal.Company), rowsOf(shared_->stores.personal.Company));
}

TEST_F(PracticeTest, AnotherSeedGivesAnotherPractice) {
  Practice other({.patients = patients, .seed = 8});
  EXPECT_NE(rowsOf(other.stores.personal.IDCard), rowsOf(shared_->stores.personal.IDCard));
}

TEST_F(PracticeTest, NamesAreDifferentInTheOrderOfTheStore) {
  const dao::Collator order(dao::Order::General);
  std::set<std::string> keys;
  shared_->eachCard([&](dao::Recordset& cards) {
    const std::string name = cards.Fields("Name").text();
    keys.insert(order.key(name));
    EXPECT_LE(text::length(name), 40u) << name;
  });
  EXPECT_EQ(keys.size(), patients);
}

TEST_F(PracticeTest, ANameIsMarkedOnlyWhereItIsTakenWithoutTheMark) {
  std::vector<std::string> marked;
  shared_->eachCard([&](dao::Recordset& cards) {
    const std::string name = cards.Fields("Name").text();
    if (name.ends_with('*')) marked.push_back(name);
  });
  EXPECT_GT(marked.size(), 10u);
  dao::Recordset& cards = shared_->stores.personal.IDCard;
  for (const std::string& name : marked) {
    ASSERT_TRUE(cards.Seek("=", name.substr(0, name.size() - 1)));
    EXPECT_FALSE(cards.NoMatch()) << name;
  }
}

TEST_F(PracticeTest, EveryBirthIsOneThatTheCardAccepts) {
  std::size_t years = 0;
  std::size_t children = 0;
  std::size_t old = 0;
  shared_->eachCard([&](dao::Recordset& cards) {
    const auto date = cards.Fields("Date of Birth").Value().date();
    const std::string year = cards.Fields("Year of Birth").text();
    EXPECT_NE(date.has_value(), !year.empty()) << cards.Fields("Name").text();
    const std::string shown = date ? text::shortDate(*date) : year;
    EXPECT_TRUE(shell::gecerliDogum(shown, reference_)) << shown;
    EXPECT_LE(date.value_or(reference_), reference_);
    const int born = date ? date->year() : static_cast<int>(text::Val(year));
    years += year.empty() ? 0 : 1;
    children += born > reference_.year() - 12 ? 1 : 0;
    old += born < reference_.year() - 80 ? 1 : 0;
  });
  EXPECT_GT(years, patients / 50);
  EXPECT_LT(years, patients / 5);
  EXPECT_GT(children, patients / 20);
  EXPECT_GT(old, patients / 50);
}

TEST_F(PracticeTest, AFewPatientsAreHidden) {
  std::size_t hidden = 0;
  shared_->eachCard([&](dao::Recordset& cards) {
    const std::string key = cards.Fields("Key").text();
    EXPECT_TRUE(key.empty() || key == hiddenKey) << key;
    hidden += key == hiddenKey ? 1 : 0;
  });
  EXPECT_GT(hidden, patients / 200);
  EXPECT_LT(hidden, patients / 50);
}

TEST_F(PracticeTest, SexesAndBloodGroupsAreTheCards) {
  std::set<std::string> sexes;
  std::set<std::string> groups;
  shared_->eachCard([&](dao::Recordset& cards) {
    sexes.insert(cards.Fields("Sex").text());
    groups.insert(cards.Fields("Blood Group").text());
  });
  EXPECT_EQ(sexes, (std::set<std::string>{"0", "1", "2"}));
  EXPECT_EQ(groups.size(), 9u) << "the eight groups and the blank";
  for (const std::string_view group : bloodGroups()) {
    EXPECT_TRUE(groups.contains(std::string(group)));
  }
}

TEST_F(PracticeTest, EveryListHoldsExactlyTheValuesThatAreUsed) {
  for (const ListedColumn& listed : listedColumns()) {
    SCOPED_TRACE(listed.column);
    std::set<std::string> used;
    shared_->eachCard(
        [&](dao::Recordset& cards) { used.insert(cards.Fields(listed.column).text()); });
    const auto held = stores::values(shared_->stores.personal, listed.list);
    EXPECT_EQ(std::set<std::string>(held.begin(), held.end()), used);
    EXPECT_GT(used.size(), 2u);
  }
}

TEST_F(PracticeTest, LedgerRowsBelongToPatientsAndCountTheirVisits) {
  dao::Recordset& visits = shared_->stores.clinical.Visit;
  dao::Recordset& cards = shared_->stores.personal.IDCard;
  std::set<std::string> numbers;
  std::size_t total = 0;
  std::int64_t values = 0;
  for (visits.MoveFirst().ignore(); !visits.Eof(); visits.MoveNext().ignore()) {
    const std::string key = visits.Fields("spname").text();
    ASSERT_NE(key.find('\\'), std::string::npos) << key;
    ASSERT_TRUE(cards.Seek("=", key.substr(key.find('\\') + 1)));
    ASSERT_FALSE(cards.NoMatch()) << key;
    // Each kind of record counts for itself.
    const bool laboratory = key.find("Test\\") != std::string::npos;
    const std::string kind = laboratory ? "Test" : "";
    std::size_t listed = 0;
    const std::string list = visits.Fields("Visit Numbers").text();
    for (std::size_t at = 0; at < list.size(); ++listed) {
      const std::size_t end = list.find(';', at);
      ASSERT_NE(end, std::string::npos) << list;
      numbers.insert(kind + list.substr(at, end - at));
      at = end + 1;
    }
    EXPECT_EQ(visits.Fields("Visit Count").Value().integer(), static_cast<int>(listed)) << list;
    total += listed;
    if (laboratory) values += static_cast<std::int64_t>(listed);
    const auto last = visits.Fields("Last Visit Date").Value().date();
    ASSERT_TRUE(last);
    EXPECT_LE(*last, reference_);
    const auto birth = cards.Fields("Date of Birth").Value().date();
    EXPECT_GE(*last, birth.value_or(*last));
  }
  EXPECT_EQ(numbers.size(), total) << "a visit is listed twice";
  EXPECT_EQ(shared_->stores.clinical.PhysicalExam.RecordCount(),
            static_cast<std::int64_t>(total) - values);
  EXPECT_GT(total, patients);
  EXPECT_EQ(shared_->stores.clinical.Analyze.RecordCount(), values);
  EXPECT_GT(values, 0);
  EXPECT_GE(shared_->stores.clinical.Tests.RecordCount(), 40);
}

TEST_F(PracticeTest, TheLedgerIsTheOneThatTheRecordsGive) {
  const auto before = rowsOf(shared_->stores.clinical.Visit);
  ASSERT_TRUE(stores::vizitolustur(shared_->stores.clinical));
  EXPECT_EQ(rowsOf(shared_->stores.clinical.Visit), before);
}

TEST_F(PracticeTest, EveryDrugCanBePrescribed) {
  dao::Recordset& drugs = shared_->stores.clinical.drug;
  EXPECT_GE(drugs.RecordCount(), 150);
  for (drugs.MoveFirst().ignore(); !drugs.Eof(); drugs.MoveNext().ignore()) {
    for (const char* column : {"Drog", "Dosage", "number", "Prospectus"}) {
      const std::string text = drugs.Fields(column).text();
      EXPECT_FALSE(text.empty()) << drugs.Fields("Drog").text() << ": " << column;
      EXPECT_EQ(text::trim(text), text);
    }
  }
}

TEST_F(PracticeTest, HasALetterhead) {
  std::ifstream file(shared_->folder / shell::letterhead::text, std::ios::binary);
  const std::string bytes{std::istreambuf_iterator<char>(file), {}};
  const auto letterhead = richtext::readRtf(bytes);
  ASSERT_TRUE(letterhead);
  EXPECT_TRUE(letterhead->plainText().starts_with("Dr. Işık Çağlayan\n"))
      << letterhead->plainText();
}

TEST_F(PracticeTest, ASecondPracticeInTheSameFolderIsRefused) {
  const auto before = rowsOf(shared_->stores.personal.IDCard);
  const platform::Status again = makePractice(shared_->folder.path(), {.patients = 3, .seed = 9});
  EXPECT_EQ(again.fault(), dao::Fault::Exists);
  EXPECT_FALSE(again.text().empty());
  EXPECT_EQ(rowsOf(shared_->stores.personal.IDCard), before);
}

TEST(SmallPracticeTest, TellsHowFarItIs) {
  struct Case {
    std::size_t patients;
    std::vector<std::size_t> told;
  };
  for (const Case& size : {Case{0, {}}, Case{1, {1}}, Case{5001, {5000, 5001}}}) {
    const support::TemporaryFolder folder;
    std::vector<std::size_t> told;
    ASSERT_TRUE(makePractice(folder.path(), {.patients = size.patients},
                             [&](std::size_t stored) { told.push_back(stored); }));
    EXPECT_EQ(told, size.told);
  }
}

TEST(SmallPracticeTest, FollowsTheReferenceDate) {
  const text::DateTime reference = text::DateTime::of(1999, 2, 28);
  Practice practice({.patients = 300, .seed = 1, .reference = reference});
  ASSERT_TRUE(practice.made && practice.opened);
  practice.eachCard([&](dao::Recordset& cards) {
    const auto birth = cards.Fields("Date of Birth").Value().date();
    EXPECT_LE(birth.value_or(reference), reference);
    EXPECT_LE(text::Val(cards.Fields("Year of Birth").text()), 1999);
  });
}

TEST(SmallPracticeTest, AFolderThatCannotBeMadeIsAFault) {
  const support::TemporaryFolder folder;
  std::ofstream(folder / "file") << "a file";
  const platform::Status made = makePractice(folder / "file/practice", {.patients = 1});
  EXPECT_FALSE(made);
  EXPECT_FALSE(made.text().empty());
}

}  // namespace
}  // namespace tools

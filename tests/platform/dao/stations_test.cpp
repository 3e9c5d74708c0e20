// Several stations on one file, and walks that others disturb.
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <optional>
#include <set>
#include <thread>

#include "tests/platform/dao/store_fixture.h"

namespace dao {
namespace {

class StationsTest : public StoreTest {
 protected:
  StationsTest()
      : other_(OpenDatabase(path_, {.busyTimeout = std::chrono::milliseconds(0)}).value()) {}

  void addNumbered(int count, int step) {
    auto transaction = store_.beginTransaction().value();
    Recordset cards = table("IDCard");
    for (int number = 0; number < count; number += step)
      ASSERT_TRUE(addTo(cards, "Name", numbered(number)));
    ASSERT_TRUE(transaction.commit());
  }

  Database other_;
};

TEST_F(StationsTest, SeeEachOthersRowsAtTheNextRead) {
  Recordset here = table("IDCard");
  Recordset there = other_.OpenRecordset("IDCard").value();
  EXPECT_TRUE(here.empty());
  ASSERT_TRUE(addTo(there, "Name", "a"));
  EXPECT_FALSE(here.empty());
  EXPECT_EQ(here.RecordCount(), 1);
  ASSERT_TRUE(here.Seek("=", "a"));
  ASSERT_TRUE(there.Seek("=", "a"));
  ASSERT_TRUE(here.Edit());
  ASSERT_TRUE(here.Fields("Notes").Set("new"));
  ASSERT_TRUE(here.Update());
  ASSERT_TRUE(there.Seek("=", "a"));
  EXPECT_EQ(there.Fields("Notes").text(), "new");
}

TEST_F(StationsTest, ADeletedRowIsStaleForTheOthers) {
  addNumbered(2, 1);
  for (const bool editBefore : {false, true}) {
    Recordset here = table("IDCard");
    Recordset there = other_.OpenRecordset("IDCard").value();
    ASSERT_TRUE(here.MoveFirst());
    ASSERT_TRUE(there.MoveFirst());
    if (editBefore) {
      ASSERT_TRUE(here.Edit());
      ASSERT_TRUE(here.Fields("Notes").Set("x"));
    }
    ASSERT_TRUE(there.Delete());
    EXPECT_EQ((editBefore ? here.Update() : here.Edit()).fault(), Fault::Stale);
    EXPECT_EQ(here.Delete().fault(), Fault::Stale);
  }
}

TEST_F(StationsTest, WalksOverPageEdgesBothWays) {
  addNumbered(1200, 1);
  Recordset cards = table("IDCard");
  int number = 0;
  for (; !cards.Eof(); cards.MoveNext().ignore(), ++number)
    ASSERT_EQ(cards.Fields("Name").text(), numbered(number));
  ASSERT_EQ(number, 1200);
  ASSERT_TRUE(cards.MoveLast());
  for (; !cards.Bof(); cards.MovePrevious().ignore())
    ASSERT_EQ(cards.Fields("Name").text(), numbered(--number));
  EXPECT_EQ(number, 0);
}

TEST_F(StationsTest, TurnsRoundAtEveryRow) {
  addNumbered(100, 1);
  Recordset cards = table("IDCard");
  for (int number = 0; number < 99; ++number) {
    ASSERT_TRUE(cards.MoveNext());
    ASSERT_TRUE(cards.MovePrevious());
    ASSERT_EQ(cards.Fields("Name").text(), numbered(number));
    ASSERT_TRUE(cards.MoveNext());
  }
}

TEST_F(StationsTest, AWalkMeetsWhatIsAddedAheadAndNotWhatIsDeletedAhead) {
  addNumbered(600, 2);
  Recordset cards = table("IDCard");
  Recordset editor = table("IDCard");
  Texts seen;
  for (int row = 0; !cards.Eof(); ++row, cards.MoveNext().ignore()) {
    const std::string name = cards.Fields("Name").text();
    seen.push_back(name);
    if (row % 10 != 0 || row >= 290) continue;
    const int number = std::stoi(name.substr(5));
    if (number % 2 != 0) continue;
    ASSERT_TRUE(addTo(editor, "Name", numbered(number + 1)));
    ASSERT_TRUE(editor.Seek("=", numbered(number + 2)));
    ASSERT_TRUE(editor.Delete());
  }
  EXPECT_EQ(seen, all("IDCard", "Name"));
}

TEST_F(StationsTest, DeletingWhileWalkingEmptiesATable) {
  addNumbered(300, 1);
  auto transaction = store_.beginTransaction().value();
  Recordset cards = table("IDCard");
  for (; !cards.Eof(); cards.MoveNext().ignore()) ASSERT_TRUE(cards.Delete());
  ASSERT_TRUE(transaction.commit());
  EXPECT_TRUE(cards.empty());
}

TEST_F(StationsTest, AnOpenWriteTransactionMakesOthersBusy) {
  auto transaction = store_.beginTransaction().value();
  Recordset there = other_.OpenRecordset("IDCard").value();
  EXPECT_EQ(addTo(there, "Name", "a").fault(), Fault::Busy);
  EXPECT_EQ(other_.beginTransaction().error().fault(), Fault::Busy);
  ASSERT_TRUE(transaction.commit());
  EXPECT_TRUE(there.Update()) << "the buffer stayed open";
}

TEST_F(StationsTest, APageInHandLocksNobodyOut) {
  addNumbered(50, 1);
  Recordset here = table("IDCard");
  ASSERT_TRUE(here.MoveNext());
  ASSERT_TRUE(here.Edit());
  Recordset there = other_.OpenRecordset("IDCard").value();
  EXPECT_TRUE(addTo(there, "Name", "new"));
}

TEST_F(StationsTest, TransactionsNestAndAreAllOrNothing) {
  {
    auto outer = store_.beginTransaction().value();
    addCards({"a"});
    auto inner = store_.beginTransaction().value();
    addCards({"b"});
    ASSERT_TRUE(inner.commit());
  }
  EXPECT_TRUE(table("IDCard").empty());
  auto outer = store_.beginTransaction().value();
  addCards({"a"});
  { const auto abandoned = store_.beginTransaction().value(); }
  EXPECT_FALSE(outer.commit());
  EXPECT_TRUE(table("IDCard").empty());
  addCards({"c"});
  EXPECT_EQ(all("IDCard", "Name"), Texts{"c"});
}

TEST_F(StationsTest, ARolledBackRowIsNoLongerWalked) {
  addNumbered(3, 1);
  Recordset cards = table("IDCard");
  {
    const auto transaction = store_.beginTransaction().value();
    addCards({"card 00000x"});
    ASSERT_TRUE(cards.MoveFirst());
  }
  ASSERT_TRUE(cards.MoveNext());
  EXPECT_EQ(cards.Fields("Name").text(), numbered(1));
}

TEST_F(StationsTest, NumbersAreTakenInsideATransactionOnly) {
  EXPECT_EQ(store_.nextNumber("Physical Exam", "Count").error().fault(), Fault::Unsupported);
  const auto transaction = store_.beginTransaction().value();
  EXPECT_EQ(store_.nextNumber("Physical Exam", "Count").value(), 1);
  EXPECT_EQ(store_.nextNumber("Physical Exam", "Number").error().fault(), Fault::Missing);
}

TEST_F(StationsTest, WaitForEachOtherUnlessInAHurry) {
  constexpr std::chrono::seconds patience{60};
  Database patient = OpenDatabase(path_, {.busyTimeout = patience}).value();
  std::optional theirs = other_.beginTransaction().value();
  const auto before = std::chrono::steady_clock::now();
  {
    const Impatience hurry(patient);
    EXPECT_EQ(patient.beginTransaction().error().fault(), Fault::Busy);
  }
  EXPECT_LT(std::chrono::steady_clock::now() - before, patience / 2);
  std::thread end([&] { theirs.reset(); });
  EXPECT_TRUE(patient.beginTransaction());
  end.join();
}

void saveExams(const std::filesystem::path& path, const char* station, int count) {
  Database store = OpenDatabase(path, {.busyTimeout = std::chrono::seconds(60)}).value();
  Recordset exams = store.OpenRecordset("Physical Exam").value();
  for (int exam = 0; exam < count; ++exam) {
    auto transaction = store.beginTransaction().value();
    if (!exams.AddNew() || !exams.Fields("Name").Set(station)) return;
    if (!exams.Fields("Count").Set(store.nextNumber("Physical Exam", "Count").value())) return;
    if (!exams.Update() || !transaction.commit()) return;
  }
}

TEST_F(StationsTest, TwoProcessesNeverTakeTheSameNumber) {
  constexpr int kEach = 30;
  store_.Close();
  other_.Close();
  const pid_t child = fork();
  ASSERT_GE(child, 0);
  if (child == 0) {
    saveExams(path_, "child", kEach);
    _exit(0);
  }
  saveExams(path_, "parent", kEach);
  int status = 0;
  ASSERT_EQ(waitpid(child, &status, 0), child);
  EXPECT_EQ(status, 0);
  store_ = OpenDatabase(path_).value();
  const Texts numbers = all("Physical Exam", "Count");
  EXPECT_EQ(std::set(numbers.begin(), numbers.end()).size(), 2U * kEach);
  EXPECT_EQ(all("SELECT * FROM [Physical Exam] WHERE Name = \"child\"", "Name").size(),
            std::size_t{kEach});
}

}  // namespace
}  // namespace dao

// Stores as files: making, opening, completing, and what is no store.
#include <signal.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <fstream>
#include <random>

#include "tests/platform/dao/store_fixture.h"

namespace dao {
namespace {

using StoreFileTest = StoreTest;

std::string contentOf(const std::filesystem::path& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

void write(const std::filesystem::path& path, std::string_view content) {
  std::ofstream(path, std::ios::binary)
      .write(content.data(), static_cast<std::streamsize>(content.size()));
}

Fault openingFault(const std::filesystem::path& path) {
  const auto store = OpenDatabase(path);
  return store ? Fault::None : store.error().fault();
}

TEST_F(StoreFileTest, CreationRefusesAFileThatIsThere) {
  EXPECT_EQ(CreateDatabase(path_, Order::General).error().fault(), Fault::Exists);
  EXPECT_EQ(CreateDatabase(folder_ / "no/Store.mdb", Order::General).error().fault(),
            Fault::Missing);
  EXPECT_EQ(store_.tables().value().size(), 5U);
}

TEST_F(StoreFileTest, TheCatalogueTellsWhatWasDefined) {
  EXPECT_EQ(store_.tables().value(),
            (Texts{"IDCard", "Financier", "Drug", "Physical Exam", "Appointment"}));
  const auto fields = store_.fields("idcard").value();
  ASSERT_EQ(fields.size(), kCardFields.size());
  EXPECT_EQ(fields[1].name, "Name");
  EXPECT_EQ(fields[1].size, 40);
  EXPECT_EQ(fields[1].zeroLength, ZeroLength::Refused);
  EXPECT_EQ(fields[0].zeroLength, ZeroLength::Allowed);
  const auto exam = store_.fields("Physical Exam").value();
  for (std::size_t field = 0; field < exam.size(); ++field)
    EXPECT_EQ(exam[field].type, kExamFields[field].type);
  EXPECT_EQ(store_.fields("Financier").value()[0].autoIncrement, AutoIncrement::Yes);
  const auto cards = store_.indexes("IDCard").value();
  ASSERT_EQ(cards.size(), 1U) << "helpers are not shown";
  EXPECT_EQ(cards[0].name, "PrimaryKey");
  const auto drugs = store_.indexes("Drug").value();
  ASSERT_EQ(drugs.size(), 2U);
  EXPECT_EQ(drugs[0].fields, Texts{"drug"});
  EXPECT_EQ(drugs[0].primary, Primary::Yes);
  EXPECT_EQ(drugs[1].unique, Unique::No);
  EXPECT_TRUE(store_.indexes("Appointment").value().empty());
}

TEST_F(StoreFileTest, AMissingTableIsAddedAndTheOthersStay) {
  addCards({"a"});
  EXPECT_EQ(store_.appendTable(kCards).fault(), Fault::Exists);
  ASSERT_TRUE(store_.dropTable("drug"));
  EXPECT_EQ(store_.dropTable("drug").fault(), Fault::Missing);
  ASSERT_TRUE(store_.appendTable(kDrugs));
  EXPECT_TRUE(table("Drug").empty());
  EXPECT_EQ(all("IDCard", "Name"), Texts{"a"});
}

TEST_F(StoreFileTest, AnOlderFileGetsItsHelperIndexes) {
  ASSERT_TRUE(store_.dropTable("IDCard"));
  ASSERT_TRUE(store_.appendTable({kCards.name, kCards.fields, kCards.indexes}));
  addCards({"Ali"});
  ASSERT_TRUE(store_.ensureHelpers(kCards));
  ASSERT_TRUE(store_.ensureHelpers(kCards));
  const auto plan = store_.OpenRecordset(
      "SELECT name FROM sqlite_schema WHERE type='index' AND tbl_name='IDCard'");
  EXPECT_EQ(plan->RecordCount(), 2);
}

TEST_F(StoreFileTest, DefinitionsThatCannotBeKeptAreRefused) {
  constexpr std::array misnamed{IndexDef{.name = "Main", .fields = "Key", .primary = Primary::Yes}};
  constexpr std::array fieldless{IndexDef{.name = "I", .fields = "Nothing"}};
  EXPECT_EQ(store_.appendTable({"A", kCardFields, misnamed}).fault(), Fault::Unsupported);
  EXPECT_EQ(store_.appendTable({"B", kCardFields, fieldless}).fault(), Fault::Unsupported);
  EXPECT_EQ(store_.tables().value().size(), 5U);
}

TEST_F(StoreFileTest, AnIndexMayNameSeveralFields) {
  constexpr std::array both{IndexDef{.name = "Both", .fields = "OK;Name", .unique = Unique::Yes}};
  ASSERT_TRUE(store_.appendTable({"Slot", kAppointmentFields, both}));
  Recordset slots = table("Slot");
  for (const auto& [name, flag] : {std::pair{"b", 1}, {"a", 1}, {"c", 0}, {"B", 1}}) {
    ASSERT_TRUE(slots.AddNew());
    ASSERT_TRUE(slots.Fields("Name").Set(name));
    ASSERT_TRUE(slots.Fields("OK").Set(flag));
    EXPECT_EQ(slots.Update().fault(), std::string_view(name) == "B" ? Fault::Exists : Fault::None);
  }
  ASSERT_TRUE(slots.Index("both"));
  EXPECT_EQ(rest(slots, "Name"), (Texts{"c", "a", "b"}));
}

TEST_F(StoreFileTest, AnEmptyFileIsAStoreWithoutTables) {
  write(folder_ / "empty.mdb", "");
  Database store = OpenDatabase(folder_ / "empty.mdb", {.emptyFileOrder = Order::Turkish}).value();
  EXPECT_TRUE(store.tables().value().empty());
  EXPECT_TRUE(store.orderIsCurrent().value());
  ASSERT_TRUE(store.appendTable(kCards));
  store.Close();
  EXPECT_EQ(OpenDatabase(folder_ / "empty.mdb").value().order(), Order::Turkish);
}

TEST_F(StoreFileTest, WhatIsNoStoreIsAFault) {
  addCards({"a", "b"});
  store_.Close();
  const std::string sound = contentOf(path_);
  std::string noise(20000, ' ');
  std::mt19937 random(3);
  for (char& byte : noise) byte = static_cast<char>(random());
  const auto bad = folder_ / "bad.mdb";
  for (const std::string& content :
       {noise, std::string("x"), sound.substr(0, 1000), sound.substr(0, 4096),
        sound.substr(0, sound.size() / 2), sound.substr(0, 16)}) {
    write(bad, content);
    EXPECT_EQ(openingFault(bad), Fault::Damaged) << content.size();
    EXPECT_FALSE(RepairDatabase(bad));
  }
  EXPECT_EQ(openingFault(folder_ / "missing.mdb"), Fault::Missing);
  EXPECT_FALSE(std::filesystem::exists(folder_ / "missing.mdb"));
  EXPECT_EQ(openingFault(folder_ / ""), Fault::Damaged) << "a folder";
}

// Whatever a byte flip does, every call answers.
TEST_F(StoreFileTest, AnsweringADamagedFileNeverCrashes) {
  addCards({"Ayşe", "Burak", "Ceren"});
  store_.Close();
  const std::string sound = contentOf(path_);
  std::mt19937 random(5);
  int damaged = 0;
  for (int round = 0; round < 60; ++round) {
    std::string content = sound;
    for (int flip = 0; flip < 20; ++flip)
      content[random() % content.size()] = static_cast<char>(random());
    write(path_, content);
    auto store = OpenDatabase(path_);
    if (!store) continue;
    damaged += !store->integrityCheck();
    if (auto cards = store->OpenRecordset("IDCard")) {
      for (; !cards->Eof(); cards->MoveNext().ignore()) (void)cards->Fields("Notes").text();
      cards->Seek("=", "Burak").ignore();
      cards->Delete().ignore();
    }
  }
  EXPECT_GT(damaged, 0);
}

TEST_F(StoreFileTest, AReadOnlyFileCanBeReadAndRefusesWriting) {
  addCards({"a"});
  store_.Close();
  using std::filesystem::perms;
  std::filesystem::permissions(path_, perms::owner_read | perms::group_read);
  store_ = OpenDatabase(path_).value();
  EXPECT_TRUE(store_.isReadOnly());
  EXPECT_EQ(all("IDCard", "Name"), Texts{"a"});
  Recordset cards = table("IDCard");
  EXPECT_EQ(addTo(cards, "Name", "b").fault(), Fault::ReadOnly);
  EXPECT_EQ(store_.beginTransaction().error().fault(), Fault::ReadOnly);
  EXPECT_EQ(OpenDatabase(path_, {.access = Access::ReadOnly}).value().isReadOnly(), true);
}

TEST_F(StoreFileTest, AFileThatMayNotGrowIsAFullDisk) {
  ASSERT_TRUE(store_.Execute("PRAGMA max_page_count=1"));
  Recordset cards = table("IDCard");
  Status status;
  for (int number = 0; number < 2000 && status; ++number)
    status = addTo(cards, "Name", numbered(number));
  EXPECT_EQ(status.fault(), Fault::DiskFull);
  ASSERT_TRUE(store_.Execute("PRAGMA max_page_count=100000"));
  EXPECT_TRUE(cards.Update()) << "the buffer stayed open";
  EXPECT_TRUE(store_.integrityCheck());
}

// In a process of its own, whose limit no other test feels.
Fault faultUnderALimit(const std::filesystem::path& path) {
  signal(SIGXFSZ, SIG_IGN);
  const rlimit limit{std::filesystem::file_size(path) + 8192, RLIM_INFINITY};
  setrlimit(RLIMIT_FSIZE, &limit);
  Database store = OpenDatabase(path).value();
  const auto transaction = store.beginTransaction();
  for (int number = 0; number < 200; ++number) {
    const auto added =
        store.Execute("INSERT INTO Appointment(Name) VALUES(?)", {std::string(100000, 'x')});
    if (!added) return added.error().fault();
  }
  return Fault::None;
}

TEST_F(StoreFileTest, ARefusedWriteIsAFullDisk) {
  store_.Close();
  const pid_t child = fork();
  ASSERT_GE(child, 0);
  if (child == 0) _exit(static_cast<int>(faultUnderALimit(path_)));
  int status = 0;
  ASSERT_EQ(waitpid(child, &status, 0), child);
  ASSERT_TRUE(WIFEXITED(status));
  EXPECT_EQ(static_cast<Fault>(WEXITSTATUS(status)), Fault::DiskFull);
  EXPECT_TRUE(OpenDatabase(path_).value().integrityCheck());
}

TEST_F(StoreFileTest, CompactingWritesACopyOfEverything) {
  addCards({"Ayşe", "b"});
  store_.Close();
  const auto copy = folder_ / "copy.mdb";
  ASSERT_TRUE(CompactDatabase(path_, copy));
  EXPECT_EQ(CompactDatabase(path_, copy).fault(), Fault::Exists);
  EXPECT_EQ(CompactDatabase(folder_ / "none.mdb", folder_ / "c.mdb").fault(), Fault::Missing);
  store_ = OpenDatabase(copy).value();
  EXPECT_EQ(all("IDCard", "Name"), (Texts{"Ayşe", "b"}));
  EXPECT_EQ(store_.tables().value().size(), 5U);
  EXPECT_TRUE(store_.integrityCheck());
  EXPECT_EQ(store_.appendTable(kCards).fault(), Fault::Exists);
}

TEST_F(StoreFileTest, RepairingLeavesASoundFileAlone) {
  store_.Close();
  const std::string before = contentOf(path_);
  EXPECT_FALSE(RepairDatabase(path_).value().wasDamaged);
  EXPECT_EQ(contentOf(path_), before);
}

TEST_F(StoreFileTest, RepairingMakesIndexesAnew) {
  Recordset rows = table("Financier");
  for (const char* name : {"alpha", "beta", "gamma"}) ASSERT_TRUE(addTo(rows, "financier", name));
  store_.Close();
  // The name stands in the table and in the index; changing one of them makes them differ.
  std::string content = contentOf(path_);
  content.replace(content.rfind("beta"), 4, "zeta");
  write(path_, content);
  EXPECT_EQ(OpenDatabase(path_).value().integrityCheck().fault(), Fault::Damaged);
  const auto report = RepairDatabase(path_).value();
  EXPECT_TRUE(report.wasDamaged);
  EXPECT_FALSE(report.findings.empty());
  EXPECT_TRUE(OpenDatabase(path_).value().integrityCheck());
}

TEST_F(StoreFileTest, RepairingSortsATableThatIsOutOfOrder) {
  addCards({"alpha", "bravo", "delta"});
  store_.Close();
  std::string content = contentOf(path_);
  for (std::size_t at = content.find("bravo"); at != content.npos;
       at = content.find("bravo", at + 1)) {
    content.replace(at, 5, "zulus");
  }
  write(path_, content);
  EXPECT_EQ(OpenDatabase(path_).value().integrityCheck().fault(), Fault::Damaged);
  EXPECT_TRUE(RepairDatabase(path_).value().wasDamaged);
  store_ = OpenDatabase(path_).value();
  EXPECT_EQ(all("IDCard", "Name"), (Texts{"alpha", "delta", "zulus"}));
}

}  // namespace
}  // namespace dao

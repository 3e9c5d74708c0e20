// Stores and journals that somebody else has written, or that a disk has damaged.
#include <sqlite3.h>
#include <sys/stat.h>

#include <fstream>

#include "platform/dao/engine.h"
#include "tests/platform/dao/store_fixture.h"

namespace dao {
namespace {

class HostileStoreTest : public StoreTest {
 protected:
  static std::string contentOf(const std::filesystem::path& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
  }
  static void write(const std::filesystem::path& path, const std::string& content) {
    std::ofstream(path, std::ios::binary) << content;
  }
  // What another program does to the store, without any rule of ours.
  void tamper(const std::string& sql) {
    sqlite3* plain = nullptr;
    ASSERT_EQ(sqlite3_open(path_.c_str(), &plain), SQLITE_OK);
    EXPECT_EQ(sqlite3_exec(plain, sql.c_str(), nullptr, nullptr, nullptr), SQLITE_OK)
        << sqlite3_errmsg(plain);
    sqlite3_close(plain);
  }
  std::filesystem::path journal() { return folder_ / "Personal.mdb-journal"; }
};

std::string bigEndian(std::uint32_t number) {
  std::string bytes;
  for (int shift = 24; shift >= 0; shift -= 8) bytes += static_cast<char>(number >> shift);
  return bytes;
}

// A journal as a crash in the middle of a transaction over several stores leaves it.
std::string journalNaming(const std::string& shared) {
  const std::string magic = "\xd9\xd5\x05\xf9\x20\xa1\x63\xd7";
  std::string journal =
      magic + bigEndian(0) + bigEndian(0) + bigEndian(1) + bigEndian(512) + bigEndian(4096);
  journal.resize(512);
  std::uint32_t sum = 0;
  for (const char each : shared) sum += static_cast<std::uint32_t>(each);
  return journal + bigEndian((1U << 30U) / 4096 + 1) + shared +
         bigEndian(static_cast<std::uint32_t>(shared.size())) + bigEndian(sum) + magic;
}

TEST_F(HostileStoreTest, AJournalTouchesNothingOutsideTheFolder) {
  addCards({"Ayşe"});
  store_.Close();
  const TemporaryFolder home;
  write(home / "thesis", "years of work");
  write(home / "Personal.mdb-mj0123456789", "years of work");
  for (const std::filesystem::path& victim :
       {home / "thesis", home / "Personal.mdb-mj0123456789"}) {
    write(journal(), journalNaming(victim.string()));
    const auto opened = OpenDatabase(path_);
    EXPECT_EQ(opened ? Fault::None : opened.error().fault(), Fault::Damaged);
    EXPECT_EQ(contentOf(victim), "years of work");
    EXPECT_GT(std::filesystem::file_size(journal()), 0U) << "it is kept for whoever mends it";
    EXPECT_FALSE(OpenDatabase(path_, {.access = Access::Still}));
  }
  // One that is no plain file is neither read nor waited for.
  std::filesystem::remove(journal());
  std::filesystem::create_symlink(home / "thesis", journal());
  EXPECT_FALSE(OpenDatabase(path_));
  std::filesystem::remove(journal());
  ASSERT_EQ(::mkfifo(journal().c_str(), 0600), 0);
  EXPECT_FALSE(OpenDatabase(path_));
  EXPECT_EQ(contentOf(home / "thesis"), "years of work");
  std::filesystem::remove(journal());
  store_ = OpenDatabase(path_).value();
  EXPECT_EQ(all("IDCard", "Name"), Texts{"Ayşe"});
}

TEST_F(HostileStoreTest, ABackupIsReadWithoutAFileOfItsOwn) {
  addCards({"Ayşe"});
  store_.Close();
  std::filesystem::remove(journal());
  const auto odd = folder_ / "a b?c#d%20 ö.mdb";
  std::filesystem::rename(path_, odd);
  auto still = OpenDatabase(odd, {.access = Access::Still}).value();
  EXPECT_EQ(still.OpenRecordset("IDCard")->RecordCount(), 1);
  EXPECT_TRUE(still.isReadOnly());
  EXPECT_EQ(std::distance(std::filesystem::directory_iterator(odd.parent_path()), {}), 1);
}

// One name after the other is moved to another place of the order in the file.
TEST_F(HostileStoreTest, AWalkOverKeysOutOfOrderEnds) {
  constexpr int kCardCount = 120;
  Texts names;
  for (int number = 0; number < kCardCount; ++number) names.push_back(numbered(number));
  addCards(names);
  store_.Close();
  const std::string sound = contentOf(path_);
  int damaged = 0;
  for (const std::string& name : names) {
    for (const char first : {'a', 'z'}) {
      std::string content = sound;
      for (std::size_t at = 0; (at = content.find(name, at)) != content.npos; ++at)
        content[at] = first;
      write(path_, content);
      Database store = OpenDatabase(path_).value();
      Recordset rows = store.OpenRecordset("IDCard").value();
      for (const bool upwards : {true, false}) {
        int moves = 0;
        Status status = upwards ? rows.MoveFirst() : rows.MoveLast();
        for (; !rows.Eof() && !rows.Bof() && moves <= kCardCount; ++moves)
          status = upwards ? rows.MoveNext() : rows.MovePrevious();
        EXPECT_LE(moves, kCardCount) << name << first << upwards;
        if (status.fault() == Fault::Damaged) ++damaged;
      }
      int seeks = 0;
      for (std::string at; rows.Seek(">", at) && !rows.NoMatch() && seeks <= kCardCount; ++seeks)
        at = rows.Fields("Name").text();
      EXPECT_LE(seeks, kCardCount);
    }
  }
  EXPECT_GT(damaged, 0);
}

TEST_F(HostileStoreTest, WhatAStoreWouldRunIsNotRun) {
  addCards({"Ayşe"});
  store_.Close();
  tamper(
      "CREATE TRIGGER t AFTER INSERT ON Financier BEGIN DELETE FROM Financier; END;"
      "CREATE TABLE note(text);"
      "CREATE VIRTUAL TABLE words USING fts5(text);"
      "CREATE VIEW v AS SELECT 'x' AS Name;");
  store_ = OpenDatabase(path_).value();
  EXPECT_EQ(store_.foreignObjects().value(), (Texts{"t", "v", "words"}));
  EXPECT_EQ(store_.OpenRecordset("words").error().fault(), Fault::Missing);
  EXPECT_TRUE(store_.OpenRecordset("note")) << "a table does nothing by itself";
  Recordset rows = table("Financier");
  EXPECT_TRUE(addTo(rows, "financier", "alpha"));
  EXPECT_EQ(all("Financier", "financier"), Texts{"alpha"});
  EXPECT_FALSE(store_.OpenRecordset("SELECT Name FROM v"));
}

// The engine gives a transaction up by itself, here because the disk is full.
TEST_F(HostileStoreTest, NothingIsKeptOfATransactionThatTheEngineGaveUp) {
  addCards({"Ayşe"});
  auto transaction = store_.beginTransaction().value();
  Recordset rows = table("Financier");
  EXPECT_TRUE(addTo(rows, "financier", "alpha"));
  sqlite3_exec(store_.engine()->handle(), "ROLLBACK", nullptr, nullptr, nullptr);
  EXPECT_FALSE(addTo(rows, "financier", "beta"));
  const Status committed = transaction.commit();
  EXPECT_EQ(committed.fault(), Fault::Failed);
  EXPECT_EQ(committed.text().find("transaction is active"), std::string::npos) << committed.text();
  EXPECT_TRUE(all("Financier", "financier").empty());
  EXPECT_TRUE(addTo(rows, "financier", "gamma"));
}

}  // namespace
}  // namespace dao

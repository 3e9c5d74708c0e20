// What another name and a delete of a patient cost in a large practice.
// Usage: cascade_bench [records [ledger rows [cards]]]
//
// Ours is the card's own Save and Delete: question, card, all clinical tables, one transaction over
// the files. The baseline changes the same rows with statements prepared beforehand, which know
// every key, in one transaction a file with the same care for the disk. Both in turn; medians.
#include <sqlite3.h>

#include <array>
#include <memory>

#include "bench/bench_desk.h"
#include "platform/dao/collation.h"
#include "platform/dao/engine_functions.h"

namespace {

using namespace bench;

constexpr int rounds = 25;
constexpr double goal = 3;
constexpr std::array numberedTables{"Physical Exam", "Vaccine", "Persantil",      "Analyze",
                                    "Operation",     "Gravid",  "Gravid Control", "Lens",
                                    "Angio",         "Efor",    "Echo",           "Pathology"};
constexpr int spareExams = 5;  // with two rows a table and one of motor development: 30 records
constexpr std::array ledgerWords{"GenMed", "SurgeryOp", "CardiologyEcho"};
constexpr std::array specialities{"Internal Medicine",
                                  "Surgery",
                                  "Pediatrics",
                                  "Gynecology",
                                  "Ophthalmology",
                                  "ENT",
                                  "Orthopedics",
                                  "Polyclinic",
                                  "Pathology",
                                  "Cardiology",
                                  "Neurology",
                                  "Urology",
                                  "GenMed"};
constexpr std::array marks{"", "Op", "Test", "Echo", "Per"};

void execute(dao::Database& database, const std::string& statement,
             const std::vector<dao::Value>& parameters = {}) {
  const auto done = database.Execute(statement, parameters);
  if (!done) fail(done.error().text());
}

// Rows 1 to ?1 of the number i.
std::string counted(const std::string& insert, const std::string& values) {
  return insert +
         " WITH RECURSIVE n(i) AS (VALUES(1) UNION ALL SELECT i + 1 FROM n WHERE i < ?1) SELECT " +
         values + " FROM n";
}

std::string ledgerWord() {
  std::string cases = "CASE i % " + std::to_string(specialities.size() * marks.size());
  int number = 0;
  for (const std::string word : specialities) {
    for (const std::string mark : marks)
      cases += " WHEN " + std::to_string(number++) + " THEN '" + word + mark + "'";
  }
  return cases + " END";
}

struct Size {
  std::size_t records;
  std::size_t visits;
  std::size_t cards;
};

void fillClinical(dao::Database& clinical, const Size& size) {
  const auto each = static_cast<std::int64_t>(size.records / (numberedTables.size() + 1));
  const std::string patient = "'Hasta ' || (i * 7919 % " + std::to_string(size.cards) + ")";
  for (const std::string table : numberedTables) {
    execute(clinical,
            counted("INSERT INTO [" + table + "]([Name], [Count], [Date], [Speciality])",
                    patient + ", i, '2026-03-04', 20"),
            {each});
  }
  execute(clinical, counted("INSERT INTO [Motor]([Name], [motortxt])", "'Hasta ' || i, '0110100'"),
          {each});
  execute(clinical,
          counted("INSERT INTO [Visit]", "i || ';', " + ledgerWord() + " || '\\Hasta ' || (i / " +
                                             std::to_string(specialities.size() * marks.size()) +
                                             "), 1, '2026-03-04'"),
          {static_cast<std::int64_t>(size.visits)});
}

// A patient with thirty records, who has been here under three words of the ledger.
void addPatient(stores::Stores& stores, const std::string& name, std::int64_t number) {
  dao::Database& clinical = stores.clinical.database;
  execute(stores.personal.database, "INSERT INTO [IDCard]([Name], [Year of Birth]) VALUES(?, 1980)",
          {name});
  const auto add = [&](const std::string& table, std::int64_t count) {
    execute(clinical, "INSERT INTO [" + table + "]([Name], [Count]) VALUES(?, ?)", {name, count});
  };
  for (const std::string table : numberedTables) {
    for (const int row : {0, 1}) add(table, 100'000'000 + 2 * number + row);
  }
  for (int row = 0; row < spareExams; ++row)
    add("Physical Exam", 200'000'000 + spareExams * number + row);
  for (const std::string table : {"Motor", "tblRem", "tblWarn"})
    execute(clinical, "INSERT INTO [" + table + "]([Name]) VALUES(?)", {name});
  for (const std::string word : ledgerWords)
    execute(clinical, "INSERT INTO [Visit]([spname], [Visit Count]) VALUES(?, 2)",
            {word + "\\" + name});
}

std::string oursNamed(int number) {
  return "Bizim " + std::to_string(number);
}
std::string theirsNamed(int number) {
  return "Elle " + std::to_string(number);
}

void fill(stores::Stores& stores, const Size& size) {
  auto personal = stores.personal.database.beginTransaction();
  auto clinical = stores.clinical.database.beginTransaction();
  if (!personal || !clinical) fail("no transaction");
  execute(stores.personal.database,
          counted("INSERT INTO [IDCard]([Name], [Year of Birth])", "'Hasta ' || i, '1980'"),
          {static_cast<std::int64_t>(size.cards)});
  fillClinical(stores.clinical.database, size);
  for (int number = 0; number <= rounds; ++number) {
    addPatient(stores, oursNamed(number), 2 * number);
    addPatient(stores, theirsNamed(number), 2 * number + 1);
  }
  need(personal->commit());
  need(clinical->commit());
}

// One file without the seams, with the same settings, and statements that wait for their names.
class Bare {
 public:
  explicit Bare(const std::string& path) : collator_(dao::Order::General) {
    constexpr int flags = SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX;
    check(sqlite3_open_v2(path.c_str(), &handle_, flags, nullptr));
    check(dao::addFunctions(handle_, dao::Order::General, collator_));
    check(sqlite3_exec(handle_, dao::kConnectionSettings.data(), nullptr, nullptr, nullptr));
    begin_ = prepare("BEGIN IMMEDIATE");
    commit_ = prepare("COMMIT");
  }
  Bare(const Bare&) = delete;
  Bare& operator=(const Bare&) = delete;
  ~Bare() {
    while (sqlite3_stmt* statement = sqlite3_next_stmt(handle_, nullptr))
      sqlite3_finalize(statement);
    sqlite3_close(handle_);
  }

  void add(const std::string& statement, const std::string& word = {}) {
    statements_.push_back({prepare(statement), word});
  }
  // All statements in one transaction; ?1 is the old name, ?2 the new one, behind their word.
  void run(const std::string& old, const std::string& now = {}) {
    step(begin_);
    for (const Change& change : statements_) {
      bind(change.statement, 1, change.word + old);
      if (sqlite3_bind_parameter_count(change.statement) > 1)
        bind(change.statement, 2, change.word + now);
      step(change.statement);
      if (sqlite3_changes(handle_) == 0) fail("the baseline found no row");
    }
    step(commit_);
  }

 private:
  struct Change {
    sqlite3_stmt* statement;
    std::string word;
  };
  sqlite3_stmt* prepare(const std::string& sql) {
    sqlite3_stmt* statement = nullptr;
    check(sqlite3_prepare_v2(handle_, sql.c_str(), -1, &statement, nullptr));
    return statement;
  }
  void bind(sqlite3_stmt* statement, int parameter, const std::string& text) {
    check(sqlite3_bind_text(statement, parameter, text.c_str(), -1, SQLITE_TRANSIENT));
  }
  void step(sqlite3_stmt* statement) {
    if (sqlite3_step(statement) != SQLITE_DONE) fail(sqlite3_errmsg(handle_));
    sqlite3_reset(statement);
  }
  void check(int code) {
    if (code != SQLITE_OK) fail(sqlite3_errmsg(handle_));
  }

  sqlite3* handle_ = nullptr;
  dao::Collator collator_;
  sqlite3_stmt* begin_ = nullptr;
  sqlite3_stmt* commit_ = nullptr;
  std::vector<Change> statements_;
};

void compare(const char* what, const std::function<double(int)>& ours,
             const std::function<double(int)>& baseline) {
  std::vector<double> oursTimes;
  std::vector<double> baselineTimes;
  for (int round = 0; round < rounds; ++round) {
    baselineTimes.push_back(baseline(round));
    oursTimes.push_back(ours(round));
  }
  const double our = median(oursTimes);
  const double their = median(baselineTimes);
  std::printf("%-28s ours %8.3f ms   by hand %8.3f ms   ratio %5.2f   goal %.0f%s\n", what, our,
              their, our / their, goal, our / their <= goal ? "" : "   MISSED");
}

void load(Desk& desk, const std::string& name) {
  desk.station.SeciliHasta = name;
  if (!desk.main.hastaoku()) fail("no such patient: " + name);
  desk.main.Eskialanmain();
}

void benchRename(Desk& desk, const std::string& folder) {
  Bare personal(folder + "/Data/Personal.mdb");
  Bare clinical(folder + "/Data/Sanavel.mdb");
  personal.add("UPDATE [IDCard] SET [Name] = ?2 WHERE [Name] = ?1");
  std::vector<std::string> tables(numberedTables.begin(), numberedTables.end());
  tables.insert(tables.end(), {"Motor", "tblRem", "tblWarn"});
  for (const std::string& table : tables)
    clinical.add("UPDATE [" + table + "] SET [Name] = ?2 WHERE [Name] = ?1");
  for (const std::string word : ledgerWords)
    clinical.add("UPDATE [Visit] SET [spname] = ?2 WHERE [spname] = ?1", word + "\\");
  const auto name = [](const std::string& first, int round) {
    return round == 0 ? first : first + " " + std::to_string(round);
  };
  compare(
      "rename, 30 records",
      [&](int round) {
        load(desk, name(oursNamed(0), round));
        desk.main.Txtİsim.setText(name(oursNamed(0), round + 1));
        const double time = timed([&] { desk.main.mnukaydet.press(); });
        if (desk.main.TxtEskiİsim.text() != name(oursNamed(0), round + 1)) fail("not renamed");
        return time;
      },
      [&](int round) {
        return timed([&] {
          personal.run(name(theirsNamed(0), round), name(theirsNamed(0), round + 1));
          clinical.run(name(theirsNamed(0), round), name(theirsNamed(0), round + 1));
        });
      });
}

void benchDelete(Desk& desk, const std::string& folder) {
  Bare personal(folder + "/Data/Personal.mdb");
  Bare clinical(folder + "/Data/Sanavel.mdb");
  personal.add("DELETE FROM [IDCard] WHERE [Name] = ?1");
  for (const std::string word : ledgerWords)
    clinical.add("DELETE FROM [Visit] WHERE [spname] = ?1", word + "\\");
  for (const std::string table : numberedTables)
    clinical.add("DELETE FROM [" + table + "] WHERE [Name] = ?1");
  clinical.add("DELETE FROM [Motor] WHERE [Name] = ?1");
  compare(
      "delete, 30 records",
      [&](int round) {
        load(desk, oursNamed(round + 1));
        const double time = timed([&] { desk.main.mnusil.press(); });
        if (!desk.main.TxtEskiİsim.text().empty()) fail("not deleted");
        return time;
      },
      [&](int round) {
        return timed([&] {
          personal.run(theirsNamed(round + 1));
          clinical.run(theirsNamed(round + 1));
        });
      });
}

std::size_t argument(int count, char** values, int position, std::size_t otherwise) {
  return position < count ? std::stoul(values[position]) : otherwise;
}

void run(int count, char** values) {
  const TemporaryFolder folder;
  const Size size{argument(count, values, 1, 1'000'000), argument(count, values, 2, 1'000'000),
                  argument(count, values, 3, 100'000)};
  Desk desk(folder.path());
  const double filling = timed([&] { fill(desk.station.stores, size); });
  std::printf("%zu records, %zu ledger rows, %zu cards, made in %.0f s\n", size.records,
              size.visits, size.cards, filling / 1000);
  benchRename(desk, folder.path());
  benchDelete(desk, folder.path());
}

}  // namespace

int main(int count, char** values) {
  try {
    run(count, values);
  } catch (const std::exception& failure) {
    std::fprintf(stderr, "%s\n", failure.what());
    return 1;
  }
  return 0;
}

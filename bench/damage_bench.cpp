// What becomes of a practice whose stores a disk or somebody else has damaged.
// Usage: damage_bench [rounds [seed [patients]]]
//
// Each round damages one store of a copy: bits are flipped, pages swapped or repeated, the tail is
// cut or a page emptied. A process of its own opens the stores as the program does, reads every
// list and every table forwards and backwards along every index, seeks, searches, saves a card and
// looks for it through a second connection. It may say that a store is damaged; it must not hang,
// crash, or say that the card was saved when it was not.
#include <algorithm>
#include <chrono>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <string>
#include <vector>

#include "bench/child.h"
#include "platform/dao/prefix_search.h"
#include "platform/text/number.h"
#include "stores/clinical_schema.h"
#include "stores/personal_schema.h"
#include "stores/store_kinds.h"
#include "stores/stores.h"
#include "stores/value_list.h"
#include "tools/practice.h"

namespace {

namespace fs = std::filesystem;
using Random = std::mt19937_64;

constexpr unsigned longestRound = 60;  // seconds
constexpr std::size_t pageSize = 4096;
constexpr auto newName = "Yeni Hasta";

struct Told {
  bool finished = false;
  bool damaged = false;  // somebody said so
  bool wrongSaved = false;
};

std::string contentOf(const fs::path& file) {
  std::ifstream stream(file, std::ios::binary);
  return {std::istreambuf_iterator<char>(stream), {}};
}

void flipBits(std::string& bytes, Random& random) {
  constexpr std::uint64_t mostBits = 64;
  for (std::uint64_t left = 1 + random() % mostBits; left > 0; --left)
    bytes[random() % bytes.size()] ^= static_cast<char>(1U << (random() % 8));
}

void spoilPages(std::string& bytes, Random& random) {
  const std::size_t pages = bytes.size() / pageSize;
  const std::size_t one = random() % pages * pageSize;
  const std::size_t other = random() % pages * pageSize;
  switch (random() % 4) {
    case 0:
      std::swap_ranges(bytes.data() + one, bytes.data() + one + pageSize, bytes.data() + other);
      break;
    case 1:
      bytes.replace(one, pageSize, bytes.substr(other, pageSize));
      break;
    case 2:
      bytes.resize(one + random() % pageSize);
      break;
    default:
      bytes.replace(one, pageSize, std::string(pageSize, '\0'));
  }
}

void damage(const fs::path& file, Random& random) {
  std::string bytes = contentOf(file);
  random() % 3 != 0 ? flipBits(bytes, random) : spoilPages(bytes, random);
  std::ofstream(file, std::ios::binary) << bytes;
}

class Round {
 public:
  Round(const fs::path& folder, Told& told) : told_(told) {
    stores_.folder = folder.string() + "/";
  }

  void run() {
    note(stores::OpenStores(stores_));
    for (const dao::TableDef& table : stores::personalSchema())
      (void)stores::values(stores_.personal, table.name);
    walkAll(stores_.personal.database);
    walkAll(stores_.clinical.database);
    search();
    save();
    note(stores_.personal.database.integrityCheck());
    note(stores_.clinical.database.integrityCheck());
    stores::CloseStores(stores_);
    told_.finished = true;
  }

 private:
  void note(const dao::Status& status) { told_.damaged = told_.damaged || !status; }

  void walkAll(dao::Database& store) {
    const auto tables = store.tables();
    if (!tables) return note(tables.error());
    for (const std::string& table : *tables) {
      const auto indexes = store.indexes(table);
      auto rows = store.OpenRecordset(table);
      if (!indexes || !rows) {
        told_.damaged = true;
        continue;
      }
      walk(*rows);
      for (const dao::IndexInfo& index : *indexes) {
        note(rows->Index(index.name));
        walk(*rows);
      }
    }
  }

  void walk(dao::Recordset& rows) {
    for (rows.MoveFirst().ignore(); !rows.Eof(); note(rows.MoveNext())) {
      for (int field = 0; field < rows.fieldCount(); ++field) (void)rows.Fields(field).text();
    }
    for (rows.MoveLast().ignore(); !rows.Bof(); note(rows.MovePrevious()))
      (void)rows.Fields(0).text();
    (void)rows.RecordCount();
    (void)rows.Seek(">=", "m");
  }

  void search() {
    auto reader = dao::PrefixReader::open(stores_.personal.database, "IDCard", "Name",
                                          dao::Fold::Turkish, "a");
    if (!reader) return note(reader.error());
    for (;;) {
      const auto done = reader->step();
      if (!done) return note(done.error());
      if (*done) return;
    }
  }

  void save() {
    dao::Recordset& cards = stores_.personal.IDCard;
    dao::Status status = cards.AddNew();
    if (status) status = cards.Fields("Name").Set(newName);
    if (status) status = cards.Update();
    note(status);
    if (!status) return;
    auto other = dao::OpenDatabase(stores_.folder + "Data/Personal.mdb");
    if (!other) return note(other.error());
    auto rows = other->OpenRecordset("IDCard");
    if (!rows) return note(rows.error());
    const dao::Status sought = rows->Index("PrimaryKey") ? rows->Seek("=", newName) : dao::Status();
    note(sought);
    told_.wrongSaved = sought && rows->NoMatch();
  }

  Told& told_;
  stores::Stores stores_;
};

void runIn(const fs::path& folder, Told& told) {
  ::alarm(longestRound);
  Round(folder, told).run();
}

struct Counts {
  long sound = 0;
  long told = 0;
  long hangs = 0;
  long crashes = 0;
  long wrongSaved = 0;
  long lostInDamaged = 0;
};

void count(Counts& counts, const Told& told, bool hung, unsigned long long seed) {
  const char* bad = nullptr;
  if (!told.finished) {
    bad = hung ? "hang" : "crash";
    hung ? ++counts.hangs : ++counts.crashes;
  } else if (told.wrongSaved && !told.damaged) {
    bad = "wrong saved";
    ++counts.wrongSaved;
  } else {
    told.damaged ? ++counts.told : ++counts.sound;
    counts.lostInDamaged += told.wrongSaved ? 1 : 0;
  }
  if (bad) std::printf("%s: seed %llu\n", bad, seed);
}

}  // namespace

int main(int argc, char** argv) {
  const auto argument = [&](int place, long usual) {
    return argc > place ? text::wholeNumber(argv[place]).value_or(usual) : usual;
  };
  const long rounds = argument(1, 200);
  const long firstSeed = argument(2, 1);
  std::string pattern = (fs::temp_directory_path() / "damage.XXXXXX").string();
  const fs::path folder = ::mkdtemp(pattern.data());
  const auto patients = static_cast<std::size_t>(argument(3, 60));
  if (!tools::makePractice((folder / "sound").string(), {.patients = patients})) return 1;
  Counts counts;
  for (long round = 0; round < rounds; ++round) {
    const auto seed = static_cast<unsigned long long>(firstSeed + round);
    Random random(seed);
    const fs::path copy = folder / "copy";
    fs::remove_all(copy);
    fs::copy(folder / "sound", copy, fs::copy_options::recursive);
    const stores::StoreKind& kind = random() % 3 != 0 ? stores::personalKind : stores::clinicalKind;
    damage(stores::dataFile(copy, kind), random);
    bench::Shared<Told> told;
    const auto begin = std::chrono::steady_clock::now();
    bench::Child([&] { runIn(copy, *told); }).await();
    const auto took = std::chrono::steady_clock::now() - begin;
    count(counts, *told, took >= std::chrono::seconds(longestRound), seed);
  }
  fs::remove_all(folder);
  std::printf(
      "%ld rounds: %ld without a trace, %ld told as damaged, %ld hangs, %ld crashes, "
      "%ld wrongly saved; %ld saved and not found again in a store that was told as damaged\n",
      rounds, counts.sound, counts.told, counts.hangs, counts.crashes, counts.wrongSaved,
      counts.lostInDamaged);
  return counts.hangs + counts.crashes + counts.wrongSaved == 0 ? 0 : 1;
}

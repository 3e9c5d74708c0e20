// What the record seam costs over the bare engine: each line is a ratio of two times measured in
// turn on one file. Usage: dao_bench [cards [patients [folder]]]
#include <sqlite3.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <functional>
#include <random>
#include <string>
#include <vector>

#include "platform/dao/collation.h"
#include "platform/dao/database.h"
#include "platform/dao/engine_functions.h"
#include "platform/dao/prefix_search.h"
#include "platform/text/utf8.h"

namespace {

using namespace dao;
using Clock = std::chrono::steady_clock;
using Milliseconds = std::chrono::duration<double, std::milli>;

constexpr auto kAllowed = ZeroLength::Allowed;

constexpr std::array kCardFields{
    FieldDef{.name = "Key", .size = 2, .zeroLength = kAllowed},
    FieldDef{.name = "Name", .size = 40},
    FieldDef{.name = "Date of Birth", .type = FieldType::Date},
    FieldDef{.name = "Year of Birth", .size = 4, .zeroLength = kAllowed},
    FieldDef{.name = "Sex", .size = 15, .zeroLength = kAllowed},
    FieldDef{.name = "Blood Group", .size = 10, .zeroLength = kAllowed},
    FieldDef{.name = "Place of Birth", .size = 40, .zeroLength = kAllowed},
    FieldDef{.name = "Profession", .size = 30, .zeroLength = kAllowed},
    FieldDef{.name = "Mothers Name", .size = 25, .zeroLength = kAllowed},
    FieldDef{.name = "Fathers Name", .size = 25, .zeroLength = kAllowed},
    FieldDef{.name = "Address1", .size = 75, .zeroLength = kAllowed},
    FieldDef{.name = "Address2", .size = 75, .zeroLength = kAllowed},
    FieldDef{.name = "Address3", .size = 75, .zeroLength = kAllowed},
    FieldDef{.name = "Address4", .size = 75, .zeroLength = kAllowed},
    FieldDef{.name = "email", .size = 50, .zeroLength = kAllowed},
    FieldDef{.name = "Telephone1", .size = 20, .zeroLength = kAllowed},
    FieldDef{.name = "Telephone2", .size = 20, .zeroLength = kAllowed},
    FieldDef{.name = "Mobil", .size = 20, .zeroLength = kAllowed},
    FieldDef{.name = "Fax", .size = 20, .zeroLength = kAllowed},
    FieldDef{.name = "Company", .size = 75, .zeroLength = kAllowed},
    FieldDef{.name = "Personnel", .size = 40, .zeroLength = kAllowed},
    FieldDef{.name = "Personnel Number", .size = 50, .zeroLength = kAllowed},
    FieldDef{.name = "Relationship", .size = 20, .zeroLength = kAllowed},
    FieldDef{.name = "Job", .size = 30, .zeroLength = kAllowed},
    FieldDef{.name = "Notes", .size = 255, .zeroLength = kAllowed},
    FieldDef{.name = "Adressing", .size = 20, .zeroLength = kAllowed},
    FieldDef{.name = "Referance", .size = 40, .zeroLength = kAllowed},
    FieldDef{.name = "ID Number", .size = 75, .zeroLength = kAllowed},
    FieldDef{.name = "Option1", .type = FieldType::Date},
    FieldDef{.name = "Option2", .size = 50, .zeroLength = kAllowed},
    FieldDef{.name = "Option3", .size = 50, .zeroLength = kAllowed},
    FieldDef{.name = "Option4", .size = 50, .zeroLength = kAllowed},
    FieldDef{.name = "Option5", .size = 50, .zeroLength = kAllowed},
    FieldDef{.name = "Photo", .size = 255, .zeroLength = kAllowed},
};
constexpr std::array kIndexes{IndexDef{
    .name = "PrimaryKey", .fields = "Name", .primary = Primary::Yes, .unique = Unique::Yes}};
constexpr std::array kHelpers{
    HelperDef{.kind = HelperIndex::PrefixSearchTurkish, .field = "Name", .extraField = "Key"}};
constexpr TableDef kCards{"IDCard", kCardFields, kIndexes, kHelpers};

constexpr std::array kGiven{"Ayşe",  "Mehmet", "İsmail", "Zeynep", "ismet",   "Şule", "Ahmet",
                            "Fatma", "Işıl",   "Burak",  "Çiğdem", "Emine",   "Elif", "Hüseyin",
                            "Ömer",  "Ümit",   "Ali",    "Hatice", "Mustafa", "Kadir"};
constexpr std::array kFamily{"Yılmaz", "Kaya",  "Demir",   "Şahin", "Çelik",   "Yıldız",
                             "Öztürk", "Aydın", "Arslan",  "Doğan", "Kılıç",   "Aslan",
                             "Çetin",  "Kara",  "Koç",     "Kurt",  "Özdemir", "İnan",
                             "Işık",   "Güneş", "Erdoğan", "Polat", "Ünal",    "Tekin"};

class Failure {};

void need(bool done, const char* what, const std::string& text) {
  if (done) return;
  std::fprintf(stderr, "%s: %s\n", what, text.c_str());
  throw Failure();
}

template <class T>
T need(Result<T> result, const char* what) {
  need(result.has_value(), what, result ? "" : result.error().text());
  return std::move(*result);
}

void need(const Status& status, const char* what) {
  need(status.ok(), what, status.text());
}

double timed(const std::function<void()>& work) {
  const auto start = Clock::now();
  work();
  return Milliseconds(Clock::now() - start).count();
}

double median(std::vector<double> times) {
  std::ranges::nth_element(times, times.begin() + static_cast<std::ptrdiff_t>(times.size() / 2));
  return times[times.size() / 2];
}

// Both in turn, so that what else the machine does falls on both.
void compare(const std::string& title, double goal, int rounds, const std::function<void()>& seam,
             const std::function<void()>& bare) {
  std::vector<double> seamTimes;
  std::vector<double> bareTimes;
  for (int round = 0; round < rounds; ++round) {
    bareTimes.push_back(timed(bare));
    seamTimes.push_back(timed(seam));
  }
  const double seamTime = median(seamTimes);
  const double bareTime = median(bareTimes);
  std::printf("%-44s %10.3f ms %10.3f ms %7.2f   (goal %.1f)\n", title.c_str(), seamTime, bareTime,
              seamTime / bareTime, goal);
  std::fflush(stdout);
}

std::string personName(std::size_t number) {
  const std::size_t mixed = number * 2654435761u;
  return std::string(kGiven[mixed % kGiven.size()]) + " " + kFamily[mixed / 64 % kFamily.size()] +
         " " + std::to_string(number);
}

Value sample(const FieldDef& field, std::size_t number) {
  if (field.name == "Name") return personName(number);
  if (field.type == FieldType::Date) {
    return text::DateTime{
        std::chrono::sys_days(std::chrono::days(static_cast<int>(number % 15000)))};
  }
  const std::string text = std::string(field.name) + " " + std::to_string(number % 977);
  return text.substr(0, static_cast<std::size_t>(field.size));
}

void fill(Recordset& cards, std::size_t number, std::size_t fields) {
  need(cards.AddNew(), "AddNew");
  for (std::size_t field = 0; field < fields; ++field) {
    need(cards.Fields(static_cast<int>(field)).Set(sample(kCardFields[field], number)), "Set");
  }
  need(cards.Update(), "Update");
}

Database made(const std::filesystem::path& path, std::size_t count, std::size_t fields) {
  Database store = need(CreateDatabase(path, Order::General), "CreateDatabase");
  need(store.appendTable({"IDCard", kCardFields, kIndexes}), "appendTable");
  auto transaction = need(store.beginTransaction(), "beginTransaction");
  Recordset cards = need(store.OpenRecordset("IDCard"), "OpenRecordset");
  for (std::size_t number = 0; number < count; ++number) fill(cards, number, fields);
  need(store.ensureHelpers(kCards), "ensureHelpers");
  need(transaction.commit(), "commit");
  return store;
}

// The engine without the seam, with the same settings.
class Bare {
 public:
  explicit Bare(const std::filesystem::path& path) : collator_(Order::General) {
    constexpr int kFlags = SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX;
    check(sqlite3_open_v2(path.c_str(), &handle_, kFlags, nullptr));
    check(addFunctions(handle_, Order::General, collator_));
    check(sqlite3_exec(handle_, kConnectionSettings.data(), nullptr, nullptr, nullptr));
  }
  Bare(const Bare&) = delete;
  Bare& operator=(const Bare&) = delete;
  ~Bare() {
    while (sqlite3_stmt* statement = sqlite3_next_stmt(handle_, nullptr))
      sqlite3_finalize(statement);
    sqlite3_close(handle_);
  }
  sqlite3_stmt* prepare(const std::string& sql) {
    sqlite3_stmt* statement = nullptr;
    check(sqlite3_prepare_v2(handle_, sql.c_str(), -1, &statement, nullptr));
    return statement;
  }
  void check(int code) { need(code == SQLITE_OK, "engine", sqlite3_errmsg(handle_)); }

 private:
  sqlite3* handle_ = nullptr;
  Collator collator_;
};

std::size_t bytesRead = 0;  // keeps the reading from being left out

void readRow(sqlite3_stmt* statement) {
  for (int column = 0; column < sqlite3_column_count(statement); ++column) {
    const auto* text = sqlite3_column_text(statement, column);
    const int size = sqlite3_column_bytes(statement, column);
    if (text && size > 0) bytesRead += static_cast<std::size_t>(size) + text[0];
  }
}

void readAll(sqlite3_stmt* statement) {
  while (sqlite3_step(statement) == SQLITE_ROW) readRow(statement);
  sqlite3_reset(statement);
}

void readFields(Recordset& cards) {
  for (const FieldDef& field : kCardFields) {
    const std::string_view text = cards.Fields(field.name).view();
    if (!text.empty()) bytesRead += text.size() + static_cast<unsigned char>(text[0]);
  }
}

std::string columns() {
  std::string list;
  for (const FieldDef& field : kCardFields)
    list += (list.empty() ? "\"" : ", \"") + std::string(field.name) + "\"";
  return list;
}

void benchWalk(Database& store, Bare& bare) {
  Recordset cards = need(store.OpenRecordset("IDCard"), "OpenRecordset");
  sqlite3_stmt* select = bare.prepare("SELECT " + columns() + " FROM IDCard ORDER BY Name");
  const auto raw = [&] { readAll(select); };
  const auto walk = [&](auto&& read) {
    for (need(cards.MoveFirst(), "MoveFirst"); !cards.Eof(); need(cards.MoveNext(), "MoveNext"))
      read();
  };
  compare(
      "walk, every field as a view", 1.5, 7, [&] { walk([&] { readFields(cards); }); }, raw);
  compare(
      "walk, every field as a text of its own", 1.5, 7,
      [&] {
        walk([&] {
          for (const FieldDef& field : kCardFields)
            bytesRead += cards.Fields(field.name).text().size();
        });
      },
      raw);
}

void benchSeek(Database& store, Bare& bare, std::size_t count) {
  constexpr int kSeeks = 5000;
  std::mt19937 random(7);
  std::vector<std::string> keys;
  for (int seek = 0; seek < kSeeks; ++seek) keys.push_back(personName(random() % count));
  Recordset cards = need(store.OpenRecordset("IDCard"), "OpenRecordset");
  sqlite3_stmt* select = bare.prepare("SELECT " + columns() + " FROM IDCard WHERE Name = ?");
  const auto seam = [&] {
    for (const std::string& key : keys) {
      need(cards.Seek("=", key), "Seek");
      need(!cards.NoMatch(), "Seek", key);
      readFields(cards);
    }
  };
  const auto raw = [&] {
    for (const std::string& key : keys) {
      sqlite3_bind_text(select, 1, key.c_str(), -1, SQLITE_STATIC);
      readAll(select);
    }
  };
  compare("5000 seeks, every field", 1.3, 9, seam, raw);
}

void benchSave(Database& store, Bare& bare, std::size_t count) {
  Recordset cards = need(store.OpenRecordset("IDCard"), "OpenRecordset");
  std::string marks = "?";
  for (std::size_t field = 1; field < kCardFields.size(); ++field) marks += ",?";
  sqlite3_stmt* insert =
      bare.prepare("INSERT INTO IDCard(" + columns() + ") VALUES(" + marks + ")");
  std::size_t number = count;
  const auto raw = [&] {
    int parameter = 0;
    for (const FieldDef& field : kCardFields) {
      sqlite3_bind_text(insert, ++parameter, sample(field, number).text().c_str(), -1,
                        SQLITE_TRANSIENT);
    }
    ++number;
    need(sqlite3_step(insert) == SQLITE_DONE, "insert", "");
    sqlite3_reset(insert);
  };
  compare(
      "save a card, durable", 1.5, 101, [&] { fill(cards, number++, kCardFields.size()); }, raw);
}

double longestSlice = 0;

std::size_t prefixList(const Database& store, const std::string& typed) {
  auto reader =
      need(PrefixReader::open(store, "IDCard", "Name", Fold::Turkish, typed), "PrefixReader");
  for (bool done = false; !done;) {
    const double slice = timed([&] { done = need(reader.step(), "step"); });
    longestSlice = std::max(longestSlice, slice);
  }
  for (const PrefixRow& row : reader.rows()) bytesRead += row.name.size() + row.extra.size();
  return reader.rows().size();
}

void plainWalk(Database& store, const std::string& typed, std::ptrdiff_t characters) {
  Recordset cards = need(store.OpenRecordset("IDCard"), "OpenRecordset");
  const std::string wanted = folded(typed, Fold::Turkish);
  std::size_t found = 0;
  const double time = timed([&] {
    for (; !cards.Eof(); need(cards.MoveNext(), "MoveNext")) {
      const std::string start = text::left(cards.Fields("Name").view(), characters);
      found += folded(start, Fold::Turkish) == wanted;
    }
  });
  std::printf("plain walk for \"%s\": %.0f ms, %zu names\n", typed.c_str(), time, found);
}

void benchList(Database& store, Bare& bare) {
  sqlite3_stmt* select = bare.prepare(
      "SELECT Name, Key FROM IDCard INDEXED BY \"IDCard~Name~prefix turkish\" "
      "WHERE fold_turkish(Name) >= ?1 AND fold_turkish(Name) < ?2");
  for (const std::string typed : {"a", "i", "ı", "ş", "ay", "me", "is", "ayş", "hat", "mus"}) {
    const std::string from = folded(typed, Fold::Turkish);
    std::string to = from;
    to.back() = static_cast<char>(to.back() + 1);
    std::size_t found = 0;
    const auto raw = [&] {
      sqlite3_bind_text(select, 1, from.c_str(), -1, SQLITE_STATIC);
      sqlite3_bind_text(select, 2, to.c_str(), -1, SQLITE_STATIC);
      readAll(select);
    };
    found = prefixList(store, typed);
    compare(
        "list for \"" + typed + "\", " + std::to_string(found) + " names", 3, 7,
        [&] { found = prefixList(store, typed); }, raw);
  }
  std::printf("longest slice: %.2f ms (goal 16)\n", longestSlice);
  plainWalk(store, "ay", 2);
}

std::size_t argument(int count, char** values, int position, std::size_t otherwise) {
  return position < count ? std::strtoul(values[position], nullptr, 10) : otherwise;
}

void run(int count, char** values) {
  const std::size_t cards = argument(count, values, 1, 100'000);
  const std::size_t patients = argument(count, values, 2, 1'000'000);
  const std::filesystem::path folder =
      count > 3 ? values[3] : std::filesystem::temp_directory_path();
  const std::filesystem::path path = folder / "dao_bench.mdb";
  std::printf("%-44s %13s %13s %7s\n", "", "seam", "bare engine", "ratio");
  std::filesystem::remove(path);
  if (cards > 0) {
    Database store = made(path, cards, kCardFields.size());
    Bare bare(path);
    benchWalk(store, bare);
    benchSeek(store, bare, cards);
    benchSave(store, bare, cards);
  }
  std::filesystem::remove(path);
  if (patients > 0) {
    Database store = made(path, patients, 4);
    Bare bare(path);
    benchList(store, bare);
  }
  std::filesystem::remove(path);
  std::printf("(%zu)\n", bytesRead % 10);
}

}  // namespace

int main(int count, char** values) {
  try {
    run(count, values);
  } catch (const Failure&) {
    return 1;
  }
  return 0;
}

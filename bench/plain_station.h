// The bare engine in a station's place: what a load and a save of a card cannot do without.
#pragma once

#include <sqlite3.h>

#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "bench/bench_desk.h"
#include "platform/dao/collation.h"
#include "platform/dao/engine_functions.h"
#include "platform/text/number.h"
#include "registry/card_fields.h"

namespace bench {

// The rows that a load and a save need, and nothing else.
class PlainStation {
 public:
  explicit PlainStation(const std::string& folder)
      : personal_(folder + "/Data/Personal.mdb"), clinical_(folder + "/Data/Sanavel.mdb") {
    std::string columns;
    for (const shell::FieldRow& row : registry::cardFields()) {
      if (row.column == "Name") continue;
      columns += (columns.empty() ? "" : ", ") + quoted(row.column) + " = ?" +
                 std::to_string(fields_.size() + 2);
      fields_.emplace_back(row.column);
    }
    card_ = personal_.prepare("SELECT * FROM IDCard WHERE Name = ?1");
    update_ = personal_.prepare("UPDATE IDCard SET " + columns + " WHERE Name = ?1");
    visit_ = clinical_.prepare("SELECT * FROM Visit WHERE spname = ?1");
    for (const registry::ListField& list : registry::listFields())
      lists_.push_back(personal_.prepare("SELECT * FROM " + quoted(list.table) + " WHERE " +
                                         quoted(list.table) + " = ?1"));
  }

  bool load(const std::string& name) {
    name_ = name;
    return read(card_, name, &row_) && read(visit_, "GenMed\\" + name, nullptr);
  }

  bool save() {
    if (!personal_.run("BEGIN IMMEDIATE")) return false;
    const bool done = write();
    return personal_.run(done ? "COMMIT" : "ROLLBACK") && done && load(name_);
  }

 private:
  struct Connection {
    explicit Connection(const std::string& path) {
      if (sqlite3_open_v2(path.c_str(), &handle, SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX,
                          nullptr) != SQLITE_OK)
        fail("the engine cannot open " + path);
      sqlite3_busy_timeout(handle, 5000);
      run(dao::kConnectionSettings.data());
      dao::addFunctions(handle, dao::Order::General, collator);
    }
    sqlite3_stmt* prepare(const std::string& sql) {
      sqlite3_stmt* statement = nullptr;
      if (sqlite3_prepare_v2(handle, sql.c_str(), -1, &statement, nullptr) != SQLITE_OK)
        fail(sql + ": " + sqlite3_errmsg(handle));
      return statement;
    }
    bool run(const char* sql) {
      return sqlite3_exec(handle, sql, nullptr, nullptr, nullptr) == SQLITE_OK;
    }
    dao::Collator collator{dao::Order::General};
    sqlite3* handle = nullptr;
  };
  using Row = std::map<std::string, std::string>;

  static std::string quoted(std::string_view name) { return '"' + std::string(name) + '"'; }
  static void bind(sqlite3_stmt* statement, int at, const std::string& text) {
    sqlite3_bind_text(statement, at, text.data(), static_cast<int>(text.size()), SQLITE_TRANSIENT);
  }

  static bool read(sqlite3_stmt* statement, const std::string& key, Row* row) {
    bind(statement, 1, key);
    const int answer = sqlite3_step(statement);
    for (int i = 0; row != nullptr && answer == SQLITE_ROW && i < sqlite3_column_count(statement);
         ++i) {
      const auto* const text = reinterpret_cast<const char*>(sqlite3_column_text(statement, i));
      (*row)[sqlite3_column_name(statement, i)] = text == nullptr ? "" : text;
    }
    sqlite3_reset(statement);
    return answer == SQLITE_ROW || (row == nullptr && answer == SQLITE_DONE);
  }

  bool write() {
    if (!read(card_, name_, &row_)) return false;
    row_["Notes"] = std::to_string(text::wholeNumber(row_["Notes"]).value_or(0) + 1);
    bind(update_, 1, name_);
    for (std::size_t i = 0; i < fields_.size(); ++i)
      bind(update_, static_cast<int>(i) + 2, row_[fields_[i]]);
    const bool updated = sqlite3_step(update_) == SQLITE_DONE;
    sqlite3_reset(update_);
    for (sqlite3_stmt* list : lists_) read(list, "", nullptr);
    return updated;
  }

  Connection personal_;
  Connection clinical_;
  std::vector<std::string> fields_;
  std::vector<sqlite3_stmt*> lists_;
  sqlite3_stmt* card_ = nullptr;
  sqlite3_stmt* update_ = nullptr;
  sqlite3_stmt* visit_ = nullptr;
  std::string name_;
  Row row_;
};

}  // namespace bench

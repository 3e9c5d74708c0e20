// Records of patients, and the ledger as its table holds it.
#pragma once

#include <memory>
#include <optional>
#include <ostream>
#include <string>
#include <vector>

#include "platform/text/utf8.h"
#include "stores/visit_ledger.h"
#include "tests/stores/stores_fixture.h"

namespace stores {

inline text::DateTime day(int dayOfMonth) {
  return text::DateTime::of(2020, 1, static_cast<unsigned>(dayOfMonth));
}
inline text::DateTime at(text::DateTime date, int seconds) {
  date.seconds = seconds;
  return date;
}

struct Visited {
  std::optional<std::string> name;
  std::optional<text::DateTime> date;
  int speciality = 2;
};

struct Row {
  std::string key;
  std::int64_t count = 0;
  std::string numbers;
  std::optional<text::DateTime> lastVisit;
  bool operator==(const Row&) const = default;
};
using Rows = std::vector<Row>;

inline std::ostream& operator<<(std::ostream& out, const Row& row) {
  return out << row.key << " " << row.count << " " << row.numbers << " "
             << (row.lastVisit ? text::isoText(*row.lastVisit) : "none");
}

// The next free number; 0 when the record could not be written.
inline std::int64_t addRecord(ClinicalStore& clinical, const RecordKind& kind,
                              const Visited& visited) {
  dao::Recordset& records = clinical.*kind.recordset;
  const auto number = clinical.database.nextNumber(kind.table, "Count");
  if (!number || !records.AddNew()) return 0;
  bool set = records.Fields("Count").Set(*number).ok();
  set = set && records.Fields("Speciality").Set(visited.speciality);
  if (visited.name) set = set && records.Fields("Name").Set(*visited.name);
  if (visited.date) set = set && records.Fields("Date").Set(*visited.date);
  return set && records.Update() ? *number : 0;
}

inline Rows ledgerOf(ClinicalStore& clinical) {
  Rows rows;
  dao::Recordset& visit = clinical.Visit;
  for (visit.MoveFirst().ignore(); !visit.Eof(); visit.MoveNext().ignore()) {
    rows.push_back({visit.Fields("spname").text(), visit.Fields("Visit Count").Value().integer(),
                    visit.Fields("Visit Numbers").text(),
                    visit.Fields("Last Visit Date").Value().date()});
  }
  return rows;
}

inline std::vector<std::int64_t> numbersOf(const dao::Result<std::vector<DatedRecord>>& records) {
  std::vector<std::int64_t> numbers;
  for (const DatedRecord& record : records.value_or(std::vector<DatedRecord>()))
    numbers.push_back(record.number);
  return numbers;
}

class VisitTest : public StoresTest {
 protected:
  // Stores are made once and copied: making tables takes a while.
  void SetUp() override {
    static const auto made = [] {
      auto folder = std::make_unique<ProgramFolder>();
      Stores stores = storesOf(*folder);
      EXPECT_TRUE(OpenStores(stores));
      return folder;
    }();
    std::filesystem::copy(*made / "Data", folder_ / "Data",
                          std::filesystem::copy_options::recursive);
    open();
  }
  [[nodiscard]] dao::Database& database() { return stores_.clinical.database; }
  [[nodiscard]] dao::Recordset& visit() { return stores_.clinical.Visit; }
  [[nodiscard]] Rows ledger() { return ledgerOf(stores_.clinical); }
  void record(const RecordKind& kind, const Visited& visited) {
    auto transaction = database().beginTransaction();
    ASSERT_NE(addRecord(stores_.clinical, kind, visited), 0);
    ASSERT_TRUE(transaction->commit());
  }
};

}  // namespace stores

// The visit ledger: one row of the table `Visit` per speciality, kind of record and patient, which
// lists the numbers of the patient's records. It is derived data: the record tables have the last
// word, and the ledger can be made anew from them.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "platform/dao/database.h"
#include "platform/text/date.h"
#include "stores/progress.h"
#include "stores/stores.h"

namespace stores {

// A kind of dated record: its mark in the key, and its table.
struct RecordKind {
  std::string_view mark;  // empty for the main record of a speciality
  std::string_view table;
  dao::Recordset ClinicalStore::*recordset;
};
namespace kind {
extern const RecordKind examination;  // and the radiology report, under its own speciality
extern const RecordKind pathology;
extern const RecordKind operation;
extern const RecordKind growth;
extern const RecordKind vaccination;
extern const RecordKind pregnancy;
extern const RecordKind pregnancyControl;
extern const RecordKind lens;
extern const RecordKind angiography;
extern const RecordKind echocardiography;
extern const RecordKind exerciseTest;
extern const RecordKind laboratory;
}  // namespace kind

// "Surgery" + "Op" + "\" + the patient's name.
[[nodiscard]] std::string ledgerKey(std::string_view specialityWord, const RecordKind& kind,
                                    std::string_view patient);

struct LedgerRow {
  std::vector<std::int64_t> numbers;  // in the order in which the screen lists them
  std::optional<text::DateTime> lastVisit;
};

// Whether the patient has a record of that kind; false too when the table cannot be read.
[[nodiscard]] bool hasLedgerRow(dao::Recordset& visit, std::string_view key);
// An empty row when there is none.
[[nodiscard]] dao::Result<LedgerRow> readLedgerRow(dao::Recordset& visit, std::string_view key);
// A row without numbers is deleted. Outside the transaction that saves the record, another station
// that writes the same row at the same moment makes this Exists or Stale.
dao::Status writeLedgerRow(dao::Recordset& visit, std::string_view key, const LedgerRow& row);

// A record as the list of dates shows it: a whole day, day 0 for a record without a date.
struct DatedRecord {
  std::int64_t number = 0;
  text::DateTime date;
  bool operator==(const DatedRecord&) const = default;
};

// The records with these numbers by day; those of one day stay in the order of the numbers given. A
// number whose record is gone repeats the record before it; without one before it, it is left out.
[[nodiscard]] dao::Result<std::vector<DatedRecord>> listedRecords(
    dao::Database& clinical, const RecordKind& kind, std::span<const std::int64_t> numbers);

// What the table itself holds of the patient under the speciality, by day and by number within a
// day: the full listing after a save or delete. Names are the same as the store's keys are, without
// the blanks around them.
[[nodiscard]] dao::Result<std::vector<DatedRecord>> patientRecords(dao::Database& clinical,
                                                                   const RecordKind& kind,
                                                                   std::string_view patient,
                                                                   int speciality);

// Makes the whole ledger anew from the record tables, all or nothing. Other when it was stopped.
// Progress counts records; while rows are written it is called with all of them done.
dao::Status vizitolustur(ClinicalStore& clinical, const Progress& progress = {});

}  // namespace stores

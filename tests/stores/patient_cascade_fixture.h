// Patients with rows in every table that holds them by name.
#pragma once

#include <array>
#include <map>
#include <string>
#include <vector>

#include "stores/patient_cascade.h"
#include "stores/smoking_store.h"
#include "tests/stores/stores_fixture.h"

namespace stores {

inline constexpr std::array numberedTables{
    "Physical Exam",  "Vaccine", "Persantil", "Analyze", "Operation", "Gravid",
    "Gravid Control", "Lens",    "Angio",     "Efor",    "Echo",      "Pathology"};

using Census = std::map<std::string, std::int64_t>;

inline dao::Status execute(dao::Database& database, const std::string& statement,
                           const std::vector<dao::Value>& parameters) {
  const auto done = database.Execute(statement, parameters);
  return done ? dao::Status() : done.error();
}

inline std::int64_t numberOf(dao::Database& database, const std::string& select,
                             const std::vector<dao::Value>& parameters) {
  auto rows = database.OpenRecordset(select, parameters);
  EXPECT_TRUE(rows) << select;
  return rows ? rows->Fields(0).Value().integer() : -1;
}

// The ledger row of a word in front of the name.
inline dao::Status addVisit(Stores& stores, const std::string& key, const std::string& numbers,
                            int count, const text::DateTime& last) {
  return execute(stores.clinical.database, "INSERT INTO [Visit] VALUES(?, ?, ?, ?)",
                 {numbers, key, count, last});
}

inline dao::Status addPersonal(Stores& stores, const std::string& name) {
  for (const char* table : {"IDCard", "Appointment", "Account"}) {
    const dao::Status added =
        execute(stores.personal.database,
                "INSERT INTO [" + std::string(table) + "]([Name]) VALUES(?)", {name});
    if (!added) return added;
  }
  return {};
}

inline dao::Status addClinical(Stores& stores, const std::string& name, int number) {
  dao::Database& clinical = stores.clinical.database;
  dao::Status status;
  for (const int count : {2 * number, 2 * number + 1}) {
    for (const std::string table : numberedTables) {
      if (!status) break;
      status = execute(clinical, "INSERT INTO [" + table + "]([Name], [Count]) VALUES(?, ?)",
                       {name, count});
    }
  }
  for (const std::string table : {"Motor", "tblRem", "tblWarn"}) {
    if (status) status = execute(clinical, "INSERT INTO [" + table + "]([Name]) VALUES(?)", {name});
  }
  const std::string numbers =
      std::to_string(2 * number) + ";" + std::to_string(2 * number + 1) + ";";
  for (const std::string word : {"GenMed", "SurgeryOp"}) {
    const auto day = text::DateTime::of(2026, 3, 4);
    if (status) status = addVisit(stores, word + "\\" + name, numbers, 2, day);
  }
  return status;
}

// The card, two records of each kind, two specialities in the ledger.
inline dao::Status addPatient(Stores& stores, const std::string& name, int number) {
  auto personal = stores.personal.database.beginTransaction();
  auto clinical = stores.clinical.database.beginTransaction();
  if (!personal || !clinical) return personal ? clinical.error() : personal.error();
  dao::Status status = addPersonal(stores, name);
  if (status) status = addClinical(stores, name, number);
  if (status) status = personal->commit();
  return status ? clinical->commit() : status;
}

// One trial with a row of each kind.
inline dao::Status addTrial(const Stores& stores, const std::string& name, int number) {
  auto smoking = openSmokingFile(stores.folder);
  if (!smoking) return smoking.error();
  auto transaction = smoking->beginTransaction();
  if (!transaction) return transaction.error();
  dao::Status status =
      execute(*smoking, "INSERT INTO [Smoke]([sm_num], [name]) VALUES(?, ?)", {number, name});
  for (const std::string table : {"Smoke_Control", "Resuld", "prescription", "sec"}) {
    if (status)
      status = execute(*smoking, "INSERT INTO [" + table + "]([sm_num]) VALUES(?)", {number});
  }
  return status ? transaction->commit() : status;
}

// The rows that carry the name, by table; those of all patients without one.
inline Census census(Stores& stores, const std::string& name = {}) {
  Census rows;
  const std::string where = name.empty() ? " WHERE ?1 = ''" : " WHERE [Name] = ?1";
  for (const std::string table : {"IDCard", "Appointment", "Account"}) {
    rows[table] =
        numberOf(stores.personal.database, "SELECT count(*) FROM [" + table + "]" + where, {name});
  }
  std::vector<std::string> tables(numberedTables.begin(), numberedTables.end());
  tables.insert(tables.end(), {"Motor", "tblRem", "tblWarn"});
  for (const std::string& table : tables) {
    rows[table] =
        numberOf(stores.clinical.database, "SELECT count(*) FROM [" + table + "]" + where, {name});
  }
  rows["Visit"] = numberOf(stores.clinical.database,
                           "SELECT count(*) FROM [Visit] WHERE ?1 = '' OR "
                           "substr([spname], instr([spname], '\\') + 1) = ?1",
                           {name});
  return rows;
}

inline Census smokingCensus(const Stores& stores) {
  Census rows;
  auto smoking = openSmokingFile(stores.folder);
  EXPECT_TRUE(smoking);
  for (const std::string table : {"Smoke", "Smoke_Control", "Resuld", "prescription", "sec"}) {
    rows[table] = numberOf(*smoking, "SELECT count(*) FROM [" + table + "]", {});
  }
  return rows;
}

// The card's own row is written as the card does it.
inline dao::Status renamePatient(Stores& stores, const std::string& old, const std::string& now) {
  auto change = PatientCascade::begin(stores, PatientCascade::Work::Rename);
  if (!change) return change.error();
  dao::Recordset& cards = stores.personal.IDCard;
  dao::Status status = change->rename(old, now);
  if (status) status = cards.Seek("=", old);
  if (status) status = cards.Edit();
  if (status) status = cards.Fields("Name").Set(now);
  if (status) status = cards.Update();
  if (!status) cards.CancelUpdate();
  return status ? change->commit() : status;
}

inline dao::Status deletePatient(Stores& stores, const std::string& name) {
  auto change = PatientCascade::begin(stores, PatientCascade::Work::Delete);
  if (!change) return change.error();
  dao::Status status = stores.personal.IDCard.Seek("=", name);
  if (status) status = stores.personal.IDCard.Delete();
  if (status) status = change->digerkayitlarisil(name);
  return status ? change->commit() : status;
}

}  // namespace stores

// The open stores of a station: one database each and one long-lived recordset per table, and the
// file of font records that opens between them.
#pragma once

#include <optional>
#include <string>

#include "platform/dao/database.h"
#include "platform/files/record_file.h"

namespace stores {

struct PersonalStore {
  dao::Database database;
  dao::Recordset IDCard;
  dao::Recordset Adressing;
  dao::Recordset PlaceOfBirth;
  dao::Recordset Profession;
  dao::Recordset Company;
  dao::Recordset Job;
  dao::Recordset Relationship;
  dao::Recordset Referance;
  dao::Recordset Appointment;
  dao::Recordset Account;
  dao::Recordset Financier;
  dao::Recordset Invoice;
};

struct ClinicalStore {
  dao::Database database;
  dao::Recordset PhysicalExam;
  dao::Recordset Doctors;
  dao::Recordset drug;
  dao::Recordset Tests;
  dao::Recordset Visit;
  dao::Recordset Operation;
  dao::Recordset Persantil;
  dao::Recordset Vaccine;
  dao::Recordset Gravid;
  dao::Recordset GravidControl;
  dao::Recordset Lens;
  dao::Recordset LensStock;
  dao::Recordset Hospitals;
  dao::Recordset Motor;
  dao::Recordset Echo;
  dao::Recordset Angio;
  dao::Recordset Efor;
  dao::Recordset Analyze;
  dao::Recordset Pathology;
  dao::Recordset Referance;
  dao::Recordset SanavelCenter;
  dao::Recordset tblWarn;
  dao::Recordset tblRem;
};

struct Stores {
  std::string folder;  // the program's folder, with a trailing slash
  PersonalStore personal;
  std::optional<files::RecordFile> settings;  // Data/setting.dat
  ClinicalStore clinical;
};

// Opens everything in its order. A missing store is created, an incomplete one completed, both in
// silence. The first failure that remains comes back, after everything that can be opened is open.
dao::Status OpenStores(Stores& stores);
void CloseStores(Stores& stores);
// Both Personal and Clinical stand open.
[[nodiscard]] bool areOpen(const Stores& stores);
// Opens those of the two that are not open and leaves the others alone. Busy at once while another
// process keeps one locked.
dao::Status OpenClosedStores(Stores& stores);

// Closes the Personal store and opens it and its twelve recordsets again; nothing is created.
dao::Status ReopenPersonalStore(Stores& stores);
// Creates the file or adds what it lacks; the database is open afterwards.
dao::Status CreatePersonalStore(Stores& stores);
dao::Status CreateClinicalStore(Stores& stores);

}  // namespace stores

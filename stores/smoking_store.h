// The Smoking store. No station keeps it open: each operation of the clinic opens it and lets it go
// at its end.
#pragma once

#include <string>

#include "platform/dao/database.h"

namespace stores {

struct SmokingStore {
  dao::Database database;
  dao::Recordset Smoke;
  dao::Recordset Smoke_Control;
  dao::Recordset Test;
  dao::Recordset Drug;
  dao::Recordset Side_Effect;
  dao::Recordset Resuld;
  dao::Recordset prescription;
  dao::Recordset sec;
  dao::Recordset interval;
};

// `folder` is the program's, with a trailing slash.
[[nodiscard]] bool hasSmokingStore(const std::string& folder);

// Creates the file or adds what it lacks.
dao::Status CreateSmokingStore(const std::string& folder);

// Missing when there is no file; a table that the file lacks is added.
[[nodiscard]] dao::Result<dao::Database> openSmokingFile(const std::string& folder);

// The same with all recordsets, each by its primary key.
[[nodiscard]] dao::Result<SmokingStore> OpenSmokingStore(const std::string& folder);

}  // namespace stores

// The list of all patients with their addresses, filled in slices between which the window answers
// keys.
#pragma once

#include <functional>
#include <string>

#include "platform/dao/database.h"
#include "platform/forms/list_control.h"
#include "shell/slices.h"
#include "shell/station.h"

namespace documents {

// Patients stand in the order of their names, each under its name as the key; those that are hidden
// at present are left out.
class PatientRows {
 public:
  PatientRows(shell::Station& istasyon, forms::ListView& list);

  // Fills the list from its first row on; `added` is called behind every slice.
  void start(std::function<void()> added);

 private:
  [[nodiscard]] dao::Result<bool> step();
  [[nodiscard]] dao::Result<dao::Recordset> nextPage();

  shell::Station& istasyon_;
  forms::ListView& list_;
  shell::Slices slices_;
  std::string last_;  // the name that the last slice ended with
  std::vector<forms::ListView::Row> rows_;
};

}  // namespace documents

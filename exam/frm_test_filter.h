// Which of the patient's laboratory values the grid of results shows.
#pragma once

#include "exam/analysis_filter.h"
#include "platform/forms/button.h"
#include "platform/forms/form.h"
#include "platform/forms/list_control.h"
#include "platform/forms/text_control.h"
#include "shell/station.h"

namespace exam {

class FrmTest;

class FrmTestFilter : public forms::Form {
 public:
  explicit FrmTestFilter(shell::Station& istasyon);

  // The screen whose grid is filled; not owned.
  FrmTest* hedef = nullptr;

  forms::DateBox dpt1{*this, "dpt1"};
  forms::DateBox dpt2{*this, "dpt2"};
  forms::CheckBox ChkYüksek{*this, "ChkYüksek"};
  forms::CheckBox ChkDüşük{*this, "ChkDüşük"};
  forms::CheckBox ChkNormal{*this, "ChkNormal"};
  forms::ListBox Lsttest{*this, "Lsttest", forms::ListOrder::AsAdded, forms::ListChoice::Several};
  forms::CommandButton buttamam{*this, "buttamam"};
  forms::CommandButton Butİptal{*this, "Butİptal"};

  // All marks, from the first of the patient's values until today.
  void Load() override;
  // The tests of which the patient has values.
  void Testlistele();
  // Fills the grid. False, with a message, when one of the days is none.
  bool VAnalizlerifiltrele();

 private:
  shell::Station& istasyon_;
};

}  // namespace exam

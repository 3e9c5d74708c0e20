// The screen on which a request is composed from the catalogue of laboratory tests.
#pragma once

#include "exam/lab_print.h"
#include "exam/test_catalogue_screen.h"
#include "platform/forms/button.h"

namespace exam {

// The caller empties Station::AktarilanMetin before it opens the screen, and finds the request
// there when it was accepted.
class FrmDemand : public TestCatalogueScreen {
 public:
  explicit FrmDemand(shell::Station& istasyon);

  forms::CommandButton buttasi{*this, "buttasi"};
  forms::Label lblisim{*this, "lblisim"};
  forms::Label lblhasta{*this, "lblhasta"};
  forms::TextBox txtistem{*this, "txtistem", forms::TextLines::Multiple};
  forms::CommandButton buttamam{*this, "buttamam"};
  forms::CommandButton Butİptal{*this, "Butİptal"};

  // Adds the test on the screen to the request, after a question when it is there already.
  void istemetestekle();

  // The request on paper: heading, patient, text.
  void tetkikyazdir(Output output);

  void Load() override;
  void tuskontrol() override;

 private:
  void aktar();
};

}  // namespace exam

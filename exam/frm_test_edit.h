// The screen that keeps the catalogue of laboratory tests.
#pragma once

#include "exam/test_catalogue_screen.h"

namespace exam {

class FrmTestEdit : public TestCatalogueScreen {
 public:
  explicit FrmTestEdit(shell::Station& istasyon);
};

}  // namespace exam

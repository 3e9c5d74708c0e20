#include "exam/frm_test_edit.h"

namespace exam {

FrmTestEdit::FrmTestEdit(shell::Station& station) : TestCatalogueScreen(station, "frmtestedit") {
  tusGrubu({"New", "Save", "Delete"});
  // The catalogue itself is not printed.
  for (forms::MenuItem* const entry : {&çizgi1, &mnuonizleme, &mnuyazdır}) entry->setVisible(false);
  tbToolBar.addButton("Exit", "Exit");
}

}  // namespace exam

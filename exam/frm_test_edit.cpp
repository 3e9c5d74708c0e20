#include "exam/frm_test_edit.h"

namespace exam {

FrmTestEdit::FrmTestEdit(shell::Station& station)
    : TestCatalogueScreen(station, "frmtestedit", {}) {
  tusGrubu({"New", "Save", "Delete"});
  tbToolBar.addButton("Exit", "Exit");
}

}  // namespace exam

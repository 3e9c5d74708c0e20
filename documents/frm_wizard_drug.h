// The print wizard of prescriptions: the page is laid out on a miniature sheet, and printed for the
// patient on the card or for another one.
#pragma once

#include <string>

#include "documents/layout_editor.h"
#include "documents/patient_rows.h"
#include "platform/forms/button.h"
#include "platform/forms/label.h"
#include "platform/forms/menu.h"
#include "shell/station.h"

namespace documents {

class FrmWizardDrug : public forms::Form {
 public:
  explicit FrmWizardDrug(shell::Station& istasyon);

  forms::MenuItem MnuDosya{*this, "MnuDosya"};
  forms::MenuItem mnuonizleme{MnuDosya, "mnuonizleme"};
  forms::MenuItem mnuyazdır{MnuDosya, "mnuyazdır"};
  forms::MenuItem çizgi1{MnuDosya, "çizgi1", forms::MenuKind::Separator};
  forms::MenuItem mnucik{MnuDosya, "mnucik"};

  // The miniature sheet, and what stands on it.
  forms::Panel piconiz{*this, "piconiz"};
  SheetItem Imgicon{*this, "Imgicon"};
  SheetItem ImgBaşlık{*this, "ImgBaşlık"};
  SheetItem imgisim{*this, "imgisim"};
  SheetItem imgtarih{*this, "imgtarih"};
  SheetItem ImgMektup{*this, "ImgMektup"};

  forms::Grid GrdÖzellik{*this,
                         "GrdÖzellik",
                         {.rows = 0, .cols = LayoutEditor::Columns, .fixedRows = 0},
                         forms::GridChoice::Rows};
  forms::TextBox TxtGrid{*this, "TxtGrid"};
  forms::ListBox LstGörüntüle{*this, "LstGörüntüle", forms::ListOrder::AsAdded,
                              forms::ListChoice::Several};
  // The name on the page; a patient of the list gives it his.
  forms::TextBox txtisim{*this, "txtisim"};
  forms::ListView LstTüm{*this, "LstTüm"};
  forms::Label Lbulunan{*this, "Lbulunan"};
  forms::Label LSayı{*this, "LSayı"};
  forms::CommandButton butonizleme{*this, "butonizleme"};
  forms::CommandButton ButYazdır{*this, "ButYazdır"};
  forms::CommandButton butcik{*this, "butcik"};

  // The prescription to be printed; the caller gives it to the loaded screen.
  void receteAl(std::string recete);

  void Load() override;
  void Unload() override;

  // The layout, from its record of Data/setting.dat and back.
  void Setkayitlarioku();
  void setkayityaz();
  // Fills the list of patients.
  void Listele();
  // Draws the page on the miniature sheet.
  void PYazdır();
  // Composes the pages, for the preview and for the printer.
  [[nodiscard]] page::Pages PMektupYazdır() const { return yerlesim.sayfalar(); }
  // Shows the pages; prints them when that is asked for there.
  void Mektuponizle();
  void Yazdır();

  LayoutEditor yerlesim;

 private:
  void listelendi();

  shell::Station& istasyon;
  std::string recete_;
  std::size_t listed_ = 0;  // rows of the list that were looked at
  PatientRows hastalar_;
};

}  // namespace documents

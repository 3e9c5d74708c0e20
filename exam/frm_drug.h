// The drug catalogue, and the prescription that is composed from it for the patient on the
// examination screen.
#pragma once

#include <span>
#include <string>
#include <string_view>

#include "documents/print_menu.h"
#include "exam/catalogue_screen.h"
#include "platform/forms/button.h"
#include "platform/forms/label.h"
#include "platform/forms/menu.h"
#include "platform/forms/text_control.h"

namespace exam {

using shell::Station;

class FrmDrug : public CatalogueScreen, public documents::PrintedRecord {
  static constexpr int noRecord = 0;

 public:
  explicit FrmDrug(Station& istasyon);

  forms::MenuItem MnuReçete{*this, "MnuReçete"};
  forms::MenuItem mnusihirbaz{MnuReçete, "mnusihirbaz"};

  forms::ListBox Lstilaç{*this, "Lstilaç"};
  forms::TextBox txtilaç{*this, "txtilaç"};
  forms::TextBox txtkullanım{*this, "txtkullanım"};
  forms::TextBox txtadet{*this, "txtadet"};
  forms::CommandButton buttasi{*this, "buttasi"};
  forms::TextBox txtaçıklama{*this, "txtaçıklama", forms::TextLines::Multiple};

  forms::Label lblRp{*this, "lblRp"};
  forms::Label lblisim{*this, "lblisim"};
  forms::Label lbluyarı{*this, "lbluyarı"};  // the patient's warning
  forms::TextBox txtrecete{*this, "txtrecete", forms::TextLines::Multiple};
  forms::Label sırano{*this, "sırano"};  // of the last drug of the prescription
  forms::CommandButton buttamam{*this, "buttamam"};
  forms::CommandButton Butİptal{*this, "Butİptal"};
  forms::StatusBar sbDurum{*this, "sbDurum", 1};

  [[nodiscard]] std::span<const shell::FieldRow> alanlar() const override;
  [[nodiscard]] dao::Recordset& tablo() override { return istasyon.stores.clinical.drug; }

  void Load() override;
  void alanlaribosalt() override;
  void tuskontrol() override;

  void İlaçlistele() { listNames(); }
  // Adds the drug on the screen to the prescription, after a question when it is on it already or
  // not in the catalogue.
  void Reçeteyeilaçekle();

  // The prescription on paper: heading, text, patient. It has no settings record: its template and
  // signature are chosen anew each time.
  documents::PrintMenu baski{istasyon, {mnuşablon, mnuonizleme, mnuyazdır}, *this, noRecord};
  void receteyazdir() { baski.oniz(); }
  void Yazılar(documents::ReportText& yazı) override;
  [[nodiscard]] std::string basilanIsim() const override { return lblisim.caption(); }
  [[nodiscard]] std::string basilanTarih() const override {
    return text::shortDate(istasyon.clock.today());
  }
  // Opens the print wizard with the prescription that is composed so far.
  void sihirbazAc();

 protected:
  [[nodiscard]] std::string composed() override { return txtrecete.text(); }
  [[nodiscard]] forms::TextControl& isimAlani() override { return txtilaç; }
  [[nodiscard]] dao::Database& veritabani() override { return istasyon.stores.clinical.database; }
  [[nodiscard]] forms::ListBox& list() override { return Lstilaç; }
  void durumYaz(std::string text) override { sbDurum.setPanel(1, std::move(text)); }
  [[nodiscard]] bool temizlenebilir() override;
  void yeniEtkin(bool enabled) override;
  bool tusBas(std::string_view key) override;
  [[nodiscard]] std::string ayarAdi() const override { return "Drug"; }

 private:
  [[nodiscard]] bool ikinciKezMi(const std::string& name);
  void receteDegisti();
};

}  // namespace exam

// The screen on which a request is composed from the catalogue of laboratory tests.
#pragma once

#include "documents/print_menu.h"
#include "exam/test_catalogue_screen.h"
#include "platform/forms/button.h"

namespace exam {

// The caller empties Station::AktarilanMetin before it opens the screen, and finds the request
// there when it was accepted.
class FrmDemand : public TestCatalogueScreen, public documents::PrintedRecord {
  static constexpr int noRecord = 0;

 public:
  explicit FrmDemand(shell::Station& istasyon);

  forms::CommandButton buttasi{*this, "buttasi"};
  forms::Label lblisim{*this, "lblisim"};
  forms::Label lblhasta{*this, "lblhasta"};
  forms::TextBox txtistem{*this, "txtistem", forms::TextLines::Multiple};
  forms::CommandButton buttamam{*this, "buttamam"};
  forms::CommandButton Butİptal{*this, "Butİptal"};

  // Adds the ticked tests and the one that was typed to the request, after a question for each that
  // is there already or not in the catalogue.
  void istemetestekle();

  // The request on paper: heading, patient, text. It has no settings record: its template and
  // signature are chosen anew each time.
  documents::PrintMenu baski{istasyon, {mnuşablon, mnuonizleme, mnuyazdır}, *this, noRecord};
  void tetkikyazdir() { baski.Yazdır(); }
  void Yazılar(documents::ReportText& yazı) override;
  [[nodiscard]] std::string basilanIsim() const override { return lblisim.caption(); }
  [[nodiscard]] std::string basilanTarih() const override {
    return text::shortDate(istasyon.clock.today());
  }

  void Load() override;
  void tuskontrol() override;

 protected:
  [[nodiscard]] std::string composed() override { return txtistem.text(); }
  [[nodiscard]] bool holdsComposed() override {
    return TestCatalogueScreen::holdsComposed() || !ticked().empty();
  }

 private:
  using Names = std::vector<std::string>;

  [[nodiscard]] Names ticked() const;
  // Puts the test of the name field behind them; false when the user wants to look again.
  [[nodiscard]] bool addTyped(Names& tests);
  void addToRequest(const Names& tests);
  void aktar();
};

}  // namespace exam

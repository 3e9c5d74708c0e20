// The catalogue of laboratory tests with their units and reference ranges, as two screens show it.
#pragma once

#include <string_view>

#include "exam/catalogue_screen.h"
#include "platform/forms/label.h"

namespace exam {

class TestCatalogueScreen : public CatalogueScreen {
 public:
  // What the screen is for: to keep the catalogue, or to take several tests from it.
  struct Use {
    Completion completion = Completion::None;
    forms::ListChoice choice = forms::ListChoice::One;
  };
  TestCatalogueScreen(shell::Station& istasyon, std::string_view name, Use use);

  forms::TextBox txttest{*this, "txttest"};
  forms::TextBox txtbirim{*this, "txtbirim"};
  forms::TextBox txtmin{*this, "txtmin"};
  forms::TextBox txtmax{*this, "txtmax"};
  forms::TextBox txtbilgi{*this, "txtbilgi", forms::TextLines::Multiple};
  forms::ListBox Lsttest;
  forms::StatusBar sbDurum{*this, "sbDurum", 2};

  // Lists the whole catalogue.
  void Testlistele();

  [[nodiscard]] std::span<const shell::FieldRow> alanlar() const override;
  [[nodiscard]] dao::Recordset& tablo() override { return istasyon.stores.clinical.Tests; }
  void Load() override;

 protected:
  [[nodiscard]] forms::TextControl& isimAlani() override { return txttest; }
  [[nodiscard]] dao::Database& veritabani() override { return istasyon.stores.clinical.database; }
  [[nodiscard]] bool temizlenebilir() override { return !YeniAlanlar().empty(); }
  void basliklariYenile() override;
  [[nodiscard]] forms::ListBox& list() override { return Lsttest; }
  void listeDegisti() override { Testlistele(); }
  void store() override;
  void durumYaz(std::string text) override { sbDurum.setPanel(1, std::move(text)); }
};

}  // namespace exam

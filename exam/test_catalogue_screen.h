// The catalogue of laboratory tests with their units and reference ranges, as two screens show it.
#pragma once

#include <string_view>

#include "platform/forms/label.h"
#include "platform/forms/list_control.h"
#include "shell/named_record_screen.h"

namespace exam {

class TestCatalogueScreen : public shell::NamedRecordScreen {
 public:
  TestCatalogueScreen(shell::Station& istasyon, std::string_view name);

  forms::TextBox txttest{*this, "txttest"};
  forms::TextBox txtbirim{*this, "txtbirim"};
  forms::TextBox txtmin{*this, "txtmin"};
  forms::TextBox txtmax{*this, "txtmax"};
  forms::TextBox txtbilgi{*this, "txtbilgi", forms::TextLines::Multiple};
  forms::ListBox Lsttest{*this, "Lsttest"};
  forms::StatusBar sbDurum{*this, "sbDurum", 2};

  // Lists the whole catalogue.
  void Testlistele();

  [[nodiscard]] std::span<const shell::FieldRow> alanlar() const override;
  [[nodiscard]] dao::Recordset& tablo() override { return istasyon.stores.clinical.Tests; }
  void Load() override;
  void Kaydet() override;

 protected:
  [[nodiscard]] forms::TextControl& isimAlani() override { return txttest; }
  [[nodiscard]] dao::Database& veritabani() override { return istasyon.stores.clinical.database; }
  [[nodiscard]] bool temizlenebilir() override { return !YeniAlanlar().empty(); }
  void basliklariYenile() override;
  void listeDegisti() override { Testlistele(); }
  void durumYaz(std::string text) override { sbDurum.setPanel(1, std::move(text)); }

 private:
  void satiriGoster(int row);
  void testSecildi();
  void isimYazildi();
  void isimBitti();
  [[nodiscard]] bool yalnizIsim() const;

  bool izliyor_ = false;  // the list follows what is typed; nobody chose the row
};

}  // namespace exam

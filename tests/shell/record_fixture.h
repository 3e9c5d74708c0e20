// Two small record screens on a folder of their own: a dated one on the examinations, a named one
// on the drug catalogue.
#pragma once

#include <gtest/gtest.h>

#include <array>
#include <filesystem>
#include <memory>

#include "shell/dated_record_screen.h"
#include "shell/named_record_screen.h"
#include "tests/support/card_stand_in.h"
#include "tests/support/practice.h"

namespace support {

class FrmProbe : public shell::DatedRecordScreen {
 public:
  explicit FrmProbe(shell::Station& station)
      : DatedRecordScreen(station, "FrmProbe", stores::kind::examination, "Lsttarihler") {
    ComMedeniDurum.setItems({"Bekar", "Evli", "Dul"});
    ekraniKur({"operation", "test", "resim"});
  }
  forms::TextBox comdoktor{*this, "comdoktor"};
  forms::TextBox txtücret{*this, "txtücret"};
  forms::TextBox txtşikayet{*this, "txtşikayet", forms::TextLines::Multiple};
  forms::TextBox txtözgeçmiş{*this, "txtözgeçmiş"};
  forms::ComboBox ComMedeniDurum{*this, "ComMedeniDurum"};
  forms::CheckBox ChkHT{*this, "ChkHT"};
  forms::TextBox txtp1{*this, "txtp1"};

  [[nodiscard]] std::span<const shell::FieldRow> alanlar() const override {
    using enum shell::Stored;
    using shell::controlOf;
    static constexpr std::array<shell::FieldRow, 7> rows{{
        {controlOf<&FrmProbe::comdoktor>, "Doctor", "doktor", 40},
        {controlOf<&FrmProbe::txtücret>, "Fee", "ucret", 0, Amount},
        {controlOf<&FrmProbe::txtşikayet>, "Complain", "sikayet"},
        {controlOf<&FrmProbe::txtözgeçmiş>, "Past Illness", "ozgecmis", 0, Text,
         shell::CarryOver::Yes},
        {controlOf<&FrmProbe::ComMedeniDurum>, "Marital status", "medenidurum", 0, ListIndex},
        {controlOf<&FrmProbe::ChkHT>, "HT", "HT", 0, Mark},
        {controlOf<&FrmProbe::txtp1>, "Picture1", "Resim"},
    }};
    return rows;
  }

 protected:
  void listelereEkle() override {
    if (comdoktor.text().empty()) return;
    dao::Recordset& doctors = istasyon.stores.clinical.Doctors;
    if (doctors.Seek("=", comdoktor.text()) && doctors.NoMatch() && doctors.AddNew() &&
        doctors.Fields("Doctor").Set(comdoktor.text()))
      doctors.Update().ignore();
  }
};

class FrmDrugProbe : public shell::NamedRecordScreen {
 public:
  explicit FrmDrugProbe(shell::Station& station)
      : NamedRecordScreen(station, "FrmDrugProbe", "txteskiilaç") {
    alanlariBagla();
    alanGenislikleri(station.stores.clinical.database, "drug");
    alanlaribosalt();
  }
  forms::TextBox txtilaç{*this, "txtilaç"};
  forms::TextBox txtdoz{*this, "txtdoz"};
  std::string status;

  [[nodiscard]] std::span<const shell::FieldRow> alanlar() const override {
    static constexpr std::array<shell::FieldRow, 2> rows{{
        {shell::controlOf<&FrmDrugProbe::txtilaç>, "Drog", "ilac"},
        {shell::controlOf<&FrmDrugProbe::txtdoz>, "Dosage", "dozaj"},
    }};
    return rows;
  }
  [[nodiscard]] dao::Recordset& tablo() override { return istasyon.stores.clinical.drug; }

 protected:
  [[nodiscard]] forms::TextControl& isimAlani() override { return txtilaç; }
  [[nodiscard]] dao::Database& veritabani() override { return istasyon.stores.clinical.database; }
  void durumYaz(std::string text) override { status = std::move(text); }
};

struct RecordDesk : Desk {
  explicit RecordDesk(const std::string& folder) : Desk(folder) {
    std::filesystem::create_directories(folder + "/Data");
    EXPECT_TRUE(stores::OpenStores(station.stores).ok());
    station.SeciliHasta = "Ayşe Yıldız*";
  }
  // The screen as it stands when it was opened for the patient on the card.
  [[nodiscard]] std::unique_ptr<FrmProbe> open() {
    auto screen = std::make_unique<FrmProbe>(station);
    screen->Load();
    return screen;
  }
  CardStandIn card{station};
};

struct Records : testing::Test {
  TemporaryFolder folder;
  RecordDesk desk{folder.path()};
  std::unique_ptr<FrmProbe> screen = desk.open();

  void save(const char* date, const char* complaint) {
    screen->mnuyeni.Click();
    screen->txttarih.setText(date);
    screen->txtşikayet.setText(complaint);
    screen->mnukaydet.press();
  }
  [[nodiscard]] std::vector<std::string> dates() const {
    std::vector<std::string> texts;
    for (const forms::ListItem& item : screen->liste.items()) texts.push_back(item.text);
    return texts;
  }
  // Number lists of the ledger; "" when the patient has no row.
  [[nodiscard]] std::string ledger(std::string_view key = "GenMed\\Ayşe Yıldız*") {
    dao::Recordset& visit = desk.station.stores.clinical.Visit;
    if (!visit.Seek("=", key) || visit.NoMatch()) return {};
    return visit.Fields("Visit Count").text() + ": " + visit.Fields("Visit Numbers").text();
  }
};

}  // namespace support

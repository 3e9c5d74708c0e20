// A record screen whose records are dated and belong to the patient in its banner: the list of
// dates, the visit ledger behind it, and the rule for the record's date.
#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "platform/forms/label.h"
#include "platform/forms/list_control.h"
#include "shell/numbered_record.h"
#include "shell/record_screen.h"
#include "stores/visit_ledger.h"

namespace shell {

class DatedRecordScreen : public RecordScreen {
 public:
  // The kind outlives the screen. `dates` is the name of the visible list of dates.
  DatedRecordScreen(Station& istasyon, std::string_view name, const stores::RecordKind& kind,
                    std::string_view dates);

  forms::Label lblisim{*this, "lblisim"};    // the patient, as the tables hold the name
  forms::Label lblhasta{*this, "lblhasta"};  // the banner: name, age, sex, blood group
  forms::ListBox liste;                      // the dates; each row's data is the record's number
  forms::DateBox txttarih{*this, "txttarih"};
  forms::Label Lblyaş{*this, "Lblyaş"};  // the age on the record's date
  forms::StatusBar sbDurum{*this, "sbDurum", 2};
  forms::ListBox Lstkn{*this, "Lstkn"};          // the numbers behind the dates
  forms::TextBox txtnumara{*this, "txtnumara"};  // empty for a record that was never saved

  [[nodiscard]] dao::Recordset& tablo() override {
    return istasyon.stores.clinical.*kind_.recordset;
  }
  [[nodiscard]] std::string eskiAnahtar() const override { return txtnumara.text(); }
  [[nodiscard]] std::string& yedek() override { return yedek_; }

  // The patient on the card comes onto the screen.
  void Load() override;
  // Stores the record and its ledger row, both or neither. A record that another station deleted
  // meanwhile is stored anew.
  void Kaydet() override;
  void Sil() override;
  // Deletes without a question, and lists what remains of the ledger's numbers.
  void Sil1();
  // A new record: dated today, with what it carries over from the patient's latest one.
  void alanlaribosalt() override;
  void Yeni();
  [[nodiscard]] std::string YeniAlanlar() override;
  dao::Status Forumalanlaritasi() override;

  // The list of dates from the ledger, and from the table itself. One that cannot be read is empty.
  dao::Status VTarihler();
  void tarihler();
  // Writes the list of dates into the ledger.
  void Visitkaydet();

  // Whether the date on the screen can be the record's: a date, not later than today, not before
  // the patient's birth. Otherwise it says so, and the date of before comes back.
  bool hatalitarih();

 protected:
  // To be called by the screen's constructor when its fields exist: ties them, and adds the
  // toolbar's usual buttons around those of the screen.
  void ekraniKur(std::initializer_list<const char*> companions = {});
  void durumYaz(std::string text) override { sbDurum.setPanel(1, std::move(text)); }
  [[nodiscard]] bool kaydedilebilir() override { return !lblisim.caption().empty(); }
  [[nodiscard]] bool temizlenebilir() override;
  void kayitYuklendi() override;
  void basliklariYenile() override;
  // New values of the screen's lists go into their tables; part of the save.
  virtual void listelereEkle() {}
  // Before another record of the list replaces what is on the screen; false keeps it.
  [[nodiscard]] virtual bool secimdenOnce() { return kayitkontrol(); }
  // The user left a valid date.
  virtual void tarihBitti() {}
  // The column whose first words stand beside the dates; empty for none.
  [[nodiscard]] virtual std::string_view listeNotu() const { return {}; }
  // The list of dates has other rows.
  virtual void listeDegisti() {}
  // Another patient is on the screen.
  virtual void hastaDegisti();
  // Where typing begins.
  [[nodiscard]] virtual forms::Control& ilkAlan() { return txttarih; }
  [[nodiscard]] text::DateTime bugun() const { return istasyon.clock.today(); }

 private:
  using Records = std::vector<stores::DatedRecord>;

  [[nodiscard]] dao::Status kayitYaz();
  using Lister = std::function<dao::Result<Records>()>;
  [[nodiscard]] NumberedRecord kayit();
  // Deletes the record and its place in the ledger, both or neither; `remaining` lists the others.
  void silVeListele(std::int64_t number, const Lister& remaining);
  [[nodiscard]] dao::Status kaydiSil(std::int64_t number, const Lister& remaining, Records& left);
  [[nodiscard]] dao::Result<Records> hastaninKayitlari();
  [[nodiscard]] std::string anahtar() const;
  dao::Status vizitYaz(const Records& records);
  void listele(Records records);
  [[nodiscard]] std::map<std::int64_t, std::string> listeNotlari();
  void dugmeleriYenile();
  void satiriSec();
  void tarihSecildi();
  void numaraDegisti();
  void sonrakineTasi();

  const stores::RecordKind& kind_;
  Records kayitlar_;            // in the order of the list
  std::string yedek_;           // its own: screens of one family may lie over each other
  std::string gosterilen_;      // the number of the record that is on the screen
  bool dateUnchecked_ = false;  // while New leaves the date field
};

}  // namespace shell

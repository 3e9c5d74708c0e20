// The examination: one dated examination of the patient on the card, under the speciality in force,
// and the way to the patient's other records.
#pragma once

#include <array>
#include <optional>
#include <string>

#include "documents/print_menu.h"
#include "exam/exam_speciality.h"
#include "exam/exam_text.h"
#include "platform/forms/button.h"
#include "shell/dated_record_screen.h"
#include "shell/font_record.h"

namespace exam {

class ExamListing;

class FrmExam : public shell::DatedRecordScreen, public documents::PrintedRecord {
 public:
  explicit FrmExam(shell::Station& istasyon);

  // --- Menus, behind those that every record screen has
  forms::MenuItem MnuKayit{*this, "MnuKayit"};
  forms::MenuItem mnureçete{MnuKayit, "mnureçete"};
  forms::MenuItem mnuistem{MnuKayit, "mnuistem"};
  forms::MenuItem mnutest{MnuKayit, "mnutest"};
  forms::MenuItem çizgi3{MnuKayit, "çizgi3", forms::MenuKind::Separator};
  forms::MenuItem mnuameliyat{MnuKayit, "mnuameliyat"};
  forms::MenuItem mnufizikgelişme{MnuKayit, "mnufizikgelişme"};
  forms::MenuItem mnumotmengelişme{MnuKayit, "mnumotmengelişme"};
  forms::MenuItem mnuasi{MnuKayit, "mnuasi"};
  forms::MenuItem mnugebetakip{MnuKayit, "mnugebetakip"};
  forms::MenuItem mnulens{MnuKayit, "mnulens"};
  forms::MenuItem mnugözlük{MnuKayit, "mnugözlük"};
  forms::MenuItem mnuanjiyo{MnuKayit, "mnuanjiyo"};
  forms::MenuItem mnueko{MnuKayit, "mnueko"};
  forms::MenuItem mnuefor{MnuKayit, "mnuefor"};
  forms::MenuItem çizgi4{MnuKayit, "çizgi4", forms::MenuKind::Separator};
  forms::MenuItem mnuresim{MnuKayit, "mnuresim"};
  forms::MenuItem mnufilm{MnuKayit, "mnufilm"};
  forms::MenuItem çizgi5{MnuKayit, "çizgi5", forms::MenuKind::Separator};
  forms::MenuItem mnuwarn{MnuKayit, "mnuwarn"};
  forms::MenuItem mnumuayenedökümü{MnuKayit, "mnumuayenedökümü"};

  // --- The record, in the order in which one dictates it
  forms::Label lbluyarı{*this, "lbluyarı"};  // the patient's warning, beside the name
  forms::ComboBox comdoktor{*this, "comdoktor"};
  forms::TextBox txtücret{*this, "txtücret"};
  forms::TabStrip TabStrip1{*this, "TabStrip1", {"TSGenel", "TSÖzel"}};

  forms::Panel pgenel{*this, "pgenel"};
  forms::TextBox txtşikayet{*this, "txtşikayet", forms::TextLines::Multiple};
  forms::TextBox txthikaye{*this, "txthikaye", forms::TextLines::Multiple};
  forms::TextBox txtözgeçmiş{*this, "txtözgeçmiş", forms::TextLines::Multiple};
  forms::TextBox txtsoygeçmiş{*this, "txtsoygeçmiş", forms::TextLines::Multiple};
  forms::TextBox txtnabız{*this, "txtnabız"};
  forms::TextBox txtsistol{*this, "txtsistol"};
  forms::TextBox txtdiastol{*this, "txtdiastol"};
  forms::TextBox txtateş{*this, "txtateş"};
  forms::TextBox txtboy{*this, "txtboy"};
  forms::TextBox txtkilo{*this, "txtkilo"};
  forms::TextBox txtfizikmuayene{*this, "txtfizikmuayene", forms::TextLines::Multiple};
  forms::TextBox txttahlil{*this, "txttahlil", forms::TextLines::Multiple};
  forms::TextBox txtteşhis{*this, "txtteşhis", forms::TextLines::Multiple};
  forms::TextBox txttedavi{*this, "txttedavi", forms::TextLines::Multiple};
  forms::TextBox txtöneri{*this, "txtöneri", forms::TextLines::Multiple};
  forms::TextBox txtkontrol{*this, "txtkontrol", forms::TextLines::Multiple};

  forms::Panel pözel{*this, "pözel"};
  forms::Panel FKBB{*this, "FKBB"};
  forms::TextBox txtoralkavite{*this, "txtoralkavite", forms::TextLines::Multiple};
  forms::TextBox Txtnazalkavite{*this, "Txtnazalkavite", forms::TextLines::Multiple};
  forms::TextBox txtSağotoskopi{*this, "txtSağotoskopi", forms::TextLines::Multiple};
  forms::TextBox txtSolotoskopi{*this, "txtSolotoskopi", forms::TextLines::Multiple};
  forms::TextBox TxtBoyun{*this, "TxtBoyun", forms::TextLines::Multiple};

  forms::Panel FKado{*this, "FKado"};
  forms::ComboBox ComMedeniDurum{*this, "ComMedeniDurum", forms::ComboStyle::ListOnly};
  forms::TextBox TxtİAT{*this, "TxtİAT"};
  forms::TextBox txtSAT{*this, "txtSAT"};
  forms::TextBox TxtAdedleri{*this, "TxtAdedleri"};
  forms::TextBox txtDismenore{*this, "txtDismenore"};
  forms::TextBox txtvaginalakıntı{*this, "txtvaginalakıntı"};
  forms::TextBox txtkorunma{*this, "txtkorunma", forms::TextLines::Multiple};
  forms::TextBox txtDiğer{*this, "txtDiğer", forms::TextLines::Multiple};
  forms::TextBox txtp{*this, "txtp"};
  forms::TextBox txtg{*this, "txtg"};
  forms::TextBox txty{*this, "txty"};
  forms::TextBox txta{*this, "txta"};
  forms::TextBox txtc{*this, "txtc"};

  forms::Panel FGoz{*this, "FGoz"};
  forms::TextBox txtgörmesağ{*this, "txtgörmesağ"};
  forms::TextBox txtgörmesol{*this, "txtgörmesol"};
  forms::TextBox txttasgörsağ{*this, "txttasgörsağ"};
  forms::TextBox txttasgörsol{*this, "txttasgörsol"};
  forms::TextBox txtgözlüksağ{*this, "txtgözlüksağ"};
  forms::TextBox txtgözlüksol{*this, "txtgözlüksol"};
  forms::TextBox txthorizontalsağ{*this, "txthorizontalsağ"};
  forms::TextBox txthorizontalsol{*this, "txthorizontalsol"};
  forms::TextBox txtverticalsağ{*this, "txtverticalsağ"};
  forms::TextBox txtverticalsol{*this, "txtverticalsol"};

  forms::Panel FKalp{*this, "FKalp"};
  forms::TextBox txtekg{*this, "txtekg", forms::TextLines::Multiple};
  forms::TextBox txttele{*this, "txttele", forms::TextLines::Multiple};
  forms::CheckBox ChkHT{*this, "ChkHT"};
  forms::CheckBox ChkDM{*this, "ChkDM"};
  forms::CheckBox ChkHiperlipemi{*this, "ChkHiperlipemi"};
  forms::CheckBox Chksigara{*this, "Chksigara"};
  forms::CheckBox Chkstres{*this, "Chkstres"};

  // --- State that never shows
  forms::TextBox txtp1{*this, "txtp1"};
  forms::TextBox txtp2{*this, "txtp2"};
  forms::TextBox txtp3{*this, "txtp3"};
  forms::TextBox txtp4{*this, "txtp4"};
  forms::TextBox txtp5{*this, "txtp5"};
  forms::TextBox txtp6{*this, "txtp6"};
  forms::TextBox txtmov{*this, "txtmov"};
  documents::PrintMenu yazdirma{
      istasyon, {mnuşablon, mnuonizleme, mnuyazdır}, *this, shell::font_record::examination};

  // --- The protocol
  [[nodiscard]] std::span<const shell::FieldRow> alanlar() const override;
  [[nodiscard]] std::string& yedek() override { return istasyon.MuayeneYedegi; }
  void Load() override;
  void Unload() override;
  // The page that stood in front at the last closing comes to the front.
  void alanlaribosalt() override;
  dao::Status Forumalanlaritasi() override;
  void Ayaryaz() override;

  // The list of dates from the table, and from the ledger.
  void MuayeneTarihleri() { tarihler(); }
  void VMuayeneTarihleri() { VTarihler().ignore(); }
  // Shows the record whose number stands in txtnumara.
  void Muayenebul();

  // Opens the operations of the patient.
  void Ameliyataç();

  // The record on the screen as a text: captions and what stands behind them, nothing empty.
  void Yazılar(documents::ReportText& yazı) override;
  [[nodiscard]] std::string basilanIsim() const override { return lblisim.caption(); }
  [[nodiscard]] std::string basilanTarih() const override { return txttarih.text(); }
  void oniz() { yazdirma.oniz(); }
  void Yazdır() { yazdirma.Yazdır(); }

  // The field that holds the column `Physical Exam6`: contraception in gynecology, else the neck.
  [[nodiscard]] forms::TextBox& boyunAlani() { return FKado.visible() ? txtkorunma : TxtBoyun; }

 protected:
  [[nodiscard]] bool kaydedilebilir() override;
  [[nodiscard]] std::vector<std::string> missing() override;
  [[nodiscard]] bool hasTypedText() override;
  [[nodiscard]] bool temizlenebilir() override;
  void kayitYuklendi() override;
  void listelereEkle() override;
  [[nodiscard]] bool secimdenOnce() override;
  void tarihBitti() override;
  [[nodiscard]] std::string_view listeNotu() const override { return "Diagnosis"; }
  void listeDegisti() override;
  void hastaDegisti() override;
  void basliklariYenile() override;
  [[nodiscard]] forms::Control& ilkAlan() override;
  bool tusBas(std::string_view key) override;

 private:
  enum class Page { General, Special };

  void alanlariHazirla();
  void gunuSec();
  void bransaGore();
  void menuleriBagla();
  void sayfaSec(Page page);
  void sayfayiGoster();
  [[nodiscard]] Page ondekiSayfa() const;
  [[nodiscard]] Page sonSayfa() const;

  void oncekindenTasi(std::int64_t number);
  [[nodiscard]] std::optional<std::int64_t> onundeki(const text::DateTime& date) const;
  void tasinanlariAl();

  void ekranAc(const forms::MenuItem& entry, std::string_view screen,
               const shell::Station::Prepare& prepare = {});
  void metinAl(const forms::MenuItem& entry, std::string_view screen, forms::TextBox& field);
  void filmAc();
  void hesapAc();
  void uyariOku();
  void uyariAc();

  [[nodiscard]] bool dolu(const shell::FieldRow& row);
  [[nodiscard]] std::string ekrandaki(const shell::FieldRow& row);
  [[nodiscard]] std::string kayittaki(const shell::FieldRow& row);
  void dokumYaz();
  void dokumeEkle(ExamListing& listing, const forms::ListItem& item);
  void dokumuSakla(ExamListing& listing);

  const Workspace& calisma_;
  // What the fields that follow the date were carried over with.
  std::array<std::string, 3> tasinan_;
  std::string bosHali_;  // the fields of a new record before anything is typed
};

}  // namespace exam

// The patient card: the main window and the identity record of a patient.
#pragma once

#include <array>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "documents/print_menu.h"
#include "platform/forms/button.h"
#include "platform/forms/label.h"
#include "platform/forms/list_control.h"
#include "platform/forms/menu.h"
#include "platform/forms/text_control.h"
#include "registry/name_search.h"
#include "registry/photo_fit.h"
#include "shell/font_record.h"
#include "shell/record_screen.h"

namespace registry {

using shell::Station;

class FrmMain : public shell::RecordScreen,
                public shell::PatientCard,
                public documents::PrintedRecord {
 public:
  explicit FrmMain(Station& istasyon);
  ~FrmMain() override;

  // --- Menus, behind those that every record screen has
  forms::MenuItem MnuKayit{*this, "MnuKayit"};
  forms::MenuItem mnugeri{MnuKayit, "mnugeri"};
  forms::MenuItem mnuileri{MnuKayit, "mnuileri"};
  forms::MenuItem çizgi3{MnuKayit, "çizgi3", forms::MenuKind::Separator};
  forms::MenuItem mnumuayene1{MnuKayit, "mnumuayene1"};
  forms::MenuItem MnuMuayene2{MnuKayit, "MnuMuayene2"};
  forms::MenuItem MnuMuayene3{MnuKayit, "MnuMuayene3"};
  forms::MenuItem MnuMuayene4{MnuKayit, "MnuMuayene4"};
  forms::MenuItem MnuMuayene5{MnuKayit, "MnuMuayene5"};
  forms::MenuItem MnuMuayene6{MnuKayit, "MnuMuayene6"};
  forms::MenuItem MnuMuayene7{MnuKayit, "MnuMuayene7"};
  forms::MenuItem Mnumuayene9{MnuKayit, "Mnumuayene9"};
  forms::MenuItem MnuMuayene10{MnuKayit, "MnuMuayene10"};
  forms::MenuItem mnumuayene13{MnuKayit, "mnumuayene13"};
  forms::MenuItem mnumuayene14{MnuKayit, "mnumuayene14"};
  forms::MenuItem MnuMuayene20{MnuKayit, "MnuMuayene20"};
  forms::MenuItem mnutest{MnuKayit, "mnutest"};
  forms::MenuItem mnuasi{MnuKayit, "mnuasi"};
  forms::MenuItem mnufizikgelişme{MnuKayit, "mnufizikgelişme"};
  forms::MenuItem mnumotmengelişme{MnuKayit, "mnumotmengelişme"};
  forms::MenuItem mnugebetakip{MnuKayit, "mnugebetakip"};
  forms::MenuItem mnuameliyat{MnuKayit, "mnuameliyat"};
  forms::MenuItem mnulens{MnuKayit, "mnulens"};
  forms::MenuItem mnueko{MnuKayit, "mnueko"};
  forms::MenuItem mnuefor{MnuKayit, "mnuefor"};
  forms::MenuItem mnuanjiyo{MnuKayit, "mnuanjiyo"};
  forms::MenuItem mnusigara{MnuKayit, "mnusigara"};
  forms::MenuItem mnusigarabp{mnusigara, "mnusigarabp"};

  forms::MenuItem MnuListeler{*this, "MnuListeler"};
  forms::MenuItem mnugünlükmuayeneler{MnuListeler, "mnugünlükmuayeneler"};
  forms::MenuItem mnumuayenetarihleri{MnuListeler, "mnumuayenetarihleri"};
  forms::MenuItem mnulensstok{MnuListeler, "mnulensstok"};
  forms::MenuItem mnubekdoğum{MnuListeler, "mnubekdoğum"};
  forms::MenuItem mnuhesaplar{MnuListeler, "mnuhesaplar"};
  forms::MenuItem hiddenLine{MnuListeler, "hiddenLine", forms::MenuKind::Separator};
  forms::MenuItem mnuShowHidden{MnuListeler, "mnuShowHidden"};
  forms::MenuItem mnuLockHidden{MnuListeler, "mnuLockHidden"};
  forms::MenuItem mnuChooseHidden{MnuListeler, "mnuChooseHidden"};

  forms::MenuItem mnuara{*this, "mnuara"};
  forms::MenuItem mnubul{mnuara, "mnubul"};
  forms::MenuItem cizgi7{mnuara, "cizgi7", forms::MenuKind::Separator};
  forms::MenuItem mnumuayeneara{mnuara, "mnumuayeneara"};
  forms::MenuItem mnuraporara{mnuara, "mnuraporara"};
  forms::MenuItem mnutestara{mnuara, "mnutestara"};
  forms::MenuItem mnuameliyatara{mnuara, "mnuameliyatara"};
  forms::MenuItem çizgi8{mnuara, "çizgi8", forms::MenuKind::Separator};
  forms::MenuItem mnuekoara{mnuara, "mnuekoara"};
  forms::MenuItem mnueforara{mnuara, "mnueforara"};
  forms::MenuItem mnuanjiyoara{mnuara, "mnuanjiyoara"};
  forms::MenuItem mnulensara{mnuara, "mnulensara"};

  forms::MenuItem MnuSecenek{*this, "MnuSecenek"};
  forms::MenuItem mnusecenekler{MnuSecenek, "mnusecenekler"};
  forms::MenuItem mnumesajlar{MnuSecenek, "mnumesajlar"};
  forms::MenuItem çizgi9{MnuSecenek, "çizgi9", forms::MenuKind::Separator};
  forms::MenuItem mnuyedekle{MnuSecenek, "mnuyedekle"};
  forms::MenuItem mnugeriyukle{MnuSecenek, "mnugeriyukle"};
  forms::MenuItem mnuyedekdene{MnuSecenek, "mnuyedekdene"};
  forms::MenuItem mnudosyabakimi{MnuSecenek, "mnudosyabakimi"};
  forms::MenuItem çizgi10{MnuSecenek, "çizgi10", forms::MenuKind::Separator};
  forms::MenuItem mnutamir{MnuSecenek, "mnutamir"};
  forms::MenuItem mnugebekart{MnuSecenek, "mnugebekart"};

  forms::MenuItem MnuYardim{*this, "MnuYardim"};
  forms::MenuItem mnuhakkinda{MnuYardim, "mnuhakkinda"};

  // --- The card, in the order in which one dictates it
  forms::TextBox Txtİsim{*this, "Txtİsim"};
  forms::ListBox Lstdat{*this, "Lstdat"};
  forms::TextBox TxtDTarihi{*this, "TxtDTarihi"};
  forms::TextBox Txtyaş{*this, "Txtyaş"};
  forms::Label txtyaşı{*this, "txtyaşı"};
  forms::ComboBox ComCinsiyet{*this, "ComCinsiyet"};

  forms::TabStrip TabStrip1{*this, "TabStrip1", {"TSKişisel", "TSAdres", "TSKurum", "TSNot"}};

  forms::Panel PKişisel{*this, "PKişisel"};
  forms::ComboBox ComKanGrubu{*this, "ComKanGrubu"};
  forms::ComboBox comdogumyeri{*this, "comdogumyeri"};
  forms::ComboBox ComMeslek{*this, "ComMeslek"};
  forms::TextBox TxtAnaAdı{*this, "TxtAnaAdı"};
  forms::TextBox TxtBabaAdı{*this, "TxtBabaAdı"};
  forms::TextBox TxtKimlikNo{*this, "TxtKimlikNo"};
  forms::ComboBox ComRefere{*this, "ComRefere"};

  forms::Panel PAdres{*this, "PAdres"};
  forms::ComboBox ComHitap{*this, "ComHitap"};
  forms::TextBox TxtAdres1{*this, "TxtAdres1"};
  forms::TextBox TxtAdres2{*this, "TxtAdres2"};
  forms::TextBox TxtAdres3{*this, "TxtAdres3"};
  forms::TextBox TxtAdres4{*this, "TxtAdres4"};
  forms::TextBox TxtTelefon1{*this, "TxtTelefon1"};
  forms::TextBox TxtTelefon2{*this, "TxtTelefon2"};
  forms::TextBox TxtMobil{*this, "TxtMobil"};
  forms::TextBox TxtFax{*this, "TxtFax"};
  forms::TextBox TxtMail{*this, "TxtMail"};

  forms::Panel PKurum{*this, "PKurum"};
  forms::ComboBox ComKurum{*this, "ComKurum"};
  forms::TextBox TxtÇalışan{*this, "TxtÇalışan"};
  forms::TextBox TxtSicil{*this, "TxtSicil"};
  forms::ComboBox comgorev{*this, "comgorev"};
  forms::ComboBox comyakinlik{*this, "comyakinlik"};

  forms::Panel PNot{*this, "PNot"};
  forms::TextBox txtnot{*this, "txtnot", forms::TextLines::Multiple};

  // --- Beside the card
  forms::Label lbluyarı{*this, "lbluyarı"};  // the patient's warning
  forms::Panel Panofoto{*this, "Panofoto"};
  forms::Picture ImgFoto{*this, "ImgFoto"};
  forms::TextBox txtfoto{*this, "txtfoto"};
  forms::CommandButton Butfoto{*this, "Butfoto"};
  forms::TextBox txtdosyano{*this, "txtdosyano"};
  forms::TextBox txtfinno{*this, "txtfinno"};
  forms::CommandButton butfatbil{*this, "butfatbil"};

  forms::Panel panoresim{*this, "panoresim"};
  forms::Picture PResim{*this, "PResim"};
  forms::Label Lhakkinda{*this, "Lhakkinda"};

  forms::Panel Picbranslar{*this, "Picbranslar"};
  forms::OptionButton Bdahiliye{*this, "Bdahiliye", "brans"};
  forms::OptionButton BCerrahi{*this, "BCerrahi", "brans"};
  forms::OptionButton BÇocuk{*this, "BÇocuk", "brans"};
  forms::OptionButton BKadınDoğum{*this, "BKadınDoğum", "brans"};
  forms::OptionButton BGöz{*this, "BGöz", "brans"};
  forms::OptionButton BKBB{*this, "BKBB", "brans"};
  forms::OptionButton BGenel{*this, "BGenel", "brans"};

  const std::array<forms::OptionButton*, 7> branslar{&Bdahiliye, &BCerrahi, &BÇocuk, &BKadınDoğum,
                                                     &BGöz,      &BKBB,     &BGenel};

  forms::Panel Pexam{*this, "Pexam"};
  forms::TextBox txttarih{*this, "txttarih"};
  forms::ListBox Liste{*this, "Liste"};

  forms::StatusBar sbDurum{*this, "sbDurum", 7};
  forms::Timer Timer1{*this, "Timer1"};

  // --- State that never shows
  forms::TextBox TxtEskiİsim{*this, "TxtEskiİsim"};  // the old key
  forms::TextBox txtkey{*this, "txtkey"};            // "¬" hides the patient
  forms::Label idk{*this, "idk"};                    // the counter of the delayed search
  forms::Label Lresim{*this, "Lresim"};              // the splitter's place, setting CurX
  forms::Label Netsıra{*this, "Netsıra"};            // this station's slot in the register

  documents::PrintMenu baski{
      istasyon, {mnuşablon, mnuonizleme, mnuyazdır}, *this, shell::font_record::card};

  // --- The protocol
  [[nodiscard]] std::span<const shell::FieldRow> alanlar() const override;
  [[nodiscard]] dao::Recordset& tablo() override { return istasyon.stores.personal.IDCard; }
  [[nodiscard]] std::string eskiAnahtar() const override { return TxtEskiİsim.text(); }
  [[nodiscard]] std::string& yedek() override { return istasyon.KartYedegi; }

  // Leaves everything closed when another station cares for the files and the user does not wait.
  void Load() override;
  [[nodiscard]] bool acildi() const { return acildi_; }
  void Activate() override;
  // The backup at exit comes before the save question.
  [[nodiscard]] bool QueryUnload() override;
  void Unload() override;

  bool hastaoku() override;
  void Eskialanmain() override { Eskialan(); }
  void hastaSec(const std::string& name) override;
  [[nodiscard]] bool gizliMi(std::string_view key) const override;
  void kayityap();
  void Kaydet() override;
  void Sil() override;
  void Yeni();
  void alanlaribosalt() override;
  void tuskontrol() override;
  dao::Status Forumalanlaritasi() override;
  // The birth field holds no year later than this one, and no date later than today.
  bool hatalitarih();

  void Listeleriyaz() override;
  void dilDegisti() override;
  void sigaraGirisi() override;
  void ButtonsForPatient() override;
  // How many messages wait for the user of this desk.
  void yeniMesaj(long count);
  // The card of the patient that was loaded: nothing that was typed into the name field since then.
  void Yazılar(documents::ReportText& yazı) override;
  [[nodiscard]] std::string basilanIsim() const override { return TxtEskiİsim.text(); }
  [[nodiscard]] std::string basilanTarih() const override;

  // Opens the examination of the present speciality.
  void muayenetus();

  void datlistele();
  void datlisteleTUR();
  [[nodiscard]] std::string dogum() const override { return TxtDTarihi.text(); }
  [[nodiscard]] int cinsiyet() const override { return ComCinsiyet.listIndex(); }
  [[nodiscard]] std::string kanGrubu() const override { return ComKanGrubu.text(); }
  [[nodiscard]] std::string fotograf() const override { return txtfoto.text(); }
  [[nodiscard]] const std::string& baslik() const override { return caption(); }

  // Brings the patient of the clicked row of the day's list onto the card and opens the
  // examination, which finds the day in Station::SeciliTarih.
  void gunlukMuayenebul();
  // Saves every card anew, which restores the value lists and cuts what is too long.
  void Tamir2();
  // Adds a card for every name of the Pregnancy table that has none.
  void Command1();

  // Restores the stores from the backup and empties the card: no row of the old stores stays on it.
  void mnugeriyukle_Click();
  // The run of maintenance over the stores; the screen goes on with those that it leaves.
  void dosyabakimi();

  // Fits the photograph into its panel.
  void ResimBoyutla();

 protected:
  [[nodiscard]] bool kaydedilebilir() override;
  [[nodiscard]] std::vector<std::string> missing() override;
  [[nodiscard]] bool hasTypedText() override;
  // An age that is being typed counts.
  void saveIsOff() override;

 private:
  enum class Direction { Back, Forward };
  // A name is not kept when its patient was loaded instead, or was to be and the card stayed.
  enum class NameCheck { Kept, NotKept };
  enum class Taken { Ours, Missing, Elsewhere };

  void menuleriBagla();
  void araclariKur();
  void kartiBagla();
  void baskiTuslari();
  void ekranAc(const forms::MenuItem& entry, std::string_view screen);
  [[nodiscard]] bool kartSaklandi();
  bool tusBas(std::string_view key) override;
  void yonEtkin(Direction direction, bool enabled);
  void adim(Direction direction);
  bool ilkAcilan(Direction direction, bool found);

  // Ends what was typed into the name field: the case of a listed name, then the namesake question.
  NameCheck isimBitti();
  NameCheck adasSor();
  [[nodiscard]] bool baskaHasta(const std::string& name);
  // The name of another patient that is the same but for case, as the name list tells it; none
  // where the store finds the name itself.
  [[nodiscard]] std::optional<std::string> otherSpelling(const std::string& name);
  // The namesake comes onto the card instead of what stands there.
  void loadNamesake(const std::string& name);
  void backToName();
  // A choice in the list replaces what is on the card; what was typed beside the name is not lost
  // without a question.
  [[nodiscard]] bool secimdenOnce();
  bool hastayiGoster(const std::string& name);
  void saatVurusu();
  void digerleriniGor();
  void isimYazildi();
  void listeyiBaslat(dao::Fold fold);
  void listeyiSurdur();
  void listeyiSay();
  void listeyiKapat();
  [[nodiscard]] std::string adasNotu(const std::string& name);
  void isimleriAc(bool unlocked);
  void isimSifresi();
  // The accounts open for whoever knows their password, when one is asked for.
  void hesaplariAc();
  void gizlileriSec();

  void gunuBagla();
  void gunuGoster(const text::DateTime& day);
  void tarihBitti();
  void gunlukListele();
  void gunlukBaslik();
  [[nodiscard]] bool gizliHasta(const std::string& name);
  void gunuTazele();

  // The register of stations: held from before the stores open until the window is gone.
  [[nodiscard]] bool netAc();
  void netacilis();
  void netkapanis();
  void yalnizAcildi(bool alone);
  void netYenidenDene();
  // Stores that were locked when this station started.
  void depolariYenidenDene();
  void yerAl(std::chrono::milliseconds patience = files::lockPatience);
  bool netSay(int stations);
  void netDurumu();
  // Looks Station::SeciliHasta up and takes the patient for this station.
  [[nodiscard]] Taken hastayiTut();
  [[nodiscard]] std::optional<Taken> hemenTut();
  dao::Status kartiBul();
  // Shows the card that was looked up.
  void hastayiYukle();
  [[nodiscard]] dao::Status tutarakYaz();
  // The fault of a name that became another patient's while it was typed.
  [[nodiscard]] dao::Status isimAlinmis(const std::string& name) const;

  [[nodiscard]] dao::Status kartiYenile(const std::string& name);
  [[nodiscard]] bool dogumSaklanir();

  [[nodiscard]] dao::Status kartiYaz();
  [[nodiscard]] dao::Status satiriYaz(const std::string& key);
  void keepStoredMark();
  [[nodiscard]] dao::Status hastayiSil(const std::string& name);
  void listelereEkle();

  void yasGoster();
  void dogumBitti();
  void writeBirthOut();
  void yasBitti();
  void yasSor();
  void cinsiyetYazildi();
  void Cinsiyetrengi();
  void sekmeSecildi();
  void fotoSec();

  void klasorleriAc();
  void depolariAc();
  void yonleriAc();
  void ayarlarioku();
  void ayarlariyaz();
  void basliklariYenile() override;
  void hakkindaYaz();
  void durumYaz(std::string text) override { sbDurum.setPanel(3, std::move(text)); }

  // A hidden patient's card that was loaded while names are locked shows no name; nothing is stored
  // from it under another one.
  bool gizliYuklu_ = false;
  bool ayarlarOkunuyor_ = true;
  bool acildi_ = false;
  bool hataliCikis_ = false;    // the last run ended without netkapanis
  bool sayildi_ = false;        // this run stands in the setting NS
  bool netDenendi_ = false;     // the start is over: what failed in it may be tried again
  platform::Status yalnizlik_;  // why this station has no slot
  NameSearch isimler_;
  NamesakeNotes adasNotlari_;
  // Tasks that were put off look whether the card is still there.
  std::shared_ptr<bool> yasiyor_ = std::make_shared<bool>(true);
  bool listeBekliyor_ = false;
  int aramaSirasi_ = 0;
  std::string aranan_;               // the text that the list stands for
  std::vector<std::string> gunluk_;  // the full names behind the rows of the day's list
  text::DateTime gun_;               // the day that it shows
  text::DateTime bugun_;             // today, when it was last looked at
  unsigned vurus_ = 0;               // ticks since the program came up
  Extent panofoto_;
  long bekleyenMesaj_ = 0;
  long baskaIstasyon_ = 0;       // that has the patient who was asked for last; 0 for none
  int cinsiyet_ = 2;             // the row of the sex that was chosen last
  bool birthUnchecked_ = false;  // while the program leaves the birth field
};

}  // namespace registry

// The Options screen: letterhead, lookup lists and settings.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/forms/button.h"
#include "platform/forms/label.h"
#include "platform/forms/menu.h"
#include "platform/forms/rich_text_box.h"
#include "platform/forms/text_control.h"
#include "shell/station.h"

namespace shell {

class FrmOption : public forms::Form {
 public:
  explicit FrmOption(Station& istasyon);

  forms::TabStrip TabStrip1{*this, "TabStrip1", {"TSAyarlar", "TSListeler", "TSBaşlık"}};

  forms::Panel PAyarlar{*this, "PAyarlar"};
  forms::Label LblDil{*this, "LblDil"};  // the language that is chosen on the screen
  forms::Panel languageBox{*this, "languageBox"};
  forms::OptionButton OptTR{*this, "OptTR", "dil"};
  forms::OptionButton OptGB{*this, "OptGB", "dil"};
  forms::Panel birthdayBox{*this, "birthdayBox"};
  forms::CheckBox dghatirlat{*this, "dghatirlat"};
  forms::ComboBox Comgönce{*this, "Comgönce", forms::ComboStyle::ListOnly};
  forms::Panel appointmentBox{*this, "appointmentBox"};
  forms::TextBox txtbtime{*this, "txtbtime"};
  forms::TextBox txtintapp{*this, "txtintapp"};
  forms::CheckBox chkrandevuaçılış{*this, "chkrandevuaçılış"};
  forms::CheckBox chkrandevukapanış{*this, "chkrandevukapanış"};
  forms::Panel passwordBox{*this, "passwordBox"};
  forms::CheckBox acilistasifresor{*this, "acilistasifresor"};
  forms::OptionButton optaçma{*this, "optaçma", "acilis"};
  forms::OptionButton optkısıtlıaç{*this, "optkısıtlıaç", "acilis"};
  forms::CheckBox hesaplardasifre{*this, "hesaplardasifre"};
  forms::Panel otherBox{*this, "otherBox"};
  forms::CheckBox chkçıkyedek{*this, "chkçıkyedek"};
  forms::CheckBox chsigarabrakma{*this, "chsigarabrakma"};

  forms::Panel PListeler{*this, "PListeler"};
  forms::ComboBox comdogumyeri{*this, "comdogumyeri", forms::ComboStyle::ListOnly};
  forms::ComboBox ComMeslek{*this, "ComMeslek", forms::ComboStyle::ListOnly};
  forms::ComboBox ComHitap{*this, "ComHitap", forms::ComboStyle::ListOnly};
  forms::ComboBox ComKurum{*this, "ComKurum", forms::ComboStyle::ListOnly};
  forms::ComboBox comgorev{*this, "comgorev", forms::ComboStyle::ListOnly};
  forms::ComboBox comyakinlik{*this, "comyakinlik", forms::ComboStyle::ListOnly};
  forms::ComboBox ComRefere{*this, "ComRefere", forms::ComboStyle::ListOnly};
  forms::CommandButton mnuekle{*this, "mnuekle"};
  forms::CommandButton mnudüzen{*this, "mnudüzen"};
  forms::CommandButton mnusil{*this, "mnusil"};

  forms::Panel PBaşlık{*this, "PBaşlık"};
  forms::Toolbar tbToolBar{*this, "tbToolBar"};
  forms::ComboBox ComFontName{*this, "ComFontName", forms::ComboStyle::ListOnly};
  forms::ComboBox ComFontSize{*this, "ComFontSize", forms::ComboStyle::ListOnly};
  forms::RichTextBox rtfText{*this, "rtfText"};
  forms::Picture ImgBaşlık{*this, "ImgBaşlık"};  // Data/Baslik.bmp
  forms::CommandButton butresimseç{*this, "butresimseç"};
  forms::Picture Imgicon{*this, "Imgicon"};  // Data/Baslik.ico
  forms::CommandButton butikonseç{*this, "butikonseç"};

  forms::CommandButton buttamam{*this, "buttamam"};
  forms::CommandButton Butİptal{*this, "Butİptal"};

  void Load() override;
  // A changed letterhead is given up by the button alone; Esc and the cross ask.
  [[nodiscard]] bool mayEscape() override;
  [[nodiscard]] bool QueryUnload() override;

  void AyarKaydet();
  void ListeleriKaydet();
  void ListKaydet();
  void ListSeçKaldır();
  // The list that is added to, changed and deleted from.
  void listeSec(forms::ComboBox& combo);
  void BaşlıkKaydet();

  // Fonts that the window offers for the letterhead.
  void yaziTipleri(std::vector<std::string> names) { ComFontName.setItems(std::move(names)); }

 private:
  void sekmeSec();
  void ayarlariBagla();
  void listeleriBagla();
  void basligiBagla();
  void ayarlariOku();
  void dilDegistir();
  void sifreIle(forms::CheckBox& box, std::string_view key, bool& eaten);
  [[nodiscard]] bool yedekKlasoru();

  void listeyiDoldur(forms::ComboBox& combo);
  void degerEkle();
  void degerDegistir();
  void degerSil();
  // After a change of the chosen list: what went wrong, and the list anew with one value chosen.
  void degistir(const platform::Status& changed, std::string_view shown);
  [[nodiscard]] std::string_view secilenTablo() const;

  void basligiOku();
  void bicimle(std::string_view key);
  void bicimiGoster();
  void resimSec(std::string_view filter, forms::Picture& shown);
  void resmiSakla(forms::Picture& shown, std::string_view target);

  Station& istasyon;
  bool cancelled_ = false;
  forms::ComboBox* secilen_ = nullptr;
  bool baslikDegisti_ = false;
  bool baslikOkunamadi_ = false;  // what the file holds is not what the screen shows
};

}  // namespace shell

// The patient finder: any fields of the card as filters, and the list of the patients that fit.
#pragma once

#include <chrono>
#include <cstddef>
#include <functional>
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
#include "search/card_line.h"
#include "search/card_scan.h"
#include "search/find_filters.h"
#include "shell/font_record.h"
#include "shell/slices.h"
#include "shell/station.h"

namespace search {

class ResultPages;

// Opened from the card, it brings the chosen patient onto it. Opened by shell::adresSec, it
// collects the names of patients with an address.
class FrmFind : public forms::Form, public documents::PrintedPages {
  shell::Station& istasyon;  // in front of what prints with it

 public:
  explicit FrmFind(shell::Station& station);

  forms::MenuItem MnuDosya{*this, "MnuDosya"};
  forms::MenuItem mnuyeni{MnuDosya, "mnuyeni"};
  forms::MenuItem çizgi1{MnuDosya, "çizgi1", forms::MenuKind::Separator};
  forms::MenuItem mnuşablon{MnuDosya, "mnuşablon"};
  forms::MenuItem mnuonizleme{MnuDosya, "mnuonizleme"};
  forms::MenuItem mnuyazdır{MnuDosya, "mnuyazdır"};
  forms::MenuItem çizgi2{MnuDosya, "çizgi2", forms::MenuKind::Separator};
  forms::MenuItem mnucik{MnuDosya, "mnucik"};

  // --- The filters, by what they belong to
  forms::Panel PFiltre{*this, "PFiltre"};
  forms::Panel PKişisel{*this, "PKişisel"};
  forms::TextBox Txtİsim{*this, "Txtİsim"};
  forms::TextBox TxtSoyisim{*this, "TxtSoyisim"};
  forms::ComboBox ComCinsiyet{*this, "ComCinsiyet"};
  forms::ComboBox ComKanGrubu{*this, "ComKanGrubu"};
  forms::ComboBox comdogumyeri{*this, "comdogumyeri"};
  forms::ComboBox ComMeslek{*this, "ComMeslek"};
  forms::TextBox TxtAnneAdı{*this, "TxtAnneAdı"};
  forms::TextBox TxtBabaAdı{*this, "TxtBabaAdı"};
  forms::TextBox txtidno{*this, "txtidno"};
  forms::ComboBox ComRefere{*this, "ComRefere"};

  forms::Panel PDoğum{*this, "PDoğum"};
  forms::TextBox TxtGün{*this, "TxtGün"};
  forms::TextBox TxtAy{*this, "TxtAy"};
  forms::TextBox TxtYıl{*this, "TxtYıl"};

  forms::Panel PAdres{*this, "PAdres"};
  forms::ComboBox ComHitap{*this, "ComHitap"};
  forms::TextBox txtadres{*this, "txtadres"};
  forms::TextBox txttelefon{*this, "txttelefon"};
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
  forms::TextBox txtnot{*this, "txtnot"};

  // --- The result, over the filters
  forms::Panel Frame1{*this, "Frame1"};
  forms::ListView BulList{*this, "BulList"};
  forms::ListBox ListFiltre{*this, "ListFiltre"};  // names, never shown
  forms::Label Lbulunan{*this, "Lbulunan"};        // the word in front of the number
  forms::Label LSayı{*this, "LSayı"};
  forms::Label LDurum{*this, "LDurum"};
  forms::ProgressBar PBar{*this, "PBar"};
  forms::CommandButton ButDur{*this, "ButDur"};

  // --- Those of the filters, of the result, of both
  forms::CommandButton ButTemizle{*this, "ButTemizle"};
  forms::CommandButton ButTümListe{*this, "ButTümListe"};
  forms::CommandButton butbul{*this, "butbul"};
  forms::CommandButton ButFiltre{*this, "ButFiltre"};
  forms::CommandButton ButGit{*this, "ButGit"};
  forms::CommandButton buttamam{*this, "buttamam"};
  forms::CommandButton Butİptal{*this, "Butİptal"};

  // Template, font and signature, and the entries that print the result: on one page, which
  // frmprewive shows, or on as many as it needs, in frmpreview1.
  documents::PrintMenu baski{
      istasyon, {mnuşablon, mnuonizleme, mnuyazdır}, *this, shell::font_record::find};

  void Load() override;
  void Unload() override;

  // Lists the cards that fit all filled filters; the Turkish one folds as a Turkish reader expects.
  void BulListYaz();
  void BulListYazTUR();
  // Lists every card.
  void TümListe();
  // Lists the cards whose names stand in ListFiltre, as far as there are such cards.
  void SonuçlarıListele();

  // The result is of many patients.
  [[nodiscard]] std::string basilanIsim() const override { return {}; }
  [[nodiscard]] std::string basilanTarih() const override;
  [[nodiscard]] std::optional<page::Pages> sayfalar(shell::Station& istasyon,
                                                    documents::Report report) override;

  // The texts of all filters; empty when none is filled.
  [[nodiscard]] std::string FindAlanlar();
  void tuskontrol();
  void alanlaribosalt();
  // Fills the lists of the filters; what stands in them stays.
  void Listeleriyaz();
  // Day, month and year are a date, where what is missing is taken from 28 January 2000.
  // Otherwise it says so, and the focus goes back to the field.
  bool hatalitarih(forms::TextBox& field);

  // How long a slice of the work lasts, as far as single steps are shorter.
  std::chrono::milliseconds dilimSuresi{4};

 private:
  enum class Page { Filters, Result };
  using Found = std::function<void(dao::Recordset& card)>;

  void filtreleriBagla();
  void dugmeleriBagla();
  void cinsiyetYazildi();
  void filtreDegisti();
  [[nodiscard]] bool tarihGecerli() const;

  void bul();
  void git();
  void tamam();
  void sayfaSec(Page page);

  enum class Filters { Applied, Ignored };
  [[nodiscard]] CardScan tarama(Filters filters, dao::Fold fold,
                                std::span<const std::string_view> wanted, Found found);
  void listele(Filters filters, dao::Fold fold);
  void listeyiAc();
  // Starts sliced work; `step` does one small step of it. A step that fails ends the work, and the
  // reason is told; `end` comes only behind the last step.
  void dilimle(std::function<dao::Result<bool>()> step, std::function<void()> sliceEnd,
               std::function<void()> end);
  void durdur();
  void hepsiniDiz(ResultPages& pages);
  void dilimDilimDiz(ResultPages& pages);
  forms::ListView::Row& yeniSatir();
  void satirlariEkle();
  void ilerle(std::size_t done, std::size_t total);
  void sayiyiYaz();
  void bitti();
  void soyle(const std::string& why);
  // Whether there is such a card; kartlar_ stands on it then.
  [[nodiscard]] dao::Result<bool> kartiBul(std::string_view name);
  [[nodiscard]] bool adresiVar();

  std::vector<std::string>* adresler_;  // the list of the caller that picks addresses
  dao::Recordset kartlar_;
  shell::Slices is_;
  // The rows of a slice; the memory of those before is used again.
  std::vector<forms::ListView::Row> satirlar_;
  std::size_t yeni_ = 0;
  std::size_t toplam_ = 0;  // cards of the table when the window was opened
  int dilim_ = 0;
  bool denetliyor_ = false;  // the check of the date moves the focus itself
};

}  // namespace search

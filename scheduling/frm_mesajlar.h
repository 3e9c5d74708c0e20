// The messages for the user of this desk. The screen looks for new ones while it is open.
#pragma once

#include <array>
#include <vector>

#include "platform/forms/button.h"
#include "platform/forms/form.h"
#include "platform/forms/grid.h"
#include "platform/forms/label.h"
#include "platform/forms/menu.h"
#include "platform/forms/text_control.h"
#include "scheduling/message_board.h"
#include "shell/station.h"

namespace scheduling {

class FrmMesajlar : public forms::Form {
 public:
  explicit FrmMesajlar(shell::Station& istasyon);

  forms::MenuItem MnuDosya{*this, "MnuDosya"};
  forms::MenuItem mnumesajyaz{MnuDosya, "mnumesajyaz"};
  forms::MenuItem mnuyanıtla{MnuDosya, "mnuyanıtla"};
  forms::MenuItem mnumesajal{MnuDosya, "mnumesajal"};
  forms::MenuItem mnusil{MnuDosya, "mnusil"};
  forms::MenuItem mnutümmesajlarısil{MnuDosya, "mnutümmesajlarısil"};
  forms::MenuItem çizgi1{MnuDosya, "çizgi1", forms::MenuKind::Separator};
  forms::MenuItem mnuadres{MnuDosya, "mnuadres"};
  forms::MenuItem mnuayar{MnuDosya, "mnuayar"};
  forms::MenuItem mnucik{MnuDosya, "mnucik"};
  forms::Toolbar tbToolBar{*this, "tbToolBar"};

  forms::Label Lmsgadres{*this, "Lmsgadres"};  // the user's own name
  forms::OptionButton opttümü{*this, "opttümü", "gorunum"};
  forms::OptionButton optgünlük{*this, "optgünlük", "gorunum"};
  forms::OptionButton optokunmamış{*this, "optokunmamış", "gorunum"};
  forms::OptionButton optyeni{*this, "optyeni", "gorunum"};
  forms::Grid msgrid1{*this, "msgrid1", {.rows = 1, .cols = 4}, forms::GridChoice::Rows};
  forms::TextBox txtmesaj{*this, "txtmesaj", forms::TextLines::Multiple};
  forms::StatusBar sbDurum{*this, "sbDurum", 2};

  forms::Label lblsırano{*this, "lblsırano"};    // the record of the chosen row; empty without one
  forms::Label süre{*this, "süre"};              // seconds since the file was looked at
  forms::Label süreyenile{*this, "süreyenile"};  // after how many it is looked at again
  forms::Label saat{*this, "saat"};
  forms::Timer Timer1{*this, "Timer1"};

  void Load() override;
  // What was shown is new no more.
  void Unload() override;

  // Fills the grid from the chosen view.
  void Gridyaz();
  // Appends what has come since; the last one is chosen then.
  void Mesajyenile();

 private:
  void menuleriBagla();
  void gorunumSec(MessageView view);
  void satirEkle(const files::Message& message);
  void yeniEkle(int row, const files::Message& message);
  void vurgula(int row, forms::Emphasis emphasis);
  void satirSecildi();
  void Sonsırayıseç();
  void secimYok();
  [[nodiscard]] files::Message* secilen();
  void okundu(files::Message& message);
  void tik();
  void yaz(const std::string& kime, const std::string& konu);
  void yanitla();
  void sil();
  void tumunuSil();
  void ayarla();
  void adresDegistir();
  void adresDegisti();
  void adresGoster();
  void sayiGoster();
  void hataYaz(const platform::Status& fault);

  const std::array<forms::OptionButton*, messageViews.size()> secenekler_{&opttümü, &optgünlük,
                                                                          &optokunmamış, &optyeni};
  MessageView gorunum_ = MessageView::All;
  std::vector<files::Message> listelenen_;      // in the order of the grid
  std::vector<files::Message> yeniGosterilen_;  // new ones that any view has shown
  bool kendiliginden_ = false;                  // the row is chosen by the screen, not by its user
  MessageStamp bakilan_;                        // the file when it was last read
  shell::Station& istasyon_;
};

}  // namespace scheduling

// Writing a message to somebody at another station.
#pragma once

#include "platform/forms/button.h"
#include "platform/forms/form.h"
#include "platform/forms/label.h"
#include "platform/forms/text_control.h"
#include "shell/station.h"

namespace scheduling {

class FrmMsgGon : public forms::Form {
 public:
  explicit FrmMsgGon(shell::Station& istasyon);

  forms::ComboBox ComKimden{*this, "ComKimden"};
  forms::CommandButton ButLKimden{*this, "ButLKimden"};
  forms::ComboBox ComKime{*this, "ComKime"};
  forms::TextBox txtkonu{*this, "txtkonu"};
  forms::TextBox txtmesaj{*this, "txtmesaj", forms::TextLines::Multiple};
  forms::Label Lkalan{*this, "Lkalan"};  // the characters that the text has room for
  forms::CommandButton Butgönder{*this, "Butgönder"};
  forms::CommandButton Butİptal{*this, "Butİptal"};

  void Load() override;
  // Asks before a text that was typed would be lost.
  [[nodiscard]] bool QueryUnload() override;

 private:
  void isimleriListele();
  void gonderenYaz();
  void kalanYaz();
  void tuskontrol();
  void gonder();
  // Sender and addressee join the names that are offered.
  platform::Status ListeleriKimden();
  platform::Status ListeleriKime();

  bool gonderildi_ = false;
  shell::Station& istasyon_;
};

}  // namespace scheduling

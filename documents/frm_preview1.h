// The preview of many pages.
#pragma once

#include "documents/page_view.h"
#include "platform/forms/menu.h"
#include "platform/forms/text_control.h"
#include "shell/station.h"

namespace documents {

class FrmPreview1 : public forms::Form {
 public:
  explicit FrmPreview1(shell::Station& istasyon);

  // exitt, print, pre, post, small, big.
  forms::Toolbar tbToolBar{*this, "tbToolBar"};
  forms::TextBox pageno{*this, "pageno"};
  forms::Label lblsayfa{*this, "lblsayfa"};  // of how many pages
  forms::TextBox txtsize{*this, "txtsize"};  // a percentage, with its sign
  PageView Picture1{*this, "Picture1"};
  forms::ScrollBar SV1{*this, "SV1"};
  forms::ScrollBar SH1{*this, "SH1"};

  void sayfalariAl(page::Pages pages);
  // Restores the window of last time.
  void Load() override;
  // Keeps the window, and the paper that was shown.
  void Unload() override;

 private:
  void tusBas(std::string_view key);
  void sayfaCiz();
  void boyutla(Point point);
  void adim(int percent, Point point);
  [[nodiscard]] int sayfa() const;
  [[nodiscard]] int yuzde() const;
  [[nodiscard]] int sayfaSayisi() const { return static_cast<int>(pages_.pages.size()); }
  void ayarYaz(std::string_view key, const std::string& value);

  shell::Station& istasyon;
  page::Pages pages_;
  PageScroll ortala_{Picture1, SH1, SV1};
  Point nokta_;
};

}  // namespace documents

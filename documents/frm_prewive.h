// The preview of one page.
#pragma once

#include <string_view>

#include "documents/page_view.h"
#include "platform/forms/menu.h"
#include "shell/station.h"

namespace documents {

// The preview result by which a preview asks its caller to print.
inline constexpr std::string_view printAsked = "1";

class FrmPrewive : public forms::Form {
 public:
  explicit FrmPrewive(shell::Station& istasyon);

  forms::MenuItem MnuDosya{*this, "MnuDosya"};
  forms::MenuItem mnuyazdır{MnuDosya, "mnuyazdır"};
  forms::MenuItem mnucik{MnuDosya, "mnucik"};
  forms::MenuItem mnugörünüm{*this, "mnugörünüm"};
  forms::MenuItem mnubüyüt{mnugörünüm, "mnubüyüt"};
  forms::MenuItem mnuküçült{mnugörünüm, "mnuküçült"};
  forms::MenuItem mnusayfaeni{mnugörünüm, "mnusayfaeni"};
  PageView picgor{*this, "picgor"};
  forms::ScrollBar SclDüşey{*this, "SclDüşey"};
  forms::ScrollBar Sclyatay{*this, "Sclyatay"};
  // What is left between the two bars.
  forms::Panel Picköşe{*this, "Picköşe"};
  // The divisor of the page's size: 4 shows it whole.
  forms::Label KS{*this, "KS"};

  // The canvas that the page stands on, in twips.
  static constexpr page::Size piconiz{12000, 17000};

  // One page; more are not shown.
  void sayfalariAl(page::Pages pages);
  void Load() override;

 private:
  // A click on the page takes 4 to 2, 2 to 1 and 1 back to 4; the point stays where it is.
  void tiklandi(Point point);
  void yaklas();
  void uzaklas();
  void sayfaEni();
  // KS has changed: the copy gets its size, the last point stays in view.
  void BoyutDeğişti();
  void Boyutlandır(Point point);
  // Pixels per twip: the first size shows the whole page, however large the window is.
  [[nodiscard]] double olcek() const;

  shell::Station& istasyon;
  page::Pages pages_;
  PageScroll scroll_{picgor, Sclyatay, SclDüşey};
  Point nokta_;  // YatayX and DüşeyY of the last click
};

}  // namespace documents

// The backup screen: a folder is chosen, the stores are copied into it.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

#include "platform/forms/button.h"
#include "platform/forms/label.h"
#include "platform/forms/list_control.h"
#include "platform/forms/menu.h"
#include "platform/forms/text_control.h"
#include "shell/station.h"

namespace shell {

class FrmSave : public forms::Form {
 public:
  explicit FrmSave(Station& istasyon);

  forms::Label Lbilgi{*this, "Lbilgi"};  // what to do, or why it cannot be done here
  forms::Toolbar tbToolBar{*this, "tbToolBar"};
  forms::ComboBox Drive1{*this, "Drive1", forms::ComboStyle::ListOnly};
  forms::Label Ldizinbaslik{*this, "Ldizinbaslik"};
  forms::Label LDizin{*this, "LDizin"};  // the folder that is open
  forms::ListBox Dir1{*this, "Dir1"};    // the folders in it
  forms::Label Ldosyabaslik{*this, "Ldosyabaslik"};
  forms::Label LDosyalar{*this, "LDosyalar"};
  forms::Label Lsonbaslik{*this, "Lsonbaslik"};
  forms::Label Lsonyedek{*this, "Lsonyedek"};  // date and size of each store's copy in the folder
  forms::CommandButton ButYedekle{*this, "ButYedekle"};
  forms::CommandButton buttamam{*this, "buttamam"};

  void Load() override;

  void Drive1_Change();
  void ButYedekle_Click();
  void buttamam_Click();

  [[nodiscard]] const std::filesystem::path& klasor() const { return klasor_; }
  // Opens a folder; one that cannot be read is refused.
  bool klasoreGec(const std::filesystem::path& folder);

 private:
  void Dir1_Change();
  void yeriGoster();
  void sonYedegiYaz();
  void klasorYarat();
  void klasorSil();
  [[nodiscard]] std::filesystem::path secilen() const;

  Station& istasyon;
  std::filesystem::path klasor_;
};

}  // namespace shell

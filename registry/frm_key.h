// Who is hidden while the names are locked.
#pragma once

#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "platform/dao/prefix_search.h"
#include "platform/forms/button.h"
#include "platform/forms/label.h"
#include "platform/forms/list_control.h"
#include "platform/forms/text_control.h"
#include "shell/station.h"

namespace registry {

class FrmKey : public forms::Form {
 public:
  explicit FrmKey(shell::Station& istasyon);
  ~FrmKey() override { *yasiyor_ = false; }

  forms::TextBox txtara{*this, "txtara"};  // narrows the list to the names that begin with it
  // A selected name is to be hidden; the data of a row is what the store says of it.
  forms::ListBox Lstkey{*this, "Lstkey", forms::ListOrder::AsAdded, forms::ListChoice::Several};
  forms::Label Lsayi{*this, "Lsayi"};
  forms::CommandButton buttamam{*this, "buttamam"};
  forms::CommandButton Butİptal{*this, "Butİptal"};

  void Load() override;
  void Unload() override { okuyan_.reset(); }

  // Fills the list in slices, in the order of the table. What was chosen before stays chosen.
  void Listele();

 private:
  void surdur();
  void siradaki();
  [[nodiscard]] std::vector<forms::ListItem> yeniSatirlar();
  void secimiTopla();
  void say();
  void tamam();
  [[nodiscard]] dao::Status yaz();
  [[nodiscard]] dao::Status isaretle(const std::string& name, bool hide);

  shell::Station& istasyon;
  std::shared_ptr<bool> yasiyor_ = std::make_shared<bool>(true);
  std::optional<dao::PrefixReader> okuyan_;
  bool bekliyor_ = false;
  std::size_t alinan_ = 0;  // rows of the reader that are in the list
  // What differs from the store, by name: the list shows only a part while it is narrowed.
  std::map<std::string, bool, std::less<>> degisen_;
};

}  // namespace registry

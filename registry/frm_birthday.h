// The birthday reminder at opening.
#pragma once

#include "platform/forms/button.h"
#include "platform/forms/list_control.h"
#include "shell/station.h"

namespace registry {

class FrmBirthday : public forms::Form {
 public:
  explicit FrmBirthday(shell::Station& istasyon);

  forms::ListView Lvisim{*this, "Lvisim"};
  forms::CommandButton butkapat{*this, "butkapat"};

  // Fills the list with everybody whose birthday is `remday` days ahead; hidden patients are left
  // out.
  void Load() override;

 private:
  void listele(const text::DateTime& day);

  shell::Station& istasyon;
};

// Shows the list when the setting `BDrem` asks for it and somebody has a birthday.
void dogumGunuHatirlat(shell::Station& istasyon);

}  // namespace registry

// What the program is and where it works.
#pragma once

#include "platform/forms/button.h"
#include "platform/forms/label.h"
#include "shell/station.h"

namespace shell {

class FrmAbout : public forms::Form {
 public:
  explicit FrmAbout(Station& istasyon);

  forms::Label Lprogram{*this, "Lprogram"};
  forms::Label Lversion{*this, "Lversion"};
  forms::Label Lklasor{*this, "Lklasor"};
  forms::CommandButton butkapat{*this, "butkapat"};

  void Load() override;

 private:
  Station& istasyon;
};

}  // namespace shell

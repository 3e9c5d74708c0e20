// Which of the user's messages the message screen shows when it opens.
#pragma once

#include <array>

#include "platform/forms/button.h"
#include "platform/forms/form.h"
#include "platform/forms/label.h"
#include "shell/station.h"

namespace scheduling {

class FrmAyar : public forms::Form {
 public:
  explicit FrmAyar(shell::Station& istasyon);

  forms::OptionButton opttumu{*this, "opttumu", "gorunum"};
  forms::OptionButton optgunluk{*this, "optgunluk", "gorunum"};
  forms::OptionButton optokunmamis{*this, "optokunmamis", "gorunum"};
  forms::OptionButton optyeni{*this, "optyeni", "gorunum"};
  forms::CommandButton buttamam{*this, "buttamam"};
  forms::CommandButton Butİptal{*this, "Butİptal"};

  void Load() override;

 private:
  void tamam();

  // In the order of the views.
  const std::array<forms::OptionButton*, 4> secenekler_{&opttumu, &optgunluk, &optokunmamis,
                                                        &optyeni};
  shell::Station& istasyon_;
};

}  // namespace scheduling

// The photograph at its full size, to be panned where it is larger than the window.
#pragma once

#include "platform/forms/label.h"
#include "registry/photo_fit.h"
#include "shell/station.h"

namespace registry {

class FrmMax : public forms::Form {
 public:
  // Shows the photograph on the card.
  explicit FrmMax(shell::Station& istasyon);

  forms::Picture ImgFoto{*this, "ImgFoto"};
  forms::ScrollBar SclYatay{*this, "SclYatay"};
  forms::ScrollBar SclDüşey{*this, "SclDüşey"};

  void Load() override;
  // Sets the bars to what the picture is larger than its panel, and the picture to where the bars
  // stand.
  void FotoOrtala();

 private:
  void kaydir();

  shell::Station& istasyon;
  Extent picture_;
  Extent panel_;
};

}  // namespace registry

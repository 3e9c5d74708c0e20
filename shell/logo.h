// The splash screen.
#pragma once

#include "platform/forms/label.h"
#include "shell/station.h"

namespace shell {

class Logo : public forms::Form {
 public:
  explicit Logo(Station& station) : Form("Logo"), istasyon(station) {}

  forms::Label Lblbrans{*this, "Lblbrans"};
  forms::Label Lversion{*this, "Lversion"};

  // Takes the caption of the main window, whose workspace is set up before this.
  void Load() override {
    Lblbrans.setCaption(istasyon.kart == nullptr ? std::string() : istasyon.kart->baslik());
    Lversion.setCaption(istasyon.Surum);
  }

 private:
  Station& istasyon;
};

}  // namespace shell

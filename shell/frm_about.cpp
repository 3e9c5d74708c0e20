#include "shell/frm_about.h"

#include "shell/captions.h"
#include "shell/phrases.h"

namespace shell {

FrmAbout::FrmAbout(Station& station) : Form("frmabout"), istasyon(station) {
  butkapat.Click.connect([this] { istasyon.host.close(*this); });
}

void FrmAbout::Load() {
  basliklariyaz(istasyon, *this);
  Lprogram.setCaption(phrase(istasyon, Phrase::AboutText));
  Lversion.setCaption(istasyon.Surum);
  Lklasor.setCaption(istasyon.UygYolu);
}

}  // namespace shell

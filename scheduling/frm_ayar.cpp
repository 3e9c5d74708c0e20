#include "scheduling/frm_ayar.h"

#include "scheduling/message_board.h"
#include "shell/captions.h"

namespace scheduling {

FrmAyar::FrmAyar(shell::Station& station) : Form("frmayar"), istasyon_(station) {
  buttamam.Click.connect([this] { tamam(); });
  Butİptal.Click.connect([this] { istasyon_.host.close(*this); });
}

void FrmAyar::Load() {
  shell::basliklariyaz(istasyon_, *this);
  const MessageView chosen = secilenGorunum(istasyon_).view;
  for (std::size_t row = 0; row < messageViews.size(); ++row)
    secenekler_[row]->setValue(messageViews[row].view == chosen);
}

void FrmAyar::tamam() {
  for (std::size_t row = 0; row < messageViews.size(); ++row) {
    if (secenekler_[row]->value()) gorunumSakla(istasyon_, messageViews[row].view);
  }
  istasyon_.host.close(*this);
}

}  // namespace scheduling

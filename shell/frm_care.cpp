#include "shell/frm_care.h"

#include <utility>

#include "shell/captions.h"
#include "shell/text_lookup.h"

namespace shell {

namespace {

constexpr long fullBar = 1000;
// Often enough to seem alive.
constexpr std::chrono::milliseconds betweenPictures{40};
// Enough for what is drawn and pressed; none at all would leave presses waiting.
constexpr int answeringMilliseconds = 1;

}  // namespace

FrmCare::FrmCare(Station& station, Work work)
    : Form("frmbakim"), istasyon(station), is_(std::move(work)) {
  butdurdur.Click.connect([this] { durduruldu_ = true; });
}

void FrmCare::Load() {
  basliklariyaz(istasyon, *this);
  setCaption(metinbul(istasyon, "dosyabakimi"));
  Lmetin.setCaption(metinbul(istasyon, "dosyabakimiyapiliyor"));
  PBdurum.setRange(fullBar);
  istasyon.host.later([this, alive = yasiyor_] {
    if (*alive) calis();
  });
}

bool FrmCare::QueryUnload() {
  durduruldu_ = true;
  return bitti_;
}

void FrmCare::calis() {
  if (!durduruldu_) is_(*this);
  bitti_ = true;
  PBdurum.setValue(fullBar);
  istasyon.host.close(*this);
}

void FrmCare::tell(std::string state) {
  sbDurum.setPanel(1, std::move(state));
  istasyon.host.pause(answeringMilliseconds);
}

bool FrmCare::advance(std::int64_t thousandths) {
  PBdurum.setValue(static_cast<long>(thousandths));
  const auto now = std::chrono::steady_clock::now();
  if (now - cizildi_ >= betweenPictures) {
    cizildi_ = now;
    istasyon.host.pause(answeringMilliseconds);
  }
  return !durduruldu_;
}

}  // namespace shell

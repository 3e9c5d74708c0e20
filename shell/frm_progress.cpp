#include "shell/frm_progress.h"

#include <utility>

#include "shell/captions.h"

namespace shell {

FrmProgress::FrmProgress(Station& station, SlicedWork work)
    : Form("frmprogress"), istasyon(station), is_(std::move(work)) {
  butdurdur.Click.connect([this] { istasyon.host.close(*this); });
}

void FrmProgress::Load() {
  basliklariyaz(istasyon, *this);
  setCaption(is_.title);
  PBdurum.setRange(static_cast<long>(is_.total));
  goster(0);
  siradaki();
}

void FrmProgress::goster(std::int64_t done) {
  PBdurum.setValue(static_cast<long>(done));
  const bool rows = is_.unit == ProgressUnit::Rows;
  Lsayi.setCaption(std::to_string(done) + (rows ? " / " + std::to_string(is_.total) : " %"));
}

void FrmProgress::siradaki() {
  istasyon.host.later([this, alive = yasiyor_] {
    if (*alive) surdur();
  });
}

void FrmProgress::surdur() {
  const auto done = is_.slice();
  if (!done) return istasyon.host.close(*this);
  goster(*done);
  siradaki();
}

void surdurerekYap(Station& istasyon, SlicedWork work) {
  FrmProgress screen(istasyon, std::move(work));
  screen.Load();
  istasyon.host.showModal(screen);
}

}  // namespace shell

#include "registry/frm_max.h"

#include "shell/captions.h"

namespace registry {

namespace {

void setBar(forms::ScrollBar& bar, const Pan& range) {
  bar.setRange(range.maximum, range.smallChange, range.largeChange);
  bar.setVisible(range.maximum > 0);
}

}  // namespace

FrmMax::FrmMax(shell::Station& station) : Form("frmmax"), istasyon(station) {
  ImgFoto.Resize.connect([this](int panelWidth, int panelHeight) {
    panel_ = {panelWidth, panelHeight};
    FotoOrtala();
  });
  SclYatay.Change.connect([this] { kaydir(); });
  SclDüşey.Change.connect([this] { kaydir(); });
}

void FrmMax::Load() {
  shell::basliklariyaz(istasyon, *this);
  const std::string path = istasyon.kart == nullptr ? std::string() : istasyon.kart->fotograf();
  const auto size = path.empty() ? std::nullopt : istasyon.host.pictureSize(path);
  if (size) picture_ = {size->width, size->height};
  ImgFoto.setPath(size ? path : std::string());
  FotoOrtala();
}

void FrmMax::FotoOrtala() {
  setBar(SclYatay, pan(picture_.width, panel_.width));
  setBar(SclDüşey, pan(picture_.height, panel_.height));
  kaydir();
}

// In the middle where there is room, else as far to the left and up as the bars say.
void FrmMax::kaydir() {
  const auto start = [](int picture, int panel, const forms::ScrollBar& bar) {
    return picture > panel ? -bar.value() : (panel - picture) / 2;
  };
  if (panel_.width <= 0 || panel_.height <= 0) return;
  ImgFoto.setFrame({start(picture_.width, panel_.width, SclYatay),
                    start(picture_.height, panel_.height, SclDüşey), picture_.width,
                    picture_.height});
}

}  // namespace registry

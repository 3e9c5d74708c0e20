// The large picture: its size and the part of it that is seen.
#include <algorithm>

#include "images/frm_picture.h"

namespace images {

namespace {

constexpr int whole = 100;

// Where the bar stands so that what was in the middle of the frame stays there.
int keptMiddle(int before, int value, int after, int frame) {
  if (before <= frame) return (after - frame) / 2;
  const auto middle = static_cast<double>(value) + frame / 2.0;
  return static_cast<int>(middle * after / before - frame / 2.0);
}

int start(int picture, int frame, const forms::ScrollBar& bar) {
  return picture > frame ? -bar.value() : (frame - picture) / 2;
}

void setBar(forms::ScrollBar& bar, int picture, int frame, int value) {
  const Pan range = pan(picture, frame);
  bar.setRange(range.maximum, range.smallChange, range.largeChange);
  bar.setValue(value);
  bar.setVisible(range.maximum > 0);
}

}  // namespace

void FrmPicture::boyutlariBagla() {
  int digit = 0;
  for (const Zoom& zoom : boyutlar_) {
    zoom.entry->setShortcut("Ctrl+" + std::to_string(++digit));
    zoom.entry->Click.connect([this, percent = zoom.percent] { boyutla(percent); });
  }
  picfoto.Resize.connect([this](int frameWidth, int frameHeight) {
    cerceve_ = {frameWidth, frameHeight};
    FotoOrtala();
  });
  picfoto.Change.connect([this] {
    boyutlariAyarla();
    FotoOrtala();
    sozleriYaz();
  });
  HSlFoto.Change.connect([this] { kaydir(); });
  VSlfoto.Change.connect([this] { kaydir(); });
}

// Every picture begins at the size that fits.
void FrmPicture::Fotoyükle() {
  boyut_ = whole;
  gorunen_ = {};
  picfoto.setFrame({});
  picfoto.setVisible(!txtfoto.text().empty());
  picfoto.open(txtfoto.text());
}

void FrmPicture::boyutla(int percent) {
  boyut_ = percent;
  boyutlariAyarla();
  FotoOrtala();
}

void FrmPicture::boyutDegistir(Step step) {
  const auto* at = std::ranges::find(boyutlar_, boyut_, &Zoom::percent);
  if (step == Step::Larger && at + 1 != boyutlar_.end()) (at + 1)->entry->press();
  if (step == Step::Smaller && at != boyutlar_.begin()) (at - 1)->entry->press();
}

// The size in force cannot be chosen again; without a picture none can.
void FrmPicture::boyutlariAyarla() {
  for (const Zoom& zoom : boyutlar_) {
    zoom.entry->setChecked(picfoto.natural() && zoom.percent == boyut_);
    zoom.entry->setEnabled(picfoto.natural() && zoom.percent != boyut_);
  }
}

void FrmPicture::FotoOrtala() {
  const Extent natural = picfoto.natural().value_or(Extent());
  const Extent picture = zoomed(fitted(natural, cerceve_, Enlarging::Never), boyut_);
  barlariAyarla(picture);
  gorunen_ = picture;
  kaydir();
}

void FrmPicture::barlariAyarla(Extent picture) {
  const int x = keptMiddle(gorunen_.width, HSlFoto.value(), picture.width, cerceve_.width);
  const int y = keptMiddle(gorunen_.height, VSlfoto.value(), picture.height, cerceve_.height);
  setBar(HSlFoto, picture.width, cerceve_.width, x);
  setBar(VSlfoto, picture.height, cerceve_.height, y);
}

void FrmPicture::kaydir() {
  if (gorunen_.empty()) return picfoto.setFrame({});
  picfoto.setFrame({start(gorunen_.width, cerceve_.width, HSlFoto),
                    start(gorunen_.height, cerceve_.height, VSlfoto), gorunen_.width,
                    gorunen_.height});
}

}  // namespace images

#include "documents/frm_preview1.h"

#include <algorithm>

#include "documents/frm_prewive.h"
#include "platform/text/number.h"
#include "shell/captions.h"
#include "shell/fault_words.h"
#include "shell/phrases.h"
#include "shell/text_lookup.h"

namespace documents {

namespace {

constexpr std::string_view application = "Sanavel4";
constexpr int step = 25;
constexpr int smallest = 25;
constexpr int largest = 200;
constexpr int natural = 100;

std::string percentText(int percent) {
  return std::to_string(percent).append("%");
}

}  // namespace

FrmPreview1::FrmPreview1(shell::Station& station) : Form("frmpreview1"), istasyon(station) {
  tbToolBar.addButton("exitt", "Exit");
  tbToolBar.addButton("print", "Print");
  tbToolBar.addSeparator();
  tbToolBar.addButton("pre", "Geri");
  tbToolBar.addButton("post", "ileri");
  tbToolBar.addSeparator();
  tbToolBar.addButton("small", "small");
  tbToolBar.addButton("big", "big");
  tbToolBar.ButtonClick.connect([this](std::string_view key) { tusBas(key); });
  pageno.Change.connect([this] { sayfaCiz(); });
  txtsize.Change.connect([this] { boyutla(nokta_); });
  Picture1.Click.connect([this](Point point) { adim(step, point); });
  Picture1.Resize.connect([this](int windowWidth, int windowHeight) {
    ortala_.setWindow(windowWidth, windowHeight);
    boyutla(ortala_.middle());
  });
}

void FrmPreview1::sayfalariAl(page::Pages pages) {
  pages_ = std::move(pages);
  sayfaCiz();
}

void FrmPreview1::Load() {
  shell::basliklariyaz(istasyon, *this);
  setCaption(shell::metinbul(istasyon, "onizleme"));
  tbToolBar.setButtonToolTip("small", phrase(istasyon, shell::Phrase::ZoomOut));
  tbToolBar.setButtonToolTip("big", phrase(istasyon, shell::Phrase::ZoomIn));
  const auto stored = [this](std::string_view key) {
    return static_cast<int>(
        text::Val(istasyon.settings.get(application, shell::mainSection, key, "0")));
  };
  width = std::max(0, stored("Width"));
  height = std::max(0, stored("Height"));
  if (stored("WindowState") == static_cast<int>(forms::WindowState::Maximised))
    windowState = forms::WindowState::Maximised;
  txtsize.setText(percentText(natural));
  pageno.setText("1");
}

void FrmPreview1::Unload() {
  ayarYaz("WindowState", std::to_string(static_cast<int>(windowState)));
  if (windowState == forms::WindowState::Normal) {
    ayarYaz("Width", std::to_string(width));
    ayarYaz("Height", std::to_string(height));
  }
  ayarYaz("paper size",
          std::to_string(pages_.size.width) + " x " + std::to_string(pages_.size.height));
}

void FrmPreview1::ayarYaz(std::string_view key, const std::string& value) {
  const platform::Status written =
      istasyon.settings.set(application, shell::mainSection, key, value);
  if (!written) shell::hataSoyle(istasyon, written);
}

void FrmPreview1::tusBas(std::string_view key) {
  if (key == "print") istasyon.OnizlemeSonucu = std::string(printAsked);
  if (key == "print" || key == "exitt") return istasyon.host.close(*this);
  if (key == "pre") pageno.setText(std::to_string(sayfa() - 1));
  if (key == "post") pageno.setText(std::to_string(sayfa() + 1));
  if (key == "small") adim(-step, ortala_.middle());
  if (key == "big") adim(step, ortala_.middle());
}

// What is typed may be no page: the nearest one is shown.
int FrmPreview1::sayfa() const {
  return static_cast<int>(std::clamp(text::Val(pageno.text()), 1.0, 1.0 * sayfaSayisi()));
}

int FrmPreview1::yuzde() const {
  return static_cast<int>(std::clamp(text::Val(txtsize.text()), 1.0 * smallest, 1.0 * largest));
}

void FrmPreview1::sayfaCiz() {
  Picture1.setPage(&pages_.pages[static_cast<std::size_t>(sayfa() - 1)], pages_.size);
  lblsayfa.setCaption(std::string("/ ").append(std::to_string(sayfaSayisi())));
  tbToolBar.setButtonEnabled("pre", sayfa() > 1);
  tbToolBar.setButtonEnabled("post", sayfa() < sayfaSayisi());
}

void FrmPreview1::boyutla(Point point) {
  const auto pixels = [this](int twips) { return twips * yuzde() / natural / page::twipsPerPixel; };
  ortala_.resize({pixels(pages_.size.width), pixels(pages_.size.height)}, point);
  tbToolBar.setButtonEnabled("small", yuzde() > smallest);
  tbToolBar.setButtonEnabled("big", yuzde() < largest);
}

void FrmPreview1::adim(int percent, Point point) {
  nokta_ = point;
  txtsize.setText(percentText(std::clamp(yuzde() + percent, smallest, largest)));
}

}  // namespace documents

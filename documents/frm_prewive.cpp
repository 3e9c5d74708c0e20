#include "documents/frm_prewive.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <optional>

#include "platform/text/number.h"
#include "shell/captions.h"
#include "shell/menu_icons.h"
#include "shell/text_lookup.h"

namespace documents {

namespace {

// From the whole page to the nearest look at it.
constexpr std::array<double, 3> steps{4, 2, 1};
constexpr double whole = steps.front();
// The whole page is a little larger than its divisor says.
constexpr double wholeGain = 1.22;

double shownTwips(int side, double divisor) {
  return side / (divisor >= whole ? whole / wholeGain : divisor);
}

// The next step towards the page; none at the nearest.
std::optional<double> nearer(double divisor) {
  const auto found = std::ranges::find_if(steps, [&](double step) { return step < divisor; });
  return found == steps.end() ? std::nullopt : std::optional(*found);
}

double farther(double divisor) {
  const auto found =
      std::find_if(steps.rbegin(), steps.rend(), [&](double step) { return step > divisor; });
  return found == steps.rend() ? whole : *found;
}

}  // namespace

FrmPrewive::FrmPrewive(shell::Station& station) : Form("frmprewive"), istasyon(station) {
  mnuyazdır.setShortcut("Ctrl+P");
  mnubüyüt.setShortcut("+");
  mnuküçült.setShortcut("-");
  mnusayfaeni.setShortcut("*");
  mnuyazdır.Click.connect([this] {
    istasyon.OnizlemeSonucu = std::string(printAsked);
    istasyon.host.close(*this);
  });
  mnucik.Click.connect([this] { istasyon.host.close(*this); });
  mnubüyüt.Click.connect([this] { yaklas(); });
  mnuküçült.Click.connect([this] { uzaklas(); });
  mnusayfaeni.Click.connect([this] { sayfaEni(); });
  picgor.Click.connect([this](Point point) { tiklandi(point); });
  picgor.Resize.connect([this](int windowWidth, int windowHeight) {
    scroll_.setWindow(windowWidth, windowHeight);
    Boyutlandır(scroll_.middle());
  });
  KS.Change.connect([this] { BoyutDeğişti(); });
  KS.setCaption(text::plainText(whole));
}

void FrmPrewive::sayfalariAl(page::Pages pages) {
  pages_ = std::move(pages);
  picgor.setPage(&pages_.pages.front(), piconiz);
}

void FrmPrewive::Load() {
  shell::basliklariyaz(istasyon, *this);
  shell::menuikon(*this);
  setCaption(shell::metinbul(istasyon, "onizleme"));
}

void FrmPrewive::tiklandi(Point point) {
  nokta_ = point;
  KS.setCaption(text::plainText(nearer(text::Val(KS.caption())).value_or(whole)));
}

void FrmPrewive::yaklas() {
  nokta_ = scroll_.middle();
  const auto step = nearer(text::Val(KS.caption()));
  if (step) KS.setCaption(text::plainText(*step));
}

void FrmPrewive::uzaklas() {
  nokta_ = scroll_.middle();
  KS.setCaption(text::plainText(farther(text::Val(KS.caption()))));
}

void FrmPrewive::sayfaEni() {
  nokta_ = scroll_.middle();
  if (scroll_.window().width <= 0) return;
  KS.setCaption(text::plainText(piconiz.width * olcek() / scroll_.window().width));
}

void FrmPrewive::BoyutDeğişti() {
  Boyutlandır(nokta_);
}

void FrmPrewive::Boyutlandır(Point point) {
  const double divisor = text::Val(KS.caption());
  const double pixels = olcek();
  const auto shown = [&](int side) {
    return static_cast<int>(std::lround(shownTwips(side, divisor) * pixels));
  };
  scroll_.resize({shown(piconiz.width), shown(piconiz.height)}, point);
  Picköşe.setVisible(Sclyatay.visible() && SclDüşey.visible());
}

double FrmPrewive::olcek() const {
  return std::min(scroll_.window().width / shownTwips(piconiz.width, whole),
                  scroll_.window().height / shownTwips(piconiz.height, whole));
}

}  // namespace documents

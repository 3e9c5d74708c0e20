// The Options screen's third tab: the letterhead.
#include <algorithm>
#include <array>

#include "platform/files/atomic_write.h"
#include "platform/files/read_file.h"
#include "platform/text/number.h"
#include "shell/fault_words.h"
#include "shell/frm_option.h"
#include "shell/letterhead.h"
#include "shell/phrases.h"

namespace shell {

namespace {

constexpr std::array fontSizes{"8",  "9",  "10", "11", "12", "14", "16",
                               "18", "20", "24", "28", "36", "48", "72"};
constexpr int halfPointsPerPoint = 2;

using richtext::Alignment;
using richtext::Editor;

// What each button does to the text, by its key.
struct FormatButton {
  std::string_view key;
  void (*apply)(Editor& editor);
};
constexpr std::array<FormatButton, 7> formatButtons{{
    {"Undo", [](Editor& e) { e.undo(); }},
    {"Bold", [](Editor& e) { e.setSelBold(!e.selBold().value_or(false)); }},
    {"Italic", [](Editor& e) { e.setSelItalic(!e.selItalic().value_or(false)); }},
    {"Underline", [](Editor& e) { e.setSelUnderline(!e.selUnderline().value_or(false)); }},
    {"Align Left", [](Editor& e) { e.setSelAlignment(Alignment::Left); }},
    {"Center", [](Editor& e) { e.setSelAlignment(Alignment::Centre); }},
    {"Align Right", [](Editor& e) { e.setSelAlignment(Alignment::Right); }},
}};

// As large as a sheet of paper in fine colours.
constexpr std::size_t largestPicture = 128 * files::megabyte;

platform::Status copyFile(const std::string& from, const std::string& to) {
  const auto bytes = files::readFile(from, largestPicture, files::Links::Followed);
  return bytes ? files::writeAtomically(to, *bytes) : bytes.error();
}

}  // namespace

void FrmOption::basligiBagla() {
  for (const char* key : {"Undo", "Cut", "Copy", "Paste"}) tbToolBar.addButton(key, key);
  tbToolBar.addSeparator();
  for (const char* key : {"Bold", "Italic", "Underline", "Color"}) tbToolBar.addButton(key, key);
  tbToolBar.addSeparator();
  for (const char* key : {"Align Left", "Center", "Align Right"}) tbToolBar.addButton(key, key);
  tbToolBar.ButtonClick.connect([this](std::string_view key) { bicimle(key); });
  ComFontSize.setItems({fontSizes.begin(), fontSizes.end()});
  ComFontName.Click.connect([this] {
    if (!ComFontName.text().empty())
      rtfText.edit([this](Editor& e) { e.setSelFontName(ComFontName.text()); });
  });
  ComFontSize.Click.connect([this] {
    const auto points = text::wholeNumber(ComFontSize.text());
    if (points)
      rtfText.edit(
          [&](Editor& e) { e.setSelHalfPoints(static_cast<int>(*points) * halfPointsPerPoint); });
  });
  rtfText.Change.connect([this] { baslikDegisti_ = true; });
  rtfText.SelChange.connect([this] { bicimiGoster(); });
  butresimseç.Click.connect([this] { resimSec("*.bmp", ImgBaşlık); });
  butikonseç.Click.connect([this] { resimSec("icon (*.ico)", Imgicon); });
}

void FrmOption::basligiOku() {
  auto baslik = shell::basligiOku(istasyon);
  baslikOkunamadi_ = !baslik;
  if (!baslik) hataSoyle(istasyon, Phrase::LetterheadNotRead, baslik.error());
  rtfText.edit([&](Editor& e) { e.load(baslik ? std::move(*baslik) : richtext::Document()); });
  baslikDegisti_ = false;
  ImgBaşlık.setPath(istasyon.dosya(letterhead::picture));
  Imgicon.setPath(istasyon.dosya(letterhead::icon));
  bicimiGoster();
}

// Copy, paste and colour go to the window: the clipboard and the colour dialog are the desk's.
void FrmOption::bicimle(std::string_view key) {
  if (key == "Copy") return istasyon.host.sendKeys("^{INSERT}");
  if (key == "Cut") return istasyon.host.sendKeys("+{DELETE}");
  if (key == "Paste") return istasyon.host.sendKeys("+{INSERT}");
  if (key == "Color") {
    const auto colour =
        istasyon.host.chooseColour(rtfText.editor().selColour().value_or(std::nullopt).value_or(0));
    if (colour) rtfText.edit([&](Editor& e) { e.setSelColour(*colour); });
    return;
  }
  const auto button = std::ranges::find(formatButtons, key, &FormatButton::key);
  if (button != formatButtons.end()) rtfText.edit(button->apply);
  bicimiGoster();
}

// The lists show the format of the selection, nothing where it is mixed.
void FrmOption::bicimiGoster() {
  ComFontName.showText(rtfText.editor().selFontName().value_or(""));
  const auto size = rtfText.editor().selHalfPoints();
  ComFontSize.showText(size ? std::to_string(*size / halfPointsPerPoint) : std::string());
}

void FrmOption::resimSec(std::string_view filter, forms::Picture& shown) {
  const auto chosen = istasyon.host.openFile(
      {.title = shown.caption(), .filters = {std::string(filter)}, .folder = {}});
  if (chosen) shown.setPath(*chosen);
}

void FrmOption::BaşlıkKaydet() {
  resmiSakla(ImgBaşlık, letterhead::picture);
  resmiSakla(Imgicon, letterhead::icon);
  if (!baslikDegisti_) return;
  if (baslikOkunamadi_ && !istasyon.confirmLoss(phrase(istasyon, Phrase::ReplaceLetterhead)))
    return;
  const platform::Status written = basligiYaz(istasyon, rtfText.editor().document());
  if (!written) return hataSoyle(istasyon, written);
  basligiOku();
}

// A picture chosen on the screen becomes the letterhead's own copy.
void FrmOption::resmiSakla(forms::Picture& shown, std::string_view target) {
  const std::string own = istasyon.dosya(target);
  if (shown.path() == own || shown.path().empty()) return;
  const platform::Status copied = copyFile(shown.path(), own);
  if (!copied) return hataSoyle(istasyon, copied);
  shown.setPath(own);
}

}  // namespace shell

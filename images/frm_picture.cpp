#include "images/frm_picture.h"

#include <algorithm>
#include <filesystem>

#include "images/picture_words.h"
#include "platform/text/number.h"
#include "platform/text/utf8.h"
#include "shell/captions.h"
#include "shell/menu_icons.h"
#include "shell/phrases.h"
#include "shell/text_lookup.h"

namespace images {

using shell::Phrase;

FrmPicture::FrmPicture(shell::Station& station) : Form("frmpicture"), istasyon(station) {
  resimleriBagla();
  menuleriBagla();
  boyutlariBagla();
  txtfoto.Change.connect([this] { Fotoyükle(); });
  lblImg.Change.connect([this] { sozleriYaz(); });
  buttamam.Click.connect([this] { tamam(); });
  Butİptal.Click.connect([this] { istasyon.host.close(*this); });
}

void FrmPicture::resimleriBagla() {
  for (std::size_t i = 0; i < resimler_.size(); ++i) {
    const std::size_t number = i + 1;
    resimler_[i]->Click.connect([this, number] { sec(number); });
    resimler_[i]->DblClick.connect([this, number] { ac(number); });
    resimler_[i]->RightClick.connect([this, number] { isaretle(number); });
    resimler_[i]->Change.connect([this] { sozleriYaz(); });
  }
}

void FrmPicture::menuleriBagla() {
  shell::menuikon(*this);
  mnuekle.setIcon("Add");
  mnuaç.setIcon("Open");
  mnuaç.setShortcut("Ctrl+O");
  mnuekle.setShortcut("Ins");
  mnusil.setShortcut("Del");
  mnugeri.setShortcut("PgUp");
  mnuileri.setShortcut("PgDown");
  mnuekle.Click.connect([this] { ac(bosYer()); });
  mnuaç.Click.connect([this] { ac(secilen()); });
  mnusil.Click.connect([this] { resmiSil(); });
  mnugeri.Click.connect([this] { yuruyus(-1); });
  mnuileri.Click.connect([this] { yuruyus(1); });
  mnuyazdır.setShortcut("Ctrl+P");
  mnuonizleme.Click.connect([this] { oniz(); });
  mnuyazdır.Click.connect([this] { Yazdır(); });
}

void FrmPicture::Load() {
  shell::basliklariyaz(istasyon, *this);
  if (!istasyon.Resimler.baslik.empty()) setCaption(istasyon.Resimler.baslik);
  for (const Zoom& zoom : boyutlar_) zoom.entry->setCaption(percentText(istasyon, zoom.percent));
  PicÇerçeve.setCaption(phrase(istasyon, Phrase::PictureHint));
  for (std::size_t i = 0; i < resimler_.size(); ++i)
    resimler_[i]->open(istasyon.Resimler.yollar[i]);
  Fotoyükle();
}

std::size_t FrmPicture::secilen() const {
  return static_cast<std::size_t>(text::wholeNumber(lblImg.caption()).value_or(0));
}

void FrmPicture::sec(std::size_t number) {
  if (!resimler_.at(number - 1)->path().empty()) isaretle(number);
}

// The number first: the words of the large picture tell it.
void FrmPicture::isaretle(std::size_t number) {
  lblImg.setCaption(std::to_string(number));
  txtfoto.setText(resimler_.at(number - 1)->path());
}

void FrmPicture::ac(std::size_t number) {
  if (number == 0) return;
  const auto chosen = istasyon.host.openFile(
      {.title = shell::metinbul(istasyon, "Resim") + " " + std::to_string(number),
       .filters = {shell::metinbul(istasyon, "Resim") + " (*.bmp *.jpg *.jpeg *.png *.gif *.ico)",
                   "*.bmp", "*.jpg", "*.png", "*.gif", "*.ico"},
       .folder = baslangicKlasoru(number)});
  if (!chosen) return;
  const std::size_t longest = istasyon.Resimler.enUzun;
  if (longest > 0 && text::length(*chosen) > longest)
    return istasyon.bilgi(phrase(istasyon, Phrase::PicturePathTooLong) + std::to_string(longest));
  resmiKoy(number, *chosen);
}

// Emptied first, so that a file that was changed since is read again.
void FrmPicture::resmiKoy(std::size_t number, const std::string& path) {
  txtfoto.setText("");
  resimler_.at(number - 1)->open(path);
  isaretle(number);
}

// The place stays chosen, and the file where it is.
void FrmPicture::resmiSil() {
  const std::size_t number = secilen();
  if (number == 0) return;
  resimler_.at(number - 1)->open({});
  txtfoto.setText("");
}

void FrmPicture::tamam() {
  for (std::size_t i = 0; i < resimler_.size(); ++i)
    istasyon.Resimler.yollar[i] = resimler_[i]->path();
  istasyon.host.close(*this);
}

void FrmPicture::yuruyus(int direction) {
  if (const std::size_t number = komsu(direction); number != 0) isaretle(number);
}

// The next place with a picture in that direction; 0 when there is none.
std::size_t FrmPicture::komsu(int direction) const {
  const auto count = static_cast<int>(resimler_.size());
  const auto from = static_cast<int>(secilen());
  for (int number = from + direction; number >= 1 && number <= count; number += direction) {
    const auto found = static_cast<std::size_t>(number);
    if (!resimler_.at(found - 1)->path().empty()) return found;
  }
  return 0;
}

std::size_t FrmPicture::bosYer() const {
  for (std::size_t i = 0; i < resimler_.size(); ++i) {
    if (resimler_[i]->path().empty()) return i + 1;
  }
  return 0;
}

// The file dialog starts at the picture of the place; for a free place, in the folder of another
// one.
std::string FrmPicture::baslangicKlasoru(std::size_t number) const {
  const std::string& own = resimler_.at(number - 1)->path();
  if (!own.empty()) return own;
  for (const ArchivePicture* other : resimler_) {
    if (!other->path().empty()) return std::filesystem::path(other->path()).parent_path().string();
  }
  return {};
}

void FrmPicture::sozleriYaz() {
  for (std::size_t i = 0; i < resimler_.size(); ++i)
    resimler_[i]->setCaption(wordsFor(istasyon, i + 1, *resimler_[i]));
  const std::size_t number = secilen();
  const std::string large = number == 0 ? std::string() : wordsFor(istasyon, number, picfoto);
  picfoto.setCaption(large.empty() ? shell::metinbul(istasyon, "Resim") : large);
  LResimno.setCaption(large.substr(0, large.find('\n')));
  girisleriAyarla();
}

void FrmPicture::girisleriAyarla() {
  mnuekle.setEnabled(bosYer() != 0);
  mnuaç.setEnabled(secilen() != 0);
  mnusil.setEnabled(!txtfoto.text().empty());
  mnugeri.setEnabled(komsu(-1) != 0);
  mnuileri.setEnabled(komsu(1) != 0);
  const bool any = std::ranges::any_of(
      resimler_, [](const ArchivePicture* picture) { return picture->natural().has_value(); });
  mnuonizleme.setEnabled(any);
  mnuyazdır.setEnabled(any);
}

}  // namespace images

#include "shell/vocabulary/row_makers.h"
#include "shell/vocabulary/topics.h"

namespace shell::topics {
namespace {

constexpr Row kRows[] = {
    both("gorme", "Vision", "Görme"),
    untranslated("tahsisligorme", "Tashihli Görme"),
    both("gozluk", "Glasses", "Gözlük"),
    untranslated("Keratometri", "Keratometri"),
    untranslated("Horizontal", "Horizontal"),
    untranslated("Vertikal", "Vertikal"),
    both("gozlukrecetesi", "Eye Glasses Prescription", "Gözlük Reçetesi"),
    untranslated("interpupilermesafe", "İnterpupiller Mesafe"),
    both("Daimi", "Permanent", "Daimi"),
    both("Uzak", "Far", "Uzak"),
    both("Yakın", "Near", "Yakın"),
    untranslated("renkcins", "Renk-Cins"),
    both("saggoz", "Right Eye", "Sağ Göz"),
    both("solgoz", "Left Eye", "Sol Göz"),
    both("yakingozluk", "Reading Glasses", "Yakın Gözlük"),
    both("Firma", "Firm", "Firma"),
    untranslated("Lens", "Lens"),
    untranslated("Dioptr", "Dioptri"),
    both("cap", "Diameter", "Çap"),
    both("Maliyet", "Cost Price", "Maliyet"),
    both("Fiyat", "Price", "Fiyat"),
    both("Stok", "Stock", "Stok"),
    both("lensstok", "Lens Stock", "Lens Stok"),
};

}  // namespace

Rows eye() {
  return kRows;
}

}  // namespace shell::topics

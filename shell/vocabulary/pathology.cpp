#include "shell/vocabulary/row_makers.h"
#include "shell/vocabulary/topics.h"

namespace shell::topics {
namespace {

constexpr Row kRows[] = {
    untranslated("Biyopsi", "Biyopsi"),
    untranslated("Rapor", "Rapor"),
    untranslated("Patoloji Raporu", "Patoloji Raporu"),
    untranslated("Biyopsi No", "Biyopsi No"),
    turkishOnly("biyopsino", "Biyopsi No"),
    untranslated("Geliş Tarihi", "Geliş Tarihi"),
    untranslated("Alınma Yeri", "Alınma Yeri"),
    untranslated("Alınma Şekli", "Alınma Şekli"),
    untranslated("Klinik Tanı", "Klinik Tanı"),
    untranslated("Klinik Bulgu", "Klinik Bulgu"),
    untranslated("Gönderen Doktor", "Gönderen Doktor"),
    untranslated("Gönderen Bölüm", "Gönderen Bölüm"),
    untranslated("Makroskopik Bulgu", "Makroskopik Bulgu"),
    untranslated("Mikroskopik Bulgu", "Mikroskopik Bulgu"),
    untranslated("Patolojik Tanı", "Patolojik Tanı"),
};

}  // namespace

Rows pathology() {
  return kRows;
}

}  // namespace shell::topics

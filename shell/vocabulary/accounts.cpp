#include "shell/vocabulary/row_makers.h"
#include "shell/vocabulary/topics.h"

namespace shell::topics {
namespace {

// The accounts were never translated: English users read the Turkish words.
constexpr Row kRows[] = {
    turkishOnly("hesap", "Hesap"),
    turkishOnly("hesaplar", "Hesaplar"),
    turkishOnly("odeme", "Ödeme"),
    turkishOnly("odendi", "Ödendi"),
    turkishOnly("odemeyiyapan", "Ödemeyi Yapan"),
    turkishOnly("odemeyiyapacak", "Ödemeyi Yapacak"),
    turkishOnly("odemeyialan", "Ödemeyi Alan"),
    turkishOnly("hizmetialan", "Hizmeti Alan"),
    turkishOnly("fatura", "Fatura"),
    turkishOnly("faturalar", "Faturalar"),
    turkishOnly("faturabilgisi", "Fatura Bilgisi"),
    turkishOnly("ekstre", "Ekstre"),
    turkishOnly("ilk", "İlk"),
    turkishOnly("son", "Son"),
    turkishOnly("borc", "Borç"),
    turkishOnly("alacak", "Alacak"),
    turkishOnly("bakiye", "Bakiye"),
    turkishOnly("belgenumarasi", "Belge Numarası"),
    turkishOnly("dokumtarihi", "Döküm Tarihi"),
    turkishOnly("kdv", "KDV"),
    turkishOnly("vergidairesi", "Vergi Dairesi"),
    turkishOnly("verginumarasi", "Vergi Numarası"),
    turkishOnly("sayfaduzeni", "Sayfa Düzeni"),
    turkishOnly("satiryuksekligi", "Satır Yüksekliği"),
};

}  // namespace

Rows accounts() {
  return kRows;
}

}  // namespace shell::topics

#include "shell/vocabulary/row_makers.h"
#include "shell/vocabulary/topics.h"

namespace shell::topics {
namespace {

// The smoking clinic was never translated: English users read the Turkish words.
constexpr Row kRows[] = {
    turkishOnly("sigara", "Sigara"),
    turkishOnly("sigarabrakma", "Sigara Brakma"),
    turkishOnly("sigarabrakmaprogramı", "Sigara Bırakma Programı"),
    turkishOnly("yanetki", "Yan Etki"),
    turkishOnly("normaldeger", "Normal Değer"),
    turkishOnly("kontroltakvimi", "Kontrol Takvimi"),
    turkishOnly("kontrollar", "Kontroller"),
    turkishOnly("kontrolsayısıdoldu", "Kontrol Sayısı Doldu"),
    turkishOnly("sonmuayene", "Son Muayene"),
    turkishOnly("deneme", "Deneme"),
    turkishOnly("takip", "Takip"),
    turkishOnly("eskitakipler", "Eski Takipler"),
    turkishOnly("kalicidegisiklik", "Değişiklikler kalıcı olsun mu?"),

    // Lists and statistics
    turkishOnly("istatistik", "İstatistik"),
    turkishOnly("tum", "Tüm"),
    turkishOnly("kisi", "Kişi"),
    turkishOnly("basarili", "Başarılı"),
    turkishOnly("basarisiz", "Başarısız"),
    turkishOnly("programakatilan", "Programa Katılan"),
    turkishOnly("takiptencikan", "Takipten Çıkan"),
    turkishOnly("takibidevameden", "Takibi Devam Eden"),
    turkishOnly("sonuclanan", "Sonuçlanan"),
    turkishOnly("belirtilmemis", "Belirtilmemiş"),
};

}  // namespace

Rows smoking() {
  return kRows;
}

}  // namespace shell::topics

#include "tools/word_lists.h"

#include <array>

namespace tools {

namespace {

constexpr auto bloodGroupRows = std::to_array<std::string_view>(
    {"0 Rh(+)", "0 Rh(-)", "A Rh(+)", "A Rh(-)", "B Rh(+)", "B Rh(-)", "AB Rh(+)", "AB Rh(-)"});
constexpr auto professionRows = std::to_array<std::string_view>(
    {"Ev hanımı",  "Emekli",        "Öğretmen",        "Memur",      "İşçi",
     "Esnaf",      "Çiftçi",        "Şoför",           "Hemşire",    "Mühendis",
     "Muhasebeci", "Avukat",        "Terzi",           "Aşçı",       "Polis",
     "Berber",     "Elektrikçi",    "Marangoz",        "Garson",     "Güvenlik görevlisi",
     "Tezgâhtar",  "Sekreter",      "Bankacı",         "Eczacı",     "Mimar",
     "Gazeteci",   "İnşaat ustası", "Kuaför",          "Tamirci",    "Akademisyen",
     "Ressam",     "Müzisyen",      "Veteriner hekim", "Diş hekimi", "Çırak",
     "İşsiz"});
constexpr auto employerRows =
    std::to_array<std::string_view>({"Sosyal Güvenlik Kurumu", "Milli Eğitim Müdürlüğü",
                                     "Büyükşehir Belediyesi",  "Devlet Demiryolları",
                                     "Şeker Fabrikası",        "Çimento Fabrikası",
                                     "Tekstil Sanayi A.Ş.",    "Öz Gıda Ltd. Şti.",
                                     "Ziraat Odası",           "Ticaret Odası",
                                     "İl Sağlık Müdürlüğü",    "Devlet Hastanesi",
                                     "Üniversite Rektörlüğü",  "Karayolları",
                                     "Orman İşletmesi",        "Emniyet Müdürlüğü",
                                     "Yapı Kooperatifi",       "Işık Matbaacılık",
                                     "Güneş Sigorta",          "Kaya Nakliyat",
                                     "Yıldız Mobilya",         "Doğan İnşaat",
                                     "Defterdarlık",           "Elektrik Dağıtım A.Ş."});
constexpr auto jobRows = std::to_array<std::string_view>(
    {"Memur", "İşçi", "Şef", "Müdür", "Müdür yardımcısı", "Uzman", "Teknisyen", "Usta", "Ustabaşı",
     "Sekreter", "Şoför", "Bekçi", "Danışman", "Veznedar", "Satış sorumlusu", "Stajyer"});
constexpr auto womenAddressed =
    std::to_array<std::string_view>({"Sayın", "Bayan", "Sayın Hanımefendi", "Dr.", "Prof. Dr."});
constexpr auto menAddressed =
    std::to_array<std::string_view>({"Sayın", "Bay", "Sayın Beyefendi", "Dr.", "Prof. Dr."});
constexpr auto doctorRows = std::to_array<std::string_view>(
    {"Dr. Ayla Işıklı", "Dr. Cem Güngören", "Dr. Şükrü Özalp", "Dr. İnci Çağlayan",
     "Dr. Nihat Ilıcalı", "Dr. Ülkü Yıldızoğlu", "Dr. Gürhan Değer", "Dr. Öznur Şimşekli",
     "Doç. Dr. Tuğrul Eşsiz", "Doç. Dr. Işın Karaçam", "Prof. Dr. Bülent Çiğdemli",
     "Prof. Dr. Jülide Özışık", "Aile Sağlığı Merkezi", "Devlet Hastanesi Acil Servisi"});
constexpr auto districtRows = std::to_array<std::string_view>(
    {"Cumhuriyet Mah.", "Atatürk Mah.", "Fatih Mah.", "Yeni Mah.", "İstiklal Mah.", "Hürriyet Mah.",
     "Bahçelievler Mah.", "Çınarlı Mah.", "Şirinevler Mah.", "Gültepe Mah.", "Yıldıztepe Mah.",
     "Kızılay Mah.", "Öğretmenler Mah.", "Göl Mah.", "Ihlamur Mah."});
constexpr auto streetRows = std::to_array<std::string_view>(
    {"Gazi Cad.", "İnönü Cad.", "Barış Sok.", "Çiçek Sok.", "Gül Sok.", "Lale Sok.", "Menekşe Sok.",
     "Şehitler Cad.", "Okul Sok.", "Çeşme Sok.", "Değirmen Sok.", "Işık Sok.", "Kavaklı Sok.",
     "Söğüt Sok.", "Üzüm Sok.", "Zafer Cad.", "Park Cad.", "İstasyon Cad."});
constexpr auto remarkRows = std::to_array<std::string_view>(
    {"Penisilin alerjisi var.", "Diyabet, ağızdan ilaç kullanıyor.", "Hipertansiyon takibinde.",
     "Aşı kartı tamam.", "Kan sulandırıcı kullanıyor.", "Gözlük kullanıyor.",
     "Şikâyeti olursa arayacak.", "Randevuya hep eşiyle gelir.", "İşitme cihazı var.",
     "Astım, inhaler kullanıyor.", "Ameliyat öyküsü: apandisit (İzmir).",
     "Sonuçları e-posta ile istiyor.", "Fatura kuruma kesilecek.", "Guatr nedeniyle izleniyor.",
     "Sigara içmiyor.", "Yakını ile görüşülecek."});

}  // namespace

Words bloodGroups() {
  return bloodGroupRows;
}
Words professions() {
  return professionRows;
}
Words employers() {
  return employerRows;
}
Words jobs() {
  return jobRows;
}
Words formsOfAddress(Sex sex) {
  return sex == Sex::Female ? Words(womenAddressed) : Words(menAddressed);
}
Words doctors() {
  return doctorRows;
}
Words districts() {
  return districtRows;
}
Words streets() {
  return streetRows;
}
Words remarks() {
  return remarkRows;
}

}  // namespace tools

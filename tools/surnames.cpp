// Surnames, the most frequent ones first.
#include <array>

#include "tools/word_lists.h"

namespace tools {

namespace {

constexpr auto names = std::to_array<std::string_view>(
    {"Yılmaz",    "Kaya",       "Demir",     "Çelik",    "Şahin",     "Yıldız",    "Yıldırım",
     "Öztürk",    "Aydın",      "Özdemir",   "Arslan",   "Doğan",     "Kılıç",     "Aslan",
     "Çetin",     "Kara",       "Koç",       "Kurt",     "Özkan",     "Şimşek",    "Polat",
     "Korkmaz",   "Özcan",      "Çakır",     "Erdoğan",  "Yavuz",     "Can",       "Acar",
     "Şen",       "Aktaş",      "Güler",     "Yalçın",   "Güneş",     "Bozkurt",   "Bulut",
     "Keskin",    "Ünal",       "Turan",     "Gül",      "Özer",      "Işık",      "Kaplan",
     "Avcı",      "Sarı",       "Tekin",     "Taş",      "Köse",      "Yüksel",    "Ateş",
     "Aksoy",     "Tunç",       "Coşkun",    "Uçar",     "Durmaz",    "Kahraman",  "Erdem",
     "Çiftçi",    "Karaca",     "Uysal",     "Topal",    "Akın",      "Akbulut",   "Akgül",
     "Akkaya",    "Akkuş",      "Akman",     "Akpınar",  "Aksu",      "Aktürk",    "Akyol",
     "Akyüz",     "Alkan",      "Alp",       "Altın",    "Altun",     "Altıntaş",  "Altunbaş",
     "Arıkan",    "Arı",        "Ata",       "Atalay",   "Atasoy",    "Ay",        "Ayaz",
     "Aybar",     "Aydemir",    "Aydoğan",   "Aydoğdu",  "Aygün",     "Ayhan",     "Aykaç",
     "Aytekin",   "Bal",        "Balcı",     "Balta",    "Baran",     "Barut",     "Baş",
     "Başar",     "Başaran",    "Baştürk",   "Batur",    "Bayar",     "Baydar",    "Bayrak",
     "Bayraktar", "Bayram",     "Baysal",    "Bektaş",   "Berber",    "Bilgi",     "Bilgiç",
     "Bilgin",    "Bilici",     "Binici",    "Bingöl",   "Birinci",   "Bolat",     "Boran",
     "Boz",       "Bozdağ",     "Bozdemir",  "Bozkaya",  "Boztepe",   "Bozan",     "Budak",
     "Bulduk",    "Burak",      "Büyük",     "Candan",   "Cengiz",    "Ceylan",    "Cihan",
     "Civan",     "Çağlar",     "Çakmak",    "Çalışkan", "Çam",       "Çapar",     "Çatal",
     "Çelebi",    "Çetinkaya",  "Çevik",     "Çınar",    "Çiçek",     "Çil",       "Çimen",
     "Çoban",     "Çolak",      "Çorbacı",   "Dağ",      "Dağdelen",  "Dağlı",     "Dal",
     "Daş",       "Değirmenci", "Deligöz",   "Demirbaş", "Demirci",   "Demirel",   "Demirkan",
     "Demirtaş",  "Deniz",      "Dere",      "Derin",    "Dikmen",    "Dilek",     "Dinç",
     "Dinçer",    "Doğru",      "Doğanay",   "Dönmez",   "Duman",     "Duran",     "Durak",
     "Dursun",    "Duru",       "Düzgün",    "Ekici",    "Ekinci",    "Elmas",     "Emir",
     "Er",        "Eraslan",    "Ercan",     "Erden",    "Erdinç",    "Eren",      "Ergin",
     "Ergün",     "Erkan",      "Erkoç",     "Erol",     "Eroğlu",    "Ersoy",     "Ertaş",
     "Ertekin",   "Ertürk",     "Esen",      "Eser",     "Evren",     "Fidan",     "Fırat",
     "Genç",      "Gezer",      "Gökalp",    "Gökçe",    "Gökmen",    "Göktaş",    "Gök",
     "Göçer",     "Gönül",      "Gülbahar",  "Gülşen",   "Gültekin",  "Gümüş",     "Gün",
     "Günay",     "Gündoğdu",   "Gündüz",    "Güney",    "Güngör",    "Günal",     "Gürbüz",
     "Gürel",     "Gürsoy",     "Güven",     "Güzel",    "Hacıoğlu",  "Hazar",     "Ilgaz",
     "Ilıca",     "Irmak",      "Işıklar",   "Işıkhan",  "İlhan",     "İnan",      "İnal",
     "İnce",      "İpek",       "İşler",     "İyigün",   "İzci",      "Kaçar",     "Kalkan",
     "Kalaycı",   "Kandemir",   "Kaptan",    "Kar",      "Karabacak", "Karabulut", "Karadağ",
     "Karadeniz", "Karagöz",    "Karahan",   "Karakaş",  "Karakaya",  "Karakoç",   "Karakuş",
     "Karaman",   "Karataş",    "Kartal",    "Kavak",    "Kaygısız",  "Kayhan",    "Kazan",
     "Keleş",     "Kemal",      "Kesici",    "Kınalı",   "Kıraç",     "Kırmızı",   "Kısa",
     "Kıvrak",    "Kızıl",      "Kızılkaya", "Kocabaş",  "Kocaman",   "Koca",      "Koçak",
     "Konak",     "Koparan",    "Korkut",    "Kök",      "Köksal",    "Köroğlu",   "Kumaş",
     "Kural",     "Kurtuluş",   "Kuş",       "Kuzu",     "Küçük",     "Mert",      "Metin",
     "Mutlu",     "Narin",      "Nazlı",     "Nur",      "Oğuz",      "Okur",      "Okumuş",
     "Olgun",     "Oral",       "Orhan",     "Ok",       "Oruç",      "Öcal",      "Öksüz",
     "Ölmez",     "Önal",       "Önder",     "Öner",     "Örs",       "Öz",        "Özaydın",
     "Özbay",     "Özbek",      "Özçelik",   "Özdoğan",  "Özel",      "Özen",      "Özgür",
     "Özmen",     "Özsoy",      "Öztekin",   "Pala",     "Parlak",    "Pehlivan",  "Peker",
     "Pekcan",    "Sağlam",     "Sağır",     "Samur",    "Sancak",    "Sarıkaya",  "Savaş",
     "Say",       "Saygın",     "Seçkin",    "Sevim",    "Sezer",     "Sezgin",    "Soylu",
     "Soysal",    "Sönmez",     "Söylemez",  "Sucu",     "Süzen",     "Şanlı",     "Şeker",
     "Şener",     "Şengül",     "Şentürk",   "Taşçı",    "Taşdemir",  "Taşkın",    "Tatar",
     "Tatlı",     "Tekeli",     "Temel",     "Temiz",    "Terzi",     "Tezcan",    "Toker",
     "Toprak",    "Topçu",      "Tosun",     "Tuna",     "Tuncel",    "Turgut",    "Turhan",
     "Türk",      "Türkmen",    "Türkoğlu",  "Uçan",     "Uğur",      "Ulusoy",    "Uslu",
     "Ustaoğlu",  "Uyar",       "Uygun",     "Uzun",     "Ülker",     "Üstün",     "Vardar",
     "Vural",     "Yağcı",      "Yaman",     "Yaşar",    "Yazıcı",    "Yeşil",     "Yetkin",
     "Yiğit",     "Yolcu",      "Yurt",      "Yücel",    "Yüce",      "Zengin",    "Zorlu"});

}  // namespace

Words surnames() {
  return names;
}

}  // namespace tools

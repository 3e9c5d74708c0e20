// Given names, the most frequent ones first.
#include <array>

#include "tools/word_lists.h"

namespace tools {

namespace {

constexpr auto females = std::to_array<std::string_view>(
    {"Fatma",    "Ayşe",     "Emine",    "Hatice",   "Zeynep",   "Elif",    "Meryem", "Şerife",
     "Zehra",    "Sultan",   "Hanife",   "Merve",    "Havva",    "Zeliha",  "Esra",   "Fadime",
     "Özlem",    "Hacer",    "Yasemin",  "Hülya",    "Cemile",   "Sevim",   "Gülsüm", "Leyla",
     "Dilek",    "Büşra",    "Aysel",    "Songül",   "Kübra",    "Halime",  "Esma",   "Aynur",
     "Hatun",    "Tuğba",    "Rabia",    "Sevgi",    "Kadriye",  "Nuray",   "Asiye",  "Arzu",
     "Döndü",    "Derya",    "Ebru",     "Sibel",    "Semra",    "Filiz",   "Melek",  "Sevda",
     "Nurcan",   "Türkan",   "Fidan",    "Yıldız",   "Seher",    "Güler",   "Nazlı",  "Gamze",
     "Gülay",    "Pınar",    "Serpil",   "Betül",    "Ümmühan",  "Gizem",   "Hilal",  "Feride",
     "İpek",     "İnci",     "İrem",     "İlknur",   "İlayda",   "Sema",    "Selma",  "Selin",
     "Sinem",    "Seda",     "Serap",    "Sevil",    "Sevinç",   "Saadet",  "Safiye", "Saliha",
     "Saime",    "Sabiha",   "Rukiye",   "Remziye",  "Reyhan",   "Ruhsar",  "Raziye", "Perihan",
     "Pelin",    "Pakize",   "Özge",     "Özgül",    "Öykü",     "Oya",     "Nurten", "Nuran",
     "Nurhan",   "Nuriye",   "Nur",      "Nilgün",   "Nilüfer",  "Nihal",   "Nihan",  "Nida",
     "Neslihan", "Nesrin",   "Nermin",   "Neriman",  "Necla",    "Necmiye", "Naciye", "Nazan",
     "Nazife",   "Nalan",    "Müzeyyen", "Münevver", "Mükerrem", "Müge",    "Mualla", "Mukaddes",
     "Mine",     "Mihriban", "Meliha",   "Melike",   "Melis",    "Meltem",  "Mehtap", "Mebrure",
     "Makbule",  "Lale",     "Latife",   "Kezban",   "Kevser",   "Kıymet",  "Kiraz",  "Kader",
     "Jale",     "Huriye",   "Hafize",   "Handan",   "Hande",    "Hayriye", "Hediye", "Helin",
     "Güneş",    "Günay",    "Gülşah",   "Gülşen",   "Gülten",   "Gülnur",  "Gülcan", "Gülizar",
     "Gülbahar", "Gönül",    "Gökçe",    "Ganime",   "Funda",    "Figen",   "Feyza",  "Fevziye",
     "Ferda",    "Fahriye",  "Ezgi",     "Eylül",    "Evin",     "Esen",    "Elvan",  "Elmas",
     "Ela",      "Ece",      "Eda",      "Ecrin",    "Dilara",   "Dilan",   "Didem",  "Demet",
     "Deniz",    "Defne",    "Damla",    "Çiğdem",   "Çilem",    "Çağla",   "Ceyda",  "Ceylan",
     "Ceren",    "Cansu",    "Canan",    "Burcu",    "Buse",     "Birgül",  "Birsen", "Beyza",
     "Beyhan",   "Berna",    "Berrin",   "Begüm",    "Bedriye",  "Belgin",  "Berfin", "Bengü",
     "Banu",     "Bahar",    "Azra",     "Aysun",    "Ayten",    "Aylin",   "Aygül",  "Ayla",
     "Asya",     "Aslı",     "Asuman",   "Azize",    "Ahu",      "Afife",   "Adile",  "Şule",
     "Şengül",   "Şenay",    "Şeyma",    "Şükran",   "Şehriban", "Ülkü",    "Ümran",  "Vildan",
     "Yeliz",    "Yeter",    "Yüksel",   "Zübeyde",  "Zerrin",   "Zahide",  "Işıl",   "Irmak",
     "Ilgın",    "Iraz",     "Itır"});
constexpr auto males = std::to_array<std::string_view>(
    {"Mehmet",     "Mustafa",  "Ahmet",   "Ali",      "Hüseyin",    "Hasan",       "İbrahim",
     "İsmail",     "Osman",    "Yusuf",   "Murat",    "Ömer",       "Ramazan",     "Halil",
     "Süleyman",   "Abdullah", "Mahmut",  "Recep",    "Salih",      "Fatih",       "Kadir",
     "Emre",       "Hakan",    "Adem",    "Kemal",    "Yaşar",      "Bekir",       "Musa",
     "Metin",      "Orhan",    "Bayram",  "Serkan",   "Furkan",     "Gökhan",      "Uğur",
     "Yunus",      "Muhammet", "Enes",    "Onur",     "Burak",      "Cemal",       "Şaban",
     "Eyüp",       "Hamza",    "Bilal",   "Volkan",   "Selim",      "Sinan",       "Engin",
     "Ercan",      "Erkan",    "Erdal",   "Erdem",    "Erhan",      "Erol",        "Ersin",
     "Ertan",      "Ertuğrul", "Kerem",   "Kaan",     "Kenan",      "Koray",       "Levent",
     "Lütfi",      "Mert",     "Mesut",   "Mevlüt",   "Muammer",    "Muharrem",    "Mücahit",
     "Müslüm",     "Naci",     "Nail",    "Namık",    "Nazım",      "Necati",      "Necdet",
     "Necmettin",  "Nedim",    "Nejat",   "Nevzat",   "Niyazi",     "Nihat",       "Nizamettin",
     "Nuri",       "Nurullah", "Oğuz",    "Oğuzhan",  "Okan",       "Oktay",       "Ozan",
     "Özcan",      "Özgür",    "Özkan",   "Polat",    "Rasim",      "Raşit",       "Refik",
     "Remzi",      "Rıdvan",   "Rıfat",   "Rıza",     "Rüstem",     "Sabri",       "Sadık",
     "Sait",       "Samet",    "Sami",    "Savaş",    "Sedat",      "Sefa",        "Selahattin",
     "Selami",     "Selçuk",   "Semih",   "Serdar",   "Serhat",     "Servet",      "Seyfettin",
     "Sezer",      "Sezgin",   "Soner",   "Suat",     "Şahin",      "Şakir",       "Şenol",
     "Şerafettin", "Şevket",   "Şükrü",   "Tahir",    "Tahsin",     "Talat",       "Tamer",
     "Taner",      "Tarık",    "Tayfun",  "Tekin",    "Temel",      "Teoman",      "Tevfik",
     "Timur",      "Tolga",    "Tuncay",  "Tuncer",   "Turan",      "Turgay",      "Turgut",
     "Turhan",     "Tufan",    "Ufuk",    "Umut",     "Utku",       "Ümit",        "Ünal",
     "Vahit",      "Vedat",    "Vehbi",   "Veli",     "Veysel",     "Yakup",       "Yalçın",
     "Yasin",      "Yavuz",    "Yener",   "Yiğit",    "Yücel",      "Yüksel",      "Zafer",
     "Zekeriya",   "Zeki",     "Ziya",    "Zülfikar", "Abdulkadir", "Abdurrahman", "Adnan",
     "Akif",       "Alaattin", "Alper",   "Alperen",  "Altan",      "Anıl",        "Arda",
     "Arif",       "Aslan",    "Atakan",  "Atilla",   "Aydın",      "Aykut",       "Aytaç",
     "Aziz",       "Baki",     "Baran",   "Barış",    "Batuhan",    "Bedri",       "Behçet",
     "Berat",      "Berk",     "Berkay",  "Bora",     "Buğra",      "Bülent",      "Caner",
     "Celal",      "Celil",    "Cem",     "Cemil",    "Cengiz",     "Cevat",       "Cevdet",
     "Ceyhun",     "Cihan",    "Coşkun",  "Cuma",     "Cumali",     "Çağatay",     "Çağrı",
     "Çetin",      "Davut",    "Deniz",   "Doğan",    "Doğukan",    "Dursun",      "Ege",
     "Efe",        "Ekrem",    "Emin",    "Emrah",    "Ender",      "Enver",       "Eray",
     "Eren",       "Faruk",    "Faik",    "Fahri",    "Ferhat",     "Ferit",       "Fevzi",
     "Fikret",     "Fikri",    "Fuat",    "Galip",    "Gürkan",     "Gürsel",      "Güven",
     "Habip",      "Hacı",     "Haluk",   "Hamdi",    "Hamit",      "Harun",       "Haşim",
     "Haydar",     "Hayri",    "Hidayet", "Hikmet",   "Hilmi",      "Hulusi",      "Hüsnü",
     "İdris",      "İlhan",    "İlker",   "İlyas",    "İhsan",      "İrfan",       "İsa",
     "İshak",      "İskender", "İzzet",   "Ilgaz",    "Ildır",      "Kamil",       "Kazım",
     "Kasım",      "Kutay",    "Lokman"});

}  // namespace

Words givenNames(Sex sex) {
  return sex == Sex::Female ? Words(females) : Words(males);
}

}  // namespace tools

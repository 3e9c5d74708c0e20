// Texts that reports, stored files and the users' habits hold on to, odd spellings included.
#include <gtest/gtest.h>

#include <string>

#include "shell/vocabulary/vocabulary.h"

namespace shell {
namespace {

struct Fixed {
  std::string_view key;
  std::string_view english;
  std::string_view turkish;
};

constexpr Fixed kFixed[] = {
    // Specialities
    {"ichastaliklari", "Internal Medicine", "İç Hastalıkları"},
    {"Cerrahi", "General Surgery", "Cerrahi"},
    {"cocukhastaliklari", "Pediatrics", "Çocuk Hastalıkları"},
    {"kadindogum", "Gynecology ", "Kadın-Doğum"},
    {"goz", "Ophthalmology", "Göz"},
    {"KBB", "ENT", "KBB"},
    {"Romatoloji", "Ramathyology", "Romatoloji"},
    {"hastatakipprogrami", "General Medicine", "Hasta Takip Programı"},
    {"Patoloji Raporu", "Patoloji Raporu", "Patoloji Raporu"},

    // The card and the age text
    {"kadin", "F", "K"},
    {"Erkek", "M", "E"},
    {"yas", "Year", "Yaş"},
    {"yasi", "Age", "Yaşı"},
    {"Ay", "Mounth", "Ay"},
    {"gun", "Day", "Gün"},
    {"ay", "ay", "ay"},

    // The page template
    {"Metin", "Text", "Metin"},
    {"ustbosluk", "Üst Boşluk", "Üst Boşluk"},
    {"isim", "Name", "İsim"},
    {"Tarih", "Date", "Tarih"},
    {"baslik", "Caption", "Başlık"},
    {"imza", "Signature", "İmza"},
    {"sablon", "Pattern", "Şablon"},
    {"farklıkaydet", "Save As", "Farklı Kaydet"},
    {"yazıtipi", "Font", "Yazı Tipi"},

    // Growth and vaccination
    {"Kilo", "Weight", "Kilo"},
    {"boy", "Height", "Boy"},
    {"bascevresi", "Head Measurement", "Baş Çevresi"},
    {"goguscevresi", "Chest Measurement", "Göğüs Çevresi"},
    {"karincevresi", "Abdominal Measurement", "Karın Çevresi"},
    {"0_24ay", "0-24 month", "0-24 ay"},
    {"0_18yas", "0-18 age", "0-18 yaş"},
    {"standartasitakvimi", "Standard Time of Vaccination", "Standart Aşı Takvimi"},
    {"Doz", "Dose", "Doz"},
    {"asi", "Immunize", "Aşı"},
    {"Firma", "Firm", "Firma"},
    {"Notlar", "Note", "Notlar"},
    {"kizamik", "Measles", "Kızamık"},
    {"sucicegi", "Chickenpox", "Su Çiçeği"},
    {"Tetanoz", "Tetanoz", "Tetanoz"},

    // The milestones of the motor-mental chart; two of its rows have no key of their own
    {"basinitutma", "Head Support", "Başını Tutma"},
    {"sesligulme", "Loud Laughing", "Sesli Gülme"},
    {"Yakalama", "Catching Reflex", "Yakalama"},
    {"sagasoladonme", "Right-Left Turn", "Sağa Sola Dönme"},
    {"eldenelegecirme", "Hand to Hand", "Elden Ele Geçirme"},
    {"Desteksiz Oturma", "Desteksiz Oturma", "Desteksiz Oturma"},
    {"yardimlaayakbasma", "Help in Stepping", "Yardımla Ayak Basma"},
    {"Emekleme", "Crawling", "Emekleme"},
    {"siralama", "In-Line", "Sıralama"},
    {"Bir Kelime Söyleme", "Bir Kelime Söyleme", "Bir Kelime Söyleme"},
    {"yardimlayurume", "Help in Wolking", "Yardımla Yürüme"},
    {"ucdortkelimesoyleme", "3-4 word speech", "3-4 Kelime Söyleme"},
    {"kendiisminibilme", "Knowing Ovon Name", "Kendi İsmini Bilme"},
    {"ikikuplekuleyapma", "2 küple kule yapma", "İki Küple Kule Yapma"},
    {"yurume", "Wolking", "Yürüme"},
    {"cumlekurma", "Putting Words Together", "Cümle Kurma"},

    // Pregnancy
    {"gebetakip", "Ahtenatel", "Gebe Takip"},
    {"sonadettarihi", "LMD", "Son Adet Tarihi"},
    {"beklenendogumtarihi", "Date of Delivery", "Beklenen Doğum Tarihi"},
    {"dogum", "Birth", "Doğum"},
    {"dusuk", "Miscarriage", "Düşük"},
    {"kurtaj", "Abortion", "Kürtaj"},
    {"Hafta", "Week", "Hafta"},
    {"sikayet", "Complain", "Şikayet"},
    {"Tetkik", "Test", "Tetkik"},

    // Other screens
    {"olcum", "Measurement", "Ölçüm"},
    {"gozlukrecetesi", "Eye Glasses Prescription", "Gözlük Reçetesi"},
    {"sigarabrakma", "Sigara Brakma", "Sigara Brakma"},
    {"sonmuayene", "Son Muayene", "Son Muayene"},
    {"kalicidegisiklik", "Değişiklikler kalıcı olsun mu?", "Değişiklikler kalıcı olsun mu?"},
};

TEST(VocabularyFixedTexts, StandLetterForLetter) {
  for (const Fixed& fixed : kFixed) {
    EXPECT_EQ(lookUp(fixed.key, Language::English), fixed.english) << fixed.key;
    EXPECT_EQ(lookUp(fixed.key, Language::Turkish), fixed.turkish) << fixed.key;
  }
}

TEST(VocabularyFixedTexts, EchoLegendExplainsEveryAbbreviationOfTheReport) {
  for (const auto language : {Language::Turkish, Language::English}) {
    const std::string_view legend = lookUp("ekokisaltmalar", language);
    for (const std::string_view abbreviation :
         {"VKİ", "V max", "MVP", "MDZ", "IVRZ", "MBYZ", "E/A", "AY", "AYBYZ", "dk", "sn", "msn"}) {
      EXPECT_NE(legend.find(std::string(abbreviation) + ": "), std::string_view::npos)
          << abbreviation;
    }
  }
}

}  // namespace
}  // namespace shell

// What the second run over the Turkish table does, and does not do, to a text.
#include <gtest/gtest.h>

#include <set>
#include <string>

#include "shell/vocabulary/vocabulary.h"

namespace shell {
namespace {

using Keys = std::set<std::string_view>;

TEST(LookUp, TakesTheTextOfTheLanguage) {
  EXPECT_EQ(lookUp("isim", Language::English), "Name");
  EXPECT_EQ(lookUp("isim", Language::Turkish), "İsim");
}

TEST(LookUp, UnknownKeyComesBackAsTheArgumentItself) {
  const std::string key = "no such key";
  EXPECT_EQ(lookUp(key, Language::English).data(), key.data());
  EXPECT_EQ(lookUp(key, Language::Turkish).data(), key.data());
}

TEST(LookUp, EmptyKeyGivesEmpty) {
  EXPECT_EQ(lookUp("", Language::English), "");
  EXPECT_EQ(lookUp("", Language::Turkish), "");
}

TEST(LookUp, TellsTheCaseOfLetters) {
  EXPECT_EQ(lookUp("ISIM", Language::Turkish), "ISIM");
  EXPECT_EQ(lookUp("Kontrol", Language::English), "Control");
  EXPECT_EQ(lookUp("kontrol", Language::English), "control");
  EXPECT_EQ(lookUp("ay", Language::English), "ay");
}

TEST(LookUp, FourUnfinishedEnglishRowsReadTurkish) {
  Keys changed;
  for (const Row& row : rows()) {
    const auto english = ingilizcemetin(row.key);
    if (english && lookUp(row.key, Language::English) != *english) changed.insert(row.key);
  }
  EXPECT_EQ(changed,
            (Keys{"gunlukmuayeneler", "dosyabakimiyapiliyor", "kisitliac", "dogumgunuhatitlat"}));
  for (const auto key : changed) EXPECT_EQ(ingilizcemetin(key), key);
  EXPECT_EQ(lookUp("gunlukmuayeneler", Language::English), "Günlük Muayeneler");
  EXPECT_EQ(lookUp("dosyabakimiyapiliyor", Language::English), "Dosya bakımı yapılıyor");
  EXPECT_EQ(lookUp("kisitliac", Language::English), "Kısıtlı Aç");
  EXPECT_EQ(lookUp("dogumgunuhatitlat", Language::English), "Doğum Günü hatırlat");
}

TEST(LookUp, OnlyTheTotalIsTranslatedTwiceInTurkish) {
  Keys changed;
  for (const Row& row : rows()) {
    const auto turkish = turkcemetin(row.key);
    if (turkish && lookUp(row.key, Language::Turkish) != *turkish) changed.insert(row.key);
  }
  EXPECT_EQ(changed, Keys{"toplam"});
  EXPECT_EQ(lookUp("toplam", Language::Turkish), "TOPLAM");
  EXPECT_EQ(lookUp("toplam", Language::English), "Toplam");
  EXPECT_EQ(lookUp("Toplam", Language::Turkish), "TOPLAM");
}

TEST(LookUp, EnglishTextThatIsAKeyMapsToItself) {
  for (const std::string_view key : {"Horizontal", "Test", "Film", "Lens", "Normal", "Fax"}) {
    EXPECT_EQ(lookUp(key, Language::English), key);
    EXPECT_EQ(lookUp(key, Language::Turkish), key);
  }
  EXPECT_EQ(lookUp("Yatay", Language::English), "Horizontal");
  EXPECT_EQ(lookUp("Tetkik", Language::English), "Test");
}

}  // namespace
}  // namespace shell

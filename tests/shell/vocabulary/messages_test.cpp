// The messages, letter for letter: users know them by their wording, slips included.
#include <gtest/gtest.h>

#include "shell/vocabulary/vocabulary.h"

namespace shell {
namespace {

struct Message {
  std::string_view key;
  std::string_view english;
  std::string_view turkish;
};

constexpr Message kMessages[] = {
    {"msghatalitarih", "Wrong date format. Pleas tray agein.",
     "Hatalı tarih bilgisi girildi. Lütfen yeniden deneyiniz."},
    {"msgisimtekrari",
     " recorded previously. Do you want to make a different record for same name and surname?",
     " önceden girildi. Aynı isimden yeni bir kayıt girmek istiyor musunuz?"},
    {"msgisimdegisti", " olarak değiştirilsin mi?", " olarak değiştirilsin mi?"},
    {"msgkayityapilsinmi", "Do you want to save?", "Kayıt yapılsın mı?"},
    {"msgdegisiklikyapilsinmi", "Değişiklikler kaydedilsin mi?", "Değişiklikler kaydedilsin mi?"},
    {"msgsilinecekkayit", "Do you want to delete?", "Kaydı silmek istiyor musunuz?."},
    {"msgbulunamadi", "Bulunamadı", "Bulunamadı"},
    {"msgilaconcedenyazildi", " önceden reçeteye girildi. İkinci defa girmek istiyor musunuz?",
     " önceden reçeteye girildi. İkinci defa girmek istiyor musunuz?"},
    {"msgtestoncedenyazildi", " önceden istendi. İkinci defa istiyor musunuz?",
     " önceden istendi. İkinci defa istiyor musunuz?"},
    {"msginternetbagyok", "Internet connection was not found.", "İnternet bağlantısı bulunamadı."},
    {"msghatalicikis",
     "You have been illegally exit from last session.\n\rTo run ''Data Recovery'', click ''OK'' "
     "button.",
     "Önceki oturumdan hatalı çıkıldı.\n\rOlası veri kayıplarının kontrolu için 'Tamam' tuşuna "
     "basınız."},
    {"msgagdaislem", " now is running on network.\n\rPlease try again later.",
     " Halen ağ üzerinde işlem görmektedir.\n\rDaha sonra yeniden deneyiniz."},
    {"msgyenisifregir", "Yeni şifre giriniz.", "Yeni şifre giriniz."},
    {"msgsifregir", "Şifrenizi giriniz.", "Şifrenizi giriniz."},
    {"msgsifreyiyenidengir", "Şifrenizi yeniden giriniz.", "Şifrenizi yeniden giriniz."},
    {"msgdosyadegis", " ile değiştirmek istiyor musunuz?", " ile değiştirmek istiyor musunuz?"},
    {"msgdosyayok", " dosyası bulunamadı.", " dosyası bulunamadı."},
    {"msgsayiformati", "Lütfen sayı formatında bilgi giriniz",
     "Lütfen sayı formatında bilgi giriniz"},
    {"msgsifredogrula", "Şifrenizi Doğrulayınız", "Şifrenizi Doğrulayınız"},
    {"msherisilemez", " Erişilemez.\n\r Aygıt hazır değil.", " Erişilemez.\n\r Aygıt hazır değil."},
    {"msghatalisifre", "Wrong Password!", "Hatalı Şifre Girdiniz."},
    {"msggecersiztarih", " Kontrol için geçersiz tarih girildi.",
     " Kontrol için geçersiz tarih girildi."},
    {"msgmesajlarisil", "Tüm mesajları silmek istiyor musunuz?",
     "Tüm mesajları silmek istiyor musunuz?"},
    {"inpyenigir", "Yeni giriniz.", "Yeni giriniz."},
    {"inpduzeltmeler", "Düzeltmeleri yapınız.", "Düzeltmeleri yapınız."},
    {"inpbul", "Bulunacak kelimeyi yazınız.", "Bulunacak kelimeyi yazınız."},
    {"inpeskisifregir", "Eski şifrenizi giriniz", "Eski şifrenizi giriniz"},
    {"inpgonderenismi", "Gönderen ismini yazınız", "Gönderen ismini yazınız"},
};

TEST(VocabularyMessages, ReadAsTheUsersKnowThem) {
  ASSERT_EQ(std::size(kMessages), 28U);
  for (const Message& message : kMessages) {
    EXPECT_EQ(lookUp(message.key, Language::English), message.english) << message.key;
    EXPECT_EQ(lookUp(message.key, Language::Turkish), message.turkish) << message.key;
  }
}

}  // namespace
}  // namespace shell

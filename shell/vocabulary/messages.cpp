#include "shell/vocabulary/row_makers.h"
#include "shell/vocabulary/topics.h"

namespace shell::topics {
namespace {

// A message that follows a name begins with a blank. Lines are joined by line feed, carriage
// return, in that order. The wording, misspellings included, is what the users know.
constexpr Row kRows[] = {
    both("msghatalitarih", "Wrong date format. Pleas tray agein.",
         "Hatalı tarih bilgisi girildi. Lütfen yeniden deneyiniz."),
    both("msgisimtekrari",
         " recorded previously. Do you want to make a different record for same name and surname?",
         " önceden girildi. Aynı isimden yeni bir kayıt girmek istiyor musunuz?"),
    untranslated("msgisimdegisti", " olarak değiştirilsin mi?"),
    both("msgkayityapilsinmi", "Do you want to save?", "Kayıt yapılsın mı?"),
    untranslated("msgdegisiklikyapilsinmi", "Değişiklikler kaydedilsin mi?"),
    both("msgsilinecekkayit", "Do you want to delete?", "Kaydı silmek istiyor musunuz?."),
    untranslated("msgbulunamadi", "Bulunamadı"),
    untranslated("msgilaconcedenyazildi",
                 " önceden reçeteye girildi. İkinci defa girmek istiyor musunuz?"),
    untranslated("msgtestoncedenyazildi", " önceden istendi. İkinci defa istiyor musunuz?"),
    both("msginternetbagyok", "Internet connection was not found.",
         "İnternet bağlantısı bulunamadı."),
    both("msghatalicikis",
         "You have been illegally exit from last session.\n\r"
         "To run ''Data Recovery'', click ''OK'' button.",
         "Önceki oturumdan hatalı çıkıldı.\n\r"
         "Olası veri kayıplarının kontrolu için 'Tamam' tuşuna basınız."),
    both("msgagdaislem", " now is running on network.\n\rPlease try again later.",
         " Halen ağ üzerinde işlem görmektedir.\n\rDaha sonra yeniden deneyiniz."),
    untranslated("msgyenisifregir", "Yeni şifre giriniz."),
    untranslated("msgsifregir", "Şifrenizi giriniz."),
    untranslated("msgsifreyiyenidengir", "Şifrenizi yeniden giriniz."),
    untranslated("msgdosyadegis", " ile değiştirmek istiyor musunuz?"),
    untranslated("msgdosyayok", " dosyası bulunamadı."),
    untranslated("msgsayiformati", "Lütfen sayı formatında bilgi giriniz"),
    untranslated("msgsifredogrula", "Şifrenizi Doğrulayınız"),
    untranslated("msherisilemez", " Erişilemez.\n\r Aygıt hazır değil."),
    both("msghatalisifre", "Wrong Password!", "Hatalı Şifre Girdiniz."),
    untranslated("msggecersiztarih", " Kontrol için geçersiz tarih girildi."),
    untranslated("msgmesajlarisil", "Tüm mesajları silmek istiyor musunuz?"),
    untranslated("inpyenigir", "Yeni giriniz."),
    untranslated("inpduzeltmeler", "Düzeltmeleri yapınız."),
    untranslated("inpbul", "Bulunacak kelimeyi yazınız."),
    untranslated("inpeskisifregir", "Eski şifrenizi giriniz"),
    untranslated("inpgonderenismi", "Gönderen ismini yazınız"),
};

}  // namespace

Rows messages() {
  return kRows;
}

}  // namespace shell::topics
